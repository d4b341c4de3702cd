#include "validate/paymentreference.h"

#include "identifiercheck.h"
#include "tests/common/errornumber.h"

#include <QTest>

using namespace qor;
using test::cr2;
using test::messageBox;

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

    // GetOGM reports too long a reference, and makes the reference all the same.
    void throughTheLibrary_data()
    {
        QTest::addColumn<QString>("method");
        test::addMethodCallColumns();
        const QVariantMap german { { "Offset", 30000 } };
        const QString title = QStringLiteral("OstGenLib / Get OGM");
        const QString dutch = QStringLiteral(
            "ReferentieNummer 12345678901 bij bepalen van OGM overschrijdt 9 tekens !");
        const QString helpDesk = QStringLiteral("Neem contact op met Velantis Help-Desk.");
        const QVariantList tooLong { "1234567890-1" };
        const QVariantList lastTen { "2345678901" };
        // clang-format off
        QTest::newRow("check valid") << "ControleerOGM" << QVariantMap() << QVariantList { "***000/0000/01919***" } << "000/0000/01919" << QVariantList { "000000001919" } << QVariantMap();
        QTest::newRow("check wrong: the typed text in the message") << "ControleerOGM" << QVariantMap() << QVariantList { "+++000/0000/09797+++" } << "" << QVariantList { "" } << messageBox("+++000/0000/09797+++ is een ongeldige OGM...", 48, "Fout !");
        QTest::newRow("check wrong: marker of the missing German text") << "ControleerOGM" << german << QVariantList { "12" } << "" << QVariantList { "" } << messageBox("12 [LL 31012 ?] ", 48, " [LL 31031 ?] ");
        QTest::newRow("check wrong, MBox False: silent") << "ControleerOGM" << QVariantMap() << QVariantList { "000/0000/09797", false } << "" << QVariantList { "", false } << QVariantMap();
        QTest::newRow("make: cleaned reference written back") << "GetOGM" << QVariantMap() << QVariantList { "F19" } << "000/0000/01919" << QVariantList { "19" } << QVariantMap();
        QTest::newRow("make too long: the host's paragraph break") << "GetOGM" << QVariantMap { { "vbCr2", "\r\n" } } << tooLong << "234/5678/90169" << lastTen << messageBox(dutch + "\r\n" + helpDesk, 16, title);
        QTest::newRow("make too long: markers of the missing German texts") << "GetOGM" << german << tooLong << "234/5678/90169" << lastTen << messageBox(" [LL 31221 ?] 12345678901 [LL 31222 ?] " + cr2 + " [LL 39700 ?] ", 16, title);
        // clang-format on
    }
    void throughTheLibrary()
    {
        QFETCH(QString, method);
        test::compareMethodCall(method);
    }
};

QTEST_APPLESS_MAIN(TestPaymentReference)
#include "tst_paymentreference.moc"
