#include "payments/epcpayload.h"

#include <QTest>

#include <limits>

using namespace qor;

class TestEpcPayload : public QObject
{
    Q_OBJECT

    static CreditTransfer transfer()
    {
        return { QStringLiteral("Qorsoft BV"), QStringLiteral("BE71 0961 2345 6769"), 12.3,
            QString(), QString(), QString() };
    }
    static QString payload(const QString &tail)
    {
        return QStringLiteral("BCD\n002\n1\nSCT\n") + tail;
    }

private slots:
    void fields_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("expected");
        const QString plain = QStringLiteral("\nQorsoft BV\nBE71096123456769\nEUR");
        // clang-format off
        QTest::newRow("trailing empty lines left out") << "" << "" << payload(plain + "12.30");
        QTest::newRow("BIC in electronic form") << "bic" << "gkcc bebb" << payload("GKCCBEBB" + plain + "12.30");
        QTest::newRow("creditor reference in its line") << "reference" << "RF18 5390 0754 7034" << payload(plain + "12.30\n\nRF18539007547034");
        QTest::newRow("structured communication as text") << "reference" << "+++096/1234/56769+++" << payload(plain + "12.30\n\n\n+++096/1234/56769+++");
        QTest::newRow("structured communication without pluses") << "reference" << "096/1234/56769" << payload(plain + "12.30\n\n\n+++096/1234/56769+++");
        QTest::newRow("free text in the last line") << "text" << "Factuur 17" << payload(plain + "12.30\n\n\nFactuur 17");
        QTest::newRow("text of 140 characters") << "text" << QString(140, u'x') << payload(plain + "12.30\n\n\n" + QString(140, u'x'));
        QTest::newRow("name of 70 characters") << "name" << QString(70, u'n') << payload("\n" + QString(70, u'n') + "\nBE71096123456769\nEUR12.30");
        QTest::newRow("name with a character beyond 16 bits") << "name" << "Caf\u00E9 \U0001F600" << payload("\nCaf\u00E9 \U0001F600\nBE71096123456769\nEUR12.30");
        QTest::newRow("wrong IBAN") << "iban" << "BE72 0961 2345 6769" << "";
        QTest::newRow("wrong BIC") << "bic" << "GKCCBEB" << "";
        QTest::newRow("empty name") << "name" << "" << "";
        QTest::newRow("name of 71 characters") << "name" << QString(71, u'n') << "";
        QTest::newRow("name with a line feed") << "name" << "Qorsoft\nBV" << "";
        QTest::newRow("name with a lone surrogate") << "name" << QString(QChar(0xD800)) << "";
        QTest::newRow("text of 141 characters") << "text" << QString(141, u'x') << "";
        QTest::newRow("wrong creditor reference") << "reference" << "RF19 5390 0754 7034" << "";
        QTest::newRow("wrong structured communication") << "reference" << "+++096/1234/56768+++" << "";
        // clang-format on
    }
    void fields()
    {
        QFETCH(QString, field);
        QFETCH(QString, value);
        CreditTransfer given = transfer();
        const QHash<QString, QString *> fields { { "name", &given.name }, { "iban", &given.iban },
            { "bic", &given.bic }, { "reference", &given.reference }, { "text", &given.text } };
        if (QString *changed = fields.value(field))
            *changed = value;
        QTEST(epcPayload(given), "expected");
    }

    void referenceAndText()
    {
        CreditTransfer given = transfer();
        given.reference = QStringLiteral("RF18539007547034");
        given.text = QStringLiteral("Factuur 17");
        QCOMPARE(epcPayload(given), QString());
    }

    void amount_data()
    {
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("field");
        // clang-format off
        QTest::newRow("smallest") << 0.01 << "EUR0.01";
        QTest::newRow("largest") << 999999999.99 << "EUR999999999.99";
        QTest::newRow("rounded to the cent") << 12.345678 << "EUR12.35";
        QTest::newRow("below a cent") << 0.004 << "";
        QTest::newRow("zero") << 0.0 << "";
        QTest::newRow("negative") << -12.3 << "";
        QTest::newRow("above the largest") << 1000000000.0 << "";
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << "";
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "";
        // clang-format on
    }
    void amount()
    {
        QFETCH(double, amount);
        QFETCH(QString, field);
        CreditTransfer given = transfer();
        given.amount = amount;
        const QString expected
            = field.isEmpty() ? QString() : payload("\nQorsoft BV\nBE71096123456769\n" + field);
        QCOMPARE(epcPayload(given), expected);
    }
};

QTEST_APPLESS_MAIN(TestEpcPayload)
#include "tst_epcpayload.moc"
