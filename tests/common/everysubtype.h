#pragma once

#include "runtime/variant.h"

#include <QDateTime>
#include <QTest>

#include <limits>

namespace qor::test {

// A "value" column with a row for each kind of value a host can pass.
inline void addEverySubtypeRows()
{
    static QObject object;
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("Empty") << QVariant();
    QTest::newRow("Null") << nullVariant();
    QTest::newRow("Boolean") << QVariant(true);
    QTest::newRow("Integer") << integerVariant(-32768);
    QTest::newRow("Long") << QVariant(-2147483647 - 1);
    QTest::newRow("Single") << QVariant(-3.4e38f);
    QTest::newRow("huge Double") << QVariant(-1e300);
    QTest::newRow("tiny Double") << QVariant(-1e-300);
    QTest::newRow("64-bit") << QVariant(std::numeric_limits<qlonglong>::min());
    QTest::newRow("unsigned 64-bit") << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("character") << QVariant(QChar('7'));
    QTest::newRow("bytes") << QVariant(QByteArray("12\xA0"));
    QTest::newRow("text") << QVariant("1,5 x");
    QTest::newRow("date and time") << QVariant(QDateTime(QDate(1899, 12, 29), QTime(6, 0)));
    QTest::newRow("date") << QVariant(QDate(9999, 12, 31));
    QTest::newRow("null date") << QVariant(QDate());
    QTest::newRow("date before year 100") << QVariant(QDate(50, 1, 1));
    QTest::newRow("time") << QVariant(QTime(23, 59, 59));
    QTest::newRow("array") << QVariant(QVariantList { 1, "a" });
    QTest::newRow("text list") << QVariant(QStringList { "a" });
    QTest::newRow("object") << QVariant::fromValue(&object);
    QTest::newRow("no object") << QVariant::fromValue<QObject *>(nullptr);
    QTest::newRow("map") << QVariant(QVariantMap());
    // clang-format on
}

} // namespace qor::test
