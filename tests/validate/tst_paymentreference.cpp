#include "validate/paymentreference.h"

#include "runtime/runtimeerror.h"

#include <QTest>

using namespace qor;

class TestPaymentReference : public QObject
{
    Q_OBJECT

private slots:
    void make_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("ogm");
        QTest::addColumn<bool>("tooLong");
        // 12345 modulo 97 is 26; 2345678901 modulo 97 is 69.
        // clang-format off
        QTest::newRow("empty reference: remainder 0 written 97") << "" << "0" << "000/0000/00097" << false;
        QTest::newRow("reference 19") << "19" << "19" << "000/0000/01919" << false;
        QTest::newRow("reference 12345") << "12345" << "12345" << "000/0012/34526" << false;
        QTest::newRow("leading zeros dropped from the variable") << "0000012345" << "12345" << "000/0012/34526" << false;
        QTest::newRow("multiple of 97 gets 97") << "97" << "97" << "000/0000/09797" << false;
        QTest::newRow("invoice number with letters") << "F-12345" << "12345" << "000/0012/34526" << false;
        QTest::newRow("ten digits fit") << "9999999999" << "9999999999" << "999/9999/99948" << false;
        QTest::newRow("eleven digits keep the last ten") << "12345678901" << "2345678901" << "234/5678/90169" << true;
        QTest::newRow("letters only") << "REF" << "0" << "000/0000/00097" << false;
        QTest::newRow("arabic-indic digits dropped") << QStringLiteral("\u0661\u0662") << "0" << "000/0000/00097" << false;
        // clang-format on
    }
    void make()
    {
        QFETCH(QString, reference);
        QFETCH(QString, after);
        QFETCH(QString, ogm);
        QFETCH(bool, tooLong);
        QString referentieNummer = reference;
        const PaymentReference made = makePaymentReference(referentieNummer);
        QCOMPARE(referentieNummer, after);
        QCOMPARE(made.ogm, ogm);
        QCOMPARE(made.tooLong, tooLong);
    }

    void makeFromMegabyteKeepsTheDigitsForTheMessage()
    {
        QString reference = QString(1 << 20, QLatin1Char('1')) + QStringLiteral("0000012345");
        const PaymentReference made = makePaymentReference(reference);
        QVERIFY(made.tooLong);
        QCOMPARE(made.digits.size(), (1 << 20) + 10);
        QCOMPARE(reference, QStringLiteral("12345"));
        QCOMPARE(made.ogm, QStringLiteral("000/0012/34526"));
    }

    void check_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("display");
        // clang-format off
        QTest::newRow("with plus signs") << "+++000/0000/01919+++" << "000000001919" << "000/0000/01919";
        QTest::newRow("with asterisks") << "***000/0012/34526***" << "000001234526" << "000/0012/34526";
        QTest::newRow("plain digits") << "000001234526" << "000001234526" << "000/0012/34526";
        QTest::newRow("control characters dropped") << QStringLiteral("000/0012/\u000034526\r\n") << "000001234526" << "000/0012/34526";
        QTest::newRow("largest first part") << "214/7483/64765" << "214748364765" << "214/7483/64765";
        QTest::newRow("multiple of 97 with 97 fails") << "000/0000/09797" << "" << "";
        QTest::newRow("multiple of 97 with 00 passes") << "000/0000/09700" << "000000009700" << "000/0000/09700";
        QTest::newRow("wrong check digits") << "000/0012/34527" << "" << "";
        QTest::newRow("eleven digits") << "00/0012/34526" << "" << "";
        QTest::newRow("thirteen large digits do not overflow") << "9999/9999/99948" << "" << "";
        QTest::newRow("letters only") << "OGM" << "" << "";
        QTest::newRow("full-width digits dropped") << QStringLiteral("\uFF11\uFF19") << "" << "";
        // clang-format on
    }
    void check()
    {
        QFETCH(QString, typed);
        QFETCH(QString, after);
        QFETCH(QString, display);
        QString ogm = typed;
        const CheckResult result = checkPaymentReference(ogm);
        QCOMPARE(ogm, after);
        QCOMPARE(result.display, display);
        QCOMPARE(result.refused, display.isEmpty());
    }

    void checkOfMadeReferenceDiffersOnRemainderZero()
    {
        QString reference = QStringLiteral("194"); // 2 x 97
        QString ogm = makePaymentReference(reference).ogm;
        QVERIFY(checkPaymentReference(ogm).refused);
        reference = QStringLiteral("195");
        ogm = makePaymentReference(reference).ogm;
        QCOMPARE(checkPaymentReference(ogm).display, QStringLiteral("000/0000/19501"));
    }

    void firstPartBeyond32BitsOverflows_data()
    {
        QTest::addColumn<QString>("typed");
        // clang-format off
        QTest::newRow("one past the largest") << "214/7483/64800";
        QTest::newRow("largest ten digits") << "+++999/9999/99948+++";
        // clang-format on
    }
    void firstPartBeyond32BitsOverflows()
    {
        QFETCH(QString, typed);
        QString ogm = typed;
        try {
            checkPaymentReference(ogm);
            QFAIL("no overflow");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 6);
        }
        // The variable was cleaned before the error.
        QCOMPARE(ogm.size(), 12);
    }

    void blankIsNotChecked()
    {
        QString ogm = QStringLiteral("   ");
        const CheckResult result = checkPaymentReference(ogm);
        QCOMPARE(ogm, QStringLiteral("   "));
        QVERIFY(!result.refused);
    }
};

QTEST_APPLESS_MAIN(TestPaymentReference)
#include "tst_paymentreference.moc"
