#include "einvoice/rulecheck.h"
#include "einvoice/rules.h"
#include "einvoice/ublwriter.h"

#include "officialrules.h"
#include "testinvoices.h"

#include <QTemporaryDir>
#include <QTest>

#include <functional>

using namespace qor::einvoice;

namespace {

using Breakage = std::function<void(Invoice &)>;

// A valid Belgian invoice: two lines at 21 % and 6 %, a structured
// communication, IBAN and BIC.
Invoice validInvoice()
{
    return test::readInvoiceFile(
        QStringLiteral(QOR_EINVOICE_TEST_DATA "/invoices/01-two-rates.json"))
        .invoice;
}

AllowanceCharge allowance(const char *amount, const char *reason)
{
    AllowanceCharge item;
    item.amount = Decimal::parse(QString::fromLatin1(amount));
    item.vatCategory = QStringLiteral("S");
    item.vatRate = Decimal::fromInt(21);
    item.reason = QLatin1String(reason);
    return item;
}

void makeLineCategory(Invoice &inv, const char *category, std::optional<Decimal> rate)
{
    inv.lines[1].vatCategory = QLatin1String(category);
    inv.lines[1].vatRate = rate;
}

struct Row
{
    const char *name;
    const char16_t *rule;
    Breakage breakIt;
};

// Models that break one rule each, and the rule the official rules report.
const QList<Row> &brokenModels()
{
    static const QList<Row> rows {
        { "no invoice number", Rule::InvoiceNumber, [](Invoice &i) { i.number.clear(); } },
        { "no issue date", Rule::IssueDate, [](Invoice &i) { i.issueDate = QDate(); } },
        { "no seller name", Rule::SellerName, [](Invoice &i) { i.seller.name.clear(); } },
        { "no buyer name", Rule::BuyerName, [](Invoice &i) { i.buyer.name.clear(); } },
        { "no seller country", Rule::SellerCountry,
            [](Invoice &i) { i.seller.address.countryCode.clear(); } },
        { "no buyer country", Rule::BuyerCountry,
            [](Invoice &i) { i.buyer.address.countryCode.clear(); } },
        { "no lines", Rule::AtLeastOneLine, [](Invoice &i) { i.lines.clear(); } },
        { "neither buyer nor order reference", Rule::BuyerOrOrderReference,
            [](Invoice &i) { i.buyerReference.clear(); } },
        { "two notes", Rule::OneNote, [](Invoice &i) { i.notes.append(QStringLiteral("b")); } },
        { "no seller electronic address", Rule::SellerElectronicAddress,
            [](Invoice &i) { i.seller.electronicAddress = {}; } },
        { "no buyer electronic address", Rule::BuyerElectronicAddress,
            [](Invoice &i) { i.buyer.electronicAddress = {}; } },
        { "enterprise number with wrong check digits", Rule::BelgianEnterpriseNumber,
            [](Invoice &i) { i.buyer.legalRegistration.id = QStringLiteral("0812345604"); } },
        { "VAT number without country prefix", Rule::VatIdentifierPrefix,
            [](Invoice &i) { i.buyer.vatIdentifier = QStringLiteral("0812345603"); } },
        { "line without item name", Rule::LineItemName,
            [](Invoice &i) { i.lines[0].itemName.clear(); } },
        { "negative net price", Rule::LineNetPriceNotNegative,
            [](Invoice &i) { i.lines[0].netPrice = Decimal::parse(u"-0.12"); } },
        { "standard rate of zero", u"BR-S-05",
            [](Invoice &i) { makeLineCategory(i, "S", Decimal::fromInt(0)); } },
        { "zero-rated line with a rate", u"BR-Z-05",
            [](Invoice &i) { makeLineCategory(i, "Z", Decimal::fromInt(6)); } },
        { "reverse charge without buyer identifiers", u"BR-AE-02",
            [](Invoice &i) {
                makeLineCategory(i, "AE", Decimal::fromInt(0));
                i.buyer.vatIdentifier.clear();
                i.buyer.legalRegistration = {};
            } },
        { "intra-community without delivery country", Rule::IntraCommunityDeliveryCountry,
            [](Invoice &i) { makeLineCategory(i, "K", Decimal::fromInt(0)); } },
        { "exempt without reason", u"BR-E-10",
            [](Invoice &i) { makeLineCategory(i, "E", Decimal::fromInt(0)); } },
        { "out of scope beside standard", Rule::OutOfScopeAlone,
            [](Invoice &i) { makeLineCategory(i, "O", std::nullopt); } },
        { "allowance without reason", Rule::AllowanceReason,
            [](Invoice &i) { i.allowanceCharges.append(allowance("5.00", "")); } },
        { "line charge without reason", Rule::LineChargeReason,
            [](Invoice &i) {
                AllowanceCharge charge = allowance("1.00", "");
                charge.isCharge = true;
                i.lines[0].allowanceCharges.append(charge);
            } },
        { "percentage that does not give the amount", Rule::AllowanceChargePercentage,
            [](Invoice &i) {
                AllowanceCharge item = allowance("5.00", "Korting");
                item.baseAmount = Decimal::parse(u"30.00");
                item.percentage = Decimal::fromInt(10);
                i.allowanceCharges.append(item);
            } },
        { "credit transfer without account", Rule::CreditTransferAccount,
            [](Invoice &i) { i.paymentMeans[0].accountId.clear(); } },
        { "direct debit without mandate", Rule::DirectDebitMandate,
            [](Invoice &i) { i.paymentMeans[0].code = QStringLiteral("59"); } },
        { "accounting currency without its total", Rule::AccountingCurrencyTotal,
            [](Invoice &i) { i.vatAccountingCurrency = QStringLiteral("USD"); } },
        { "period ending before it starts", Rule::InvoicingPeriodOrder,
            [](Invoice &i) {
                i.periodStart = QDate(2026, 1, 31);
                i.periodEnd = QDate(2026, 1, 1);
            } },
    };
    return rows;
}

} // namespace

