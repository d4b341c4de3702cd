#include "einvoice/invoicetotals.h"

#include "einvoice/vatcategory.h"

#include <algorithm>

namespace qor::einvoice {

namespace {

const Decimal hundred = Decimal::fromInt(100);

Decimal zeroAmount()
{
    return Decimal(0, amountDecimals);
}

Decimal money(const Decimal &value)
{
    return value.withScale(amountDecimals);
}

// The net effect of allowances and charges: charges add, allowances subtract.
Decimal allowanceChargeSum(const QList<AllowanceCharge> &list, bool charges)
{
    Decimal sum = zeroAmount();
    for (const AllowanceCharge &item : list) {
        if (item.isCharge == charges)
            sum += item.amount;
    }
    return sum;
}

bool sameRate(const std::optional<Decimal> &a, const std::optional<Decimal> &b)
{
    if (a.has_value() != b.has_value())
        return false;
    return !a || *a == *b;
}

// The breakdown entry of a category and rate, added when it is new.
VatBreakdown &breakdownFor(
    QList<VatBreakdown> &breakdown, const QString &category, const std::optional<Decimal> &rate)
{
    for (VatBreakdown &entry : breakdown) {
        if (entry.category == category && sameRate(entry.rate, rate))
            return entry;
    }
    VatBreakdown entry;
    entry.category = category;
    entry.rate = rate;
    entry.taxableAmount = zeroAmount();
    breakdown.append(entry);
    return breakdown.last();
}

void fillTaxAndReason(VatBreakdown &entry, const Invoice &invoice)
{
    if (VatCategory::hasZeroVat(entry.category) || !entry.rate)
        entry.taxAmount = zeroAmount();
    else
        entry.taxAmount = (entry.taxableAmount * *entry.rate).dividedBy(hundred, amountDecimals);
    for (const VatExemption &exemption : invoice.vatExemptions) {
        if (exemption.category == entry.category) {
            entry.exemptionReason = exemption.reason;
            entry.exemptionReasonCode = exemption.reasonCode;
            return;
        }
    }
    entry.exemptionReasonCode = VatCategory::defaultExemptionCode(entry.category);
}

QString rateText(const std::optional<Decimal> &rate)
{
    return rate ? QLatin1Char(' ') + rate->normalized().toString() : QString();
}

void compareOne(QList<AmountDifference> &differences, const QString &place, const Decimal &stated,
    const Decimal &computed)
{
    if (stated != computed)
        differences.append({ place, stated.toString(), computed.toString() });
}

} // namespace

Decimal lineNetAmount(const InvoiceLine &line)
{
    const Decimal baseQuantity = line.baseQuantity.value_or(Decimal::fromInt(1));
    Decimal amount = (line.quantity * line.netPrice).dividedBy(baseQuantity, amountDecimals);
    amount += allowanceChargeSum(line.allowanceCharges, true);
    amount -= allowanceChargeSum(line.allowanceCharges, false);
    return amount;
}

InvoiceAmounts computeAmounts(const Invoice &invoice)
{
    InvoiceAmounts result;
    DocumentTotals &totals = result.totals;
    totals.lineNetTotal = zeroAmount();
    for (const InvoiceLine &line : invoice.lines) {
        const Decimal net = money(lineNetAmount(line));
        result.lineNetAmounts.append(net);
        totals.lineNetTotal += net;
        breakdownFor(result.vatBreakdown, line.vatCategory, line.vatRate).taxableAmount += net;
    }
    for (const AllowanceCharge &item : invoice.allowanceCharges) {
        const Decimal signedAmount = item.isCharge ? item.amount : -item.amount;
        breakdownFor(result.vatBreakdown, item.vatCategory, item.vatRate).taxableAmount
            += signedAmount;
    }
    totals.allowanceTotal = allowanceChargeSum(invoice.allowanceCharges, false);
    totals.chargeTotal = allowanceChargeSum(invoice.allowanceCharges, true);
    totals.taxExclusiveAmount = totals.lineNetTotal - totals.allowanceTotal + totals.chargeTotal;
    totals.vatTotal = zeroAmount();
    for (VatBreakdown &entry : result.vatBreakdown) {
        entry.taxableAmount = money(entry.taxableAmount);
        fillTaxAndReason(entry, invoice);
        totals.vatTotal += entry.taxAmount;
    }
    totals.vatTotalInAccountingCurrency = invoice.vatTotalInAccountingCurrency;
    totals.taxInclusiveAmount = totals.taxExclusiveAmount + totals.vatTotal;
    totals.paidAmount = money(invoice.paidAmount.value_or(zeroAmount()));
    totals.roundingAmount = money(invoice.roundingAmount.value_or(zeroAmount()));
    totals.payableAmount = totals.taxInclusiveAmount - totals.paidAmount + totals.roundingAmount;
    return result;
}

InvoiceAmounts amountsToWrite(const Invoice &invoice)
{
    return invoice.statedAmounts ? *invoice.statedAmounts : computeAmounts(invoice);
}

QList<AmountDifference> compareAmounts(const InvoiceAmounts &stated, const InvoiceAmounts &computed)
{
    QList<AmountDifference> differences;
    const qsizetype lines = qMax(stated.lineNetAmounts.size(), computed.lineNetAmounts.size());
    for (qsizetype i = 0; i < lines; ++i) {
        const QString place = QStringLiteral("BT-131 of line %1").arg(i + 1);
        if (i >= stated.lineNetAmounts.size())
            differences.append({ place, QString(), computed.lineNetAmounts[i].toString() });
        else if (i >= computed.lineNetAmounts.size())
            differences.append({ place, stated.lineNetAmounts[i].toString(), QString() });
        else
            compareOne(differences, place, stated.lineNetAmounts[i], computed.lineNetAmounts[i]);
    }
    QList<VatBreakdown> unmatched = computed.vatBreakdown;
    for (const VatBreakdown &entry : stated.vatBreakdown) {
        const QString where
            = QStringLiteral(" of VAT %1%2").arg(entry.category, rateText(entry.rate));
        auto match = std::find_if(unmatched.begin(), unmatched.end(), [&](const VatBreakdown &c) {
            return c.category == entry.category && sameRate(c.rate, entry.rate);
        });
        if (match == unmatched.end()) {
            differences.append(
                { QStringLiteral("BT-116") + where, entry.taxableAmount.toString(), QString() });
            continue;
        }
        compareOne(differences, QStringLiteral("BT-116") + where, entry.taxableAmount,
            match->taxableAmount);
        compareOne(
            differences, QStringLiteral("BT-117") + where, entry.taxAmount, match->taxAmount);
        unmatched.erase(match);
    }
    for (const VatBreakdown &entry : unmatched) {
        const QString where
            = QStringLiteral(" of VAT %1%2").arg(entry.category, rateText(entry.rate));
        differences.append(
            { QStringLiteral("BT-116") + where, QString(), entry.taxableAmount.toString() });
    }
    const DocumentTotals &s = stated.totals;
    const DocumentTotals &c = computed.totals;
    compareOne(differences, QStringLiteral("BT-106"), s.lineNetTotal, c.lineNetTotal);
    compareOne(differences, QStringLiteral("BT-107"), s.allowanceTotal, c.allowanceTotal);
    compareOne(differences, QStringLiteral("BT-108"), s.chargeTotal, c.chargeTotal);
    compareOne(differences, QStringLiteral("BT-109"), s.taxExclusiveAmount, c.taxExclusiveAmount);
    compareOne(differences, QStringLiteral("BT-110"), s.vatTotal, c.vatTotal);
    compareOne(differences, QStringLiteral("BT-112"), s.taxInclusiveAmount, c.taxInclusiveAmount);
    compareOne(differences, QStringLiteral("BT-113"), s.paidAmount, c.paidAmount);
    compareOne(differences, QStringLiteral("BT-114"), s.roundingAmount, c.roundingAmount);
    compareOne(differences, QStringLiteral("BT-115"), s.payableAmount, c.payableAmount);
    return differences;
}

} // namespace qor::einvoice
