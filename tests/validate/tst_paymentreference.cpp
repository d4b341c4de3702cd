#include "validate/paymentreference.h"

#include "identifiercheck.h"
#include "tests/common/errornumber.h"

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
        QTest::newRow("leading zeros dropped from the variable") << "0000012345" << "12345" << "000/0012/34526" << false;
        QTest::newRow("invoice number with letters") << "F-12345" << "12345" << "000/0012/34526" << false;
        QTest::newRow("ten digits fit") << "9999999999" << "9999999999" << "999/9999/99948" << false;
        QTest::newRow("eleven digits keep the last ten") << "12345678901" << "2345678901" << "234/5678/90169" << true;
        QTest::newRow("a megabyte keeps the last ten") << QString(1 << 20, '1') + "0000012345" << "12345" << "000/0012/34526" << true;
        // clang-format on
    }
    void make()
    {
        QFETCH(QString, reference);
        const QString given = reference;
        const PaymentReference made = makePaymentReference(reference);
        QTEST(reference, "after");
        QTEST(made.ogm, "ogm");
        QTEST(made.tooLong, "tooLong");
        // Into storage kept from an earlier reference: the same texts.
        QString number = given;
        QString digits = QStringLiteral("0123456789012345");
        QString ogm = QStringLiteral("999/9999/99999 and more");
        QCOMPARE(makePaymentReference(number, digits, ogm), made.tooLong);
        QCOMPARE(number, reference);
        QCOMPARE(digits, made.digits);
        QCOMPARE(ogm, made.ogm);
    }

    void check_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("display");
        // clang-format off
        QTest::newRow("with plus signs") << "+++000/0000/01919+++" << "000000001919" << "000/0000/01919";
        QTest::newRow("largest first part") << "214/7483/64765" << "214748364765" << "214/7483/64765";
        QTest::newRow("multiple of 97 with 97 fails") << "000/0000/09797" << "" << "";
        QTest::newRow("multiple of 97 with 00 passes") << "000/0000/09700" << "000000009700" << "000/0000/09700";
        QTest::newRow("wrong check digits") << "000/0012/34527" << "" << "";
        QTest::newRow("eleven digits") << "00/0012/34526" << "" << "";
        QTest::newRow("blanks are not checked") << "   " << "   " << "";
        QTest::newRow("thirteen large digits do not overflow") << "9999/9999/99948" << "" << "";
        // clang-format on
    }
    void check()
    {
        QFETCH(QString, typed);
        QFETCH(QString, after);
        test::compareCheck(
            typed, after, [](QString &n, QString &d) { return checkPaymentReference(n, d); });
    }

    // One past the largest first part on 32 bits raises Overflow.
    void firstPartBeyond32BitsOverflows()
    {
        const QString typed = QStringLiteral("214/7483/64800");
        QString ogm = typed;
        QCOMPARE(test::errorNumber([&] { checkPaymentReference(ogm); }), RuntimeError::Overflow);
        // The variable was cleaned before the error.
        QCOMPARE(ogm.size(), 12);
        // The library's method lets the error reach its caller.
        test::installRecordingPlatform();
        QVariantList args { typed, false };
        QCOMPARE(test::errorNumber([&] { clsqorGenLib().Invoke("ControleerOGM", args); }),
            RuntimeError::Overflow);
    }
};

QTEST_APPLESS_MAIN(TestPaymentReference)
#include "tst_paymentreference.moc"