class TestRuleCheck : public QObject
{
    Q_OBJECT

private slots:
    // Every broken model is written as it is and shown to the official rules
    // in one run.
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        QStringList files;
        for (const Row &row : brokenModels()) {
            Invoice invoice = validInvoice();
            row.breakIt(invoice);
            QFile out(m_dir.filePath(QString::fromLatin1(row.name).replace(u' ', u'-') + ".xml"));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(writeUbl(invoice));
            files.append(out.fileName());
        }
        QVERIFY2(m_rules.run(files), qPrintable(m_rules.output()));
    }

    void brokenModelIsRefused_data()
    {
        QTest::addColumn<QString>("rule");
        QTest::addColumn<int>("row");
        for (qsizetype i = 0; i < brokenModels().size(); ++i)
            QTest::newRow(brokenModels()[i].name)
                << QString::fromUtf16(brokenModels()[i].rule) << int(i);
    }
    // The library refuses the model with the very rule the official rules report.
    void brokenModelIsRefused()
    {
        QFETCH(QString, rule);
        QFETCH(int, row);
        Invoice invoice = validInvoice();
        brokenModels()[row].breakIt(invoice);
        QStringList found;
        for (const RuleBreach &breach : checkRules(invoice))
            found.append(breach.ruleId);
        QVERIFY2(found.contains(rule), qPrintable(found.join(u' ')));
        const QString file = m_dir.filePath(
            QString::fromLatin1(brokenModels()[row].name).replace(u' ', u'-') + ".xml");
        const QString official = m_rules.resultOf(file);
        QVERIFY2(official.contains(rule + u':'), qPrintable(official));
    }

    void belgianCheckRefuses_data()
    {
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("value");
        QTest::newRow("VAT number, wrong check digits") << "QORGEN-BE-VAT"
                                                        << "BE0812345604";
        QTest::newRow("IBAN, wrong check digits") << "QORGEN-IBAN"
                                                  << "BE48001123456728";
        QTest::newRow("BIC of seven letters") << "QORGEN-BIC"
                                              << "GEBABEB";
    }
    // The Belgian identifiers the official rules take as they come.
    void belgianCheckRefuses()
    {
        QFETCH(QString, rule);
        QFETCH(QString, value);
        Invoice invoice = validInvoice();
        if (rule == u"QORGEN-BE-VAT")
            invoice.buyer.vatIdentifier = value;
        else if (rule == u"QORGEN-IBAN")
            invoice.paymentMeans[0].accountId = value;
        else
            invoice.paymentMeans[0].bic = value;
        const QList<RuleBreach> found = checkRules(invoice);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first().ruleId, rule);
        QVERIFY2(found.first().message.contains(value), qPrintable(found.first().message));
    }

    // The message speaks the host's language (offset 10000: French).
    void messageInHostLanguage()
    {
        Invoice invoice = validInvoice();
        invoice.lines[0].itemName.clear();
        const QList<RuleBreach> found = checkRules(invoice, 10000);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first().message, QStringLiteral("Ligne 1: le nom de l'article manque."));
    }

private:
    QTemporaryDir m_dir;
    test::OfficialRules m_rules;
};

QTEST_GUILESS_MAIN(TestRuleCheck)
#include "tst_rulecheck.moc"
