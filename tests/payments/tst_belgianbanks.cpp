#include "payments/belgianbanks.h"

#include <QTest>

using namespace qor;

class TestBelgianBanks : public QObject
{
    Q_OBJECT

private slots:
    void bankOf_data()
    {
        QTest::addColumn<QString>("account");
        QTest::addColumn<bool>("found");
        QTest::addColumn<QString>("bic");
        QTest::addColumn<QString>("name");
        // clang-format off
        QTest::newRow("IBAN in print form") << "BE71 0961 2345 6769" << true << "GKCCBEBB" << "BELFIUS BANQUE";
        QTest::newRow("old notation") << "096-1234567-69" << true << "GKCCBEBB" << "BELFIUS BANQUE";
        QTest::newRow("first code of the list") << "BE54000000009797" << true << "GEBABEBB" << "BNP Paribas Fortis";
        QTest::newRow("last code of a range") << "049-0000000-38" << true << "GEBABEBB" << "BNP Paribas Fortis";
        QTest::newRow("first code of the next range") << "050-0000000-17" << true << "GKCCBEBB" << "BELFIUS BANQUE";
        QTest::newRow("eleven-character BIC") << "100-0000000-34" << true << "NBBEBEBB203" << "Belgische Nationalbank";
        QTest::newRow("code without a BIC, accented name") << "175-0000000-11" << true << "" << "Syst\u00E8mes Technologiques d'Echange et de Traitement - STET";
        QTest::newRow("code not in the list") << "112-0000000-73" << false << "" << "";
        QTest::newRow("wrong check digits") << "096-1234567-68" << false << "" << "";
        QTest::newRow("another country") << "DE89370400440532013000" << false << "" << "";
        // clang-format on
    }
    void bankOf()
    {
        QFETCH(QString, account);
        QFETCH(bool, found);
        const std::optional<BelgianBank> bank = belgianBankOf(account);
        QCOMPARE(bank.has_value(), found);
        if (found) {
            QTEST(bank->bic, "bic");
            QTEST(bank->name, "name");
        }
    }

    void codeOutsideTheRange()
    {
        QVERIFY(!belgianBankOfCode(-1));
        QVERIFY(!belgianBankOfCode(1000));
    }
};

QTEST_APPLESS_MAIN(TestBelgianBanks)
#include "tst_belgianbanks.moc"
