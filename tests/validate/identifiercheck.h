#pragma once

// Shared checks of the identifier tests: the plain check and the library's
// method called by name, as a host calls it.

#include "lib/clsqorgenlib.h"
#include "tests/common/recordingmachine.h"
#include "validate/checkresult.h"

#include <QTest>

namespace qor::test {

// A check shows the number in its notation or refuses it with an empty display
// (the "display" column); a text of blanks only is neither shown nor refused.
inline void compareCheck(const CheckResult &check, const QString &input)
{
    QFETCH(QString, display);
    QCOMPARE(check.display, display);
    QCOMPARE(check.refused, display.isEmpty() && input.count(QLatin1Char(' ')) != input.size());
}

// The same check into storage kept from an earlier check: the same display
// (the storage's old text gone), the same verdict and the same rewritten number,
// while a copy sharing the caller's text keeps it.
template <typename StorageCheck>
inline void compareStorageCheck(
    const QString &input, const CheckResult &expected, const QString &rewritten, StorageCheck check)
{
    QString number = input;
    const QString shared = number;
    QString display = QStringLiteral("left over from an earlier check");
    display.reserve(64);
    const Verdict verdict = check(number, display);
    QCOMPARE(display, expected.display);
    QCOMPARE(verdict == Verdict::Refused, expected.refused);
    // A number shown was accepted (another land's empty text is accepted unshown).
    if (!expected.display.isEmpty())
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
