#pragma once

// Shared checks of the identifier tests: the plain check and the library's
// method called by name, as a host calls it.

#include "lib/clsqorgenlib.h"
#include "tests/common/recordingmachine.h"
#include "validate/checkresult.h"

#include <QTest>

namespace qor::test {

// A check into storage kept from an earlier check shows the number in its
// notation or refuses it with an empty display (the "display" column; a text of
// blanks only is neither shown nor refused): the storage's old text is gone and
// the caller's variable holds the rewritten number, while a copy sharing the
// caller's text keeps it.
template <typename StorageCheck>
inline void compareCheck(const QString &input, const QString &rewritten, StorageCheck check)
{
    QFETCH(QString, display);
    QString number = input;
    const QString shared = number;
    QString shown = QStringLiteral("left over from an earlier check");
    shown.reserve(64);
    const Verdict verdict = check(number, shown);
    QCOMPARE(shown, display);
    QCOMPARE(verdict == Verdict::Refused,
        display.isEmpty() && input.count(QLatin1Char(' ')) != input.size());
    // A number shown was accepted (another land's empty text is accepted unshown).
    if (!display.isEmpty())
        QVERIFY(verdict == Verdict::Accepted);
    QCOMPARE(number, rewritten);
    QCOMPARE(shared, input);
}

inline const QString cr2 = QString(2, QChar(13));

// A table of calls: properties set first, the arguments, the result, the
// arguments as written back and the one message shown (empty: none).
inline void addMethodCallColumns()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<QVariantList>("args");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QVariantList>("after");
    QTest::addColumn<QVariantMap>("message");
}

inline void compareMethodCall(const QString &method)
{
    QFETCH(QVariantMap, properties);
    QFETCH(QVariantList, args);
    const auto machine = installRecordingPlatform(QStringLiteral("nl_BE"));
    clsqorGenLib lib;
    for (auto it = properties.cbegin(); it != properties.cend(); ++it)
        lib.setProperty(it.key().toLatin1().constData(), it.value());
    QTEST(lib.Invoke(method, args).toString(), "result");
    QTEST(args, "after");
    QTEST(onlyMessage(*machine), "message");
    // The method speaks the language of the object it was called on.
    QCOMPARE(modGenLib().languageOffset, properties.value(QStringLiteral("Offset")).toInt());
}

} // namespace qor::test
