#include "validate/identitycard.h"

#include "identifiercheck.h"

#include <QTest>

using namespace qor;

class TestIdentityCard : public QObject
{
    Q_OBJECT

    const RegionalSettings belgian = RegionalSettings::fromLocale(QStringLiteral("nl_BE"));

private slots:
    void checks_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("display");
        // 5912345678 modulo 97 is 29; 1234567890 modulo 97 is 2.
        // clang-format off
        QTest::newRow("valid") << "591234567829" << "591234567829" << "591234567829";
        QTest::newRow("remainder below 10") << "123456789002" << "123456789002" << "123456789002";
        QTest::newRow("remainder 0 written 00") << "000000009700" << "000000009700" << "000000009700";
        QTest::newRow("97 rewritten to 00, valid") << "000000009797" << "000000009700" << "000000009700";
        QTest::newRow("97 rewritten to 00, still wrong") << "123456789097" << "123456789000" << "";
        QTest::newRow("wrong check digits") << "591234567828" << "591234567828" << "";
        QTest::newRow("separators are not cleaned") << "591-2345678-29" << "591-2345678-29" << "";
        QTest::newRow("eleven digits") << "59123456782" << "59123456782" << "";
        // Twelve characters that are not numeric both read as 0, and 0 = 0.
        QTest::newRow("twelve letters read as 0 on both sides") << "abcdefghijkl" << "abcdefghijkl" << "abcdefghijkl";
        QTest::newRow("blanks are not checked") << "            " << "            " << "";
        QTest::newRow("embedded NUL reads the part as 0") << QStringLiteral("59123456\u0000829") << QStringLiteral("59123456\u0000829") << "";
        // clang-format on
    }
    void checks()
    {
        QFETCH(QString, input);
        QFETCH(QString, after);
        test::compareCheck(
            input, after, [&](QString &n, QString &d) { return checkIdentityCard(n, belgian, d); });
    }

    void partsAreReadAsTheLibraryReadsNumbers()
    {
        // With comma decimals the first part is 0,97 (remainder 0,97); with
        // point decimals the reading stops at the comma and gives 0.
        const QString input = QStringLiteral("0000,9700000");
        QString identNr = input.left(12);
        QVERIFY(checkIdentityCard(identNr, belgian).refused);
        identNr = input.left(12);
        const RegionalSettings american = RegionalSettings::fromLocale(QStringLiteral("en_US"));
        QCOMPARE(checkIdentityCard(identNr, american).display, input.left(12));
    }
};

QTEST_APPLESS_MAIN(TestIdentityCard)
#include "tst_identitycard.moc"
