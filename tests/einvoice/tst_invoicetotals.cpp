#include "einvoice/invoicetotals.h"

#include <QTest>

using namespace qor::einvoice;

namespace {

std::optional<Decimal> rateOf(const QStringList &parts, qsizetype index)
{
    if (index >= parts.size())
        return std::nullopt;
    return Decimal::parse(parts[index]);
}

// "3 0.335 S 21": quantity, net price, VAT category and rate.
InvoiceLine lineOf(const QString &row)
{
    const QStringList parts = row.split(u' ', Qt::SkipEmptyParts);
    InvoiceLine line;
    line.quantity = Decimal::parse(parts[0]);
    line.netPrice = Decimal::parse(parts[1]);
    line.vatCategory = parts[2];
    line.vatRate = rateOf(parts, 3);
    return line;
}

// "-10.00 S 21" is an allowance, "+5 S 6" a charge.
AllowanceCharge allowanceChargeOf(const QString &row)
{
    const QStringList parts = row.split(u' ', Qt::SkipEmptyParts);
    AllowanceCharge item;
    item.isCharge = parts[0].startsWith(u'+');
    item.amount = Decimal::parse(parts[0].mid(1));
    item.vatCategory = parts[1];
    item.vatRate = rateOf(parts, 2);
    return item;
}

QString breakdownText(const QList<VatBreakdown> &breakdown)
{
    QStringList entries;
    for (const VatBreakdown &entry : breakdown) {
        QString text = entry.category;
        if (entry.rate)
            text += entry.rate->normalized().toString();
        text += u':' + entry.taxableAmount.toString() + u'/' + entry.taxAmount.toString();
        entries.append(text);
    }
    return entries.join(QStringLiteral("; "));
}

} // namespace

class TestInvoiceTotals : public QObject
{
    Q_OBJECT

private slots:
    void amounts_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QStringList>("documentLevel");
        QTest::addColumn<QString>("lineNet");
        QTest::addColumn<QString>("breakdown");
        // BT-106 | 107 | 108 | 109 | 110 | 112 | 113 | 114 | 115
        QTest::addColumn<QString>("totals");
        // clang-format off
        QTest::newRow("3 x 0.335 rounds the line, not the price")
            << QStringList{"3 0.335 S 21"} << QStringList{}
            << "1.01" << "S21:1.01/0.21" << "1.01|0.00|0.00|1.01|0.21|1.22|0.00|0.00|1.22";
        QTest::newRow("VAT rounded per breakdown, not per line")
            << QStringList{"1 0.07 S 21", "1 0.07 S 21"} << QStringList{}
            << "0.07 0.07" << "S21:0.14/0.03" << "0.14|0.00|0.00|0.14|0.03|0.17|0.00|0.00|0.17";
        QTest::newRow("rates 21 and 21.00 share a breakdown")
            << QStringList{"1 10 S 21", "1 10 S 21.00", "1 10 S 6"} << QStringList{}
            << "10.00 10.00 10.00" << "S21:20.00/4.20; S6:10.00/0.60"
            << "30.00|0.00|0.00|30.00|4.80|34.80|0.00|0.00|34.80";
        QTest::newRow("charge of a category without lines adds a breakdown")
            << QStringList{"1 100 S 21"} << QStringList{"+7.50 S 6"}
            << "100.00" << "S21:100.00/21.00; S6:7.50/0.45"
            << "100.00|0.00|7.50|107.50|21.45|128.95|0.00|0.00|128.95";
        // clang-format on
    }
    void amounts()
    {
        QFETCH(QStringList, lines);
        QFETCH(QStringList, documentLevel);
        Invoice invoice;
        for (const QString &row : lines)
            invoice.lines.append(lineOf(row));
        for (const QString &row : documentLevel)
            invoice.allowanceCharges.append(allowanceChargeOf(row));
        const InvoiceAmounts amounts = computeAmounts(invoice);
        QStringList lineNet;
        for (const Decimal &amount : amounts.lineNetAmounts)
            lineNet.append(amount.toString());
        QTEST(lineNet.join(u' '), "lineNet");
        QTEST(breakdownText(amounts.vatBreakdown), "breakdown");
        const DocumentTotals &t = amounts.totals;
        const QStringList totals { t.lineNetTotal.toString(), t.allowanceTotal.toString(),
            t.chargeTotal.toString(), t.taxExclusiveAmount.toString(), t.vatTotal.toString(),
            t.taxInclusiveAmount.toString(), t.paidAmount.toString(), t.roundingAmount.toString(),
            t.payableAmount.toString() };
        QTEST(totals.join(u'|'), "totals");
    }

    // The host's reason wins; without one each category gets its usual code.
    void exemptionReasons()
    {
        Invoice invoice;
        for (const char *line : { "1 10 E 0", "1 10 AE 0", "1 10 K 0", "1 10 G 0", "1 10 O" })
            invoice.lines.append(lineOf(QLatin1String(line)));
        invoice.vatExemptions = { { QStringLiteral("E"), QStringLiteral("Art. 44"),
            QStringLiteral("VATEX-EU-132") } };
        const InvoiceAmounts amounts = computeAmounts(invoice);
        QCOMPARE(amounts.vatBreakdown[0].exemptionReason, QStringLiteral("Art. 44"));
        QStringList codes;
        for (const VatBreakdown &entry : amounts.vatBreakdown)
            codes.append(entry.category + u' ' + entry.exemptionReasonCode);
        QCOMPARE(codes,
            QStringList({ "E VATEX-EU-132", "AE VATEX-EU-AE", "K VATEX-EU-IC", "G VATEX-EU-G",
                "O VATEX-EU-O" }));
    }

    void differences_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("places");
        // clang-format off
        QTest::newRow("same values at another scale") << "scale" << "";
        QTest::newRow("line net amount") << "line" << "BT-131 of line 2";
        QTest::newRow("stated line missing") << "dropLine" << "BT-131 of line 2";
        QTest::newRow("tax of a breakdown") << "tax" << "BT-117 of VAT S 6";
        QTest::newRow("breakdown not computed") << "extraBreakdown" << "BT-116 of VAT Z 0";
        // clang-format on
    }
    void differences()
    {
        QFETCH(QString, change);
        Invoice invoice;
        invoice.lines = { lineOf(QStringLiteral("1 10 S 21")), lineOf(QStringLiteral("2 5 S 6")) };
        const InvoiceAmounts computed = computeAmounts(invoice);
        InvoiceAmounts stated = computed;
        if (change == u"scale")
            stated.totals.payableAmount = stated.totals.payableAmount.withScale(4);
        else if (change == u"line")
            stated.lineNetAmounts[1] = Decimal::parse(u"10.01");
        else if (change == u"dropLine")
            stated.lineNetAmounts.removeLast();
        else if (change == u"tax")
            stated.vatBreakdown[1].taxAmount = Decimal::parse(u"0.61");
        else if (change == u"extraBreakdown")
            stated.vatBreakdown.append(
                { QStringLiteral("Z"), Decimal::parse(u"0"), {}, {}, {}, {} });
        QStringList places;
        for (const AmountDifference &difference : compareAmounts(stated, computed))
            places.append(difference.place);
        QTEST(places.join(QStringLiteral(", ")), "places");
    }
};

QTEST_APPLESS_MAIN(TestInvoiceTotals)
#include "tst_invoicetotals.moc"
