#include "einvoice/rulecheck.h"

#include "einvoice/invoicetotals.h"
#include "einvoice/rulemessages.h"
#include "einvoice/rules.h"
#include "einvoice/vatcategory.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/modgenlib.h"
#include "payments/bic.h"
#include "payments/iban.h"
#include "validate/vatnumber.h"

#include <QLocale>
#include <QRegularExpression>

namespace qor::einvoice {

using namespace catalogue;

namespace {

const QString countryGermany = QStringLiteral("DE");
const QString countryBelgium = QStringLiteral("BE");
// Greece writes its VAT numbers with EL, Northern Ireland with XI.
const QStringList vatPrefixesBeyondIso { QStringLiteral("EL"), QStringLiteral("XI") };
// The slack the official rules allow between a stated line amount and its
// computation, and between a breakdown's amounts and their sums.
const Decimal lineSlack(2, 2);
const Decimal breakdownSlack(1, 0);
const Decimal hundred = Decimal::fromInt(100);

QString text(qint32 id)
{
    return loadCatalogueText(id);
}

// "Place: what is wrong", or the sentence alone with a capital.
QString sentence(const QString &place, const QString &what)
{
    if (!place.isEmpty())
        return place + QStringLiteral(": ") + what;
    if (what.isEmpty())
        return what;
    return what.at(0).toUpper() + what.mid(1);
}

bool isBlank(const QString &value)
{
    return value.trimmed().isEmpty();
}

// "BT-117 S 21": a business term of the breakdown of a category and rate.
QString breakdownPlace(const QString &term, const VatBreakdown &entry)
{
    QString place = term + QLatin1Char(' ') + entry.category;
    if (entry.rate)
        place += QLatin1Char(' ') + entry.rate->normalized().toString();
    return place;
}

bool within(const Decimal &a, const Decimal &b, const Decimal &slack)
{
    const Decimal difference = a - b;
    return difference.isValid() && !(slack < difference) && !(difference < -slack);
}

bool isCreditTransfer(const QString &code)
{
    return code == PaymentMeansCode::CreditTransfer || code == PaymentMeansCode::SepaCreditTransfer;
}

// The ten digits of a Belgian enterprise number and their check (97 - first
// eight digits modulo 97).
bool isEnterpriseNumber(const QString &number)
{
    static const QRegularExpression tenDigits(QStringLiteral("^[0-9]{10}$"));
    if (!tenDigits.match(number).hasMatch())
        return false;
    return 97 - number.left(8).toLongLong() % 97 == number.mid(8).toInt();
}

// A Belgian VAT number "BE" + ten digits, checked by the library's own VAT check.
bool isBelgianVatNumber(const QString &vatIdentifier)
{
    static const QRegularExpression belgian(QStringLiteral("^BE[0-9]{10}$"));
    if (!belgian.match(vatIdentifier).hasMatch())
        return false;
    QString digits = vatIdentifier.mid(2);
    QString land = countryBelgium;
    return !checkVatNumber(digits, land).refused;
}

bool hasVatPrefix(const QString &vatIdentifier)
{
    const QString prefix = vatIdentifier.left(2);
    if (vatPrefixesBeyondIso.contains(prefix))
        return true;
    if (prefix.size() != 2 || prefix != prefix.toUpper())
        return false;
    return QLocale::codeToTerritory(prefix) != QLocale::AnyTerritory;
}

class RuleCheck
{
public:
    explicit RuleCheck(const Invoice &invoice)
        : m_invoice(invoice)
    { }

    QList<RuleBreach> run()
    {
        checkHeader();
        checkParty(m_invoice.seller, true);
        checkParty(m_invoice.buyer, false);
        for (qsizetype i = 0; i < m_invoice.lines.size(); ++i)
            checkLine(m_invoice.lines[i], i);
        checkDocumentAllowanceCharges();
        checkCategories();
        checkPayment();
        if (m_invoice.statedAmounts)
            checkStatedAmounts(*m_invoice.statedAmounts);
        return m_found;
    }

private:
    void report(QStringView rule, const QString &place, const QString &what)
    {
        m_found.append({ rule.toString(), sentence(place, what) });
    }
    void report(QStringView rule, qint32 textId) { report(rule, QString(), text(textId)); }

    void checkHeader();
    void checkParty(const Party &party, bool seller);
    void checkIdentifier(const Identifier &identifier);
    void checkLine(const InvoiceLine &line, qsizetype index);
    void checkAllowanceCharge(const AllowanceCharge &item, const QString &place, bool onLine);
    void checkPercentage(const AllowanceCharge &item, const QString &place);
    void checkRate(const QString &category, const std::optional<Decimal> &rate,
        const QString &place, CategoryRule rule);
    void checkDocumentAllowanceCharges();
    void checkCategories();
    void checkCategoryIdentifiers(const QString &category, CategoryRule rule);
    void checkPayment();
    void checkStatedAmounts(const InvoiceAmounts &stated);
    void checkStatedBreakdown(const InvoiceAmounts &stated, const QList<Decimal> &lineAmounts);
    void compare(QStringView rule, const QString &place, const Decimal &stated,
        const Decimal &expected, const Decimal &slack = Decimal());

    bool usesCategory(const QString &category) const;
    bool linesUse(const QString &category) const;
    bool documentItemsUse(const QString &category, bool charges) const;

    const Invoice &m_invoice;
    QList<RuleBreach> m_found;
};

void RuleCheck::checkHeader()
{
    const Invoice &inv = m_invoice;
    if (isBlank(inv.number))
        report(Rule::InvoiceNumber, InvoiceNumberMissing);
    if (!inv.issueDate.isValid())
        report(Rule::IssueDate, IssueDateMissing);
    if (isBlank(inv.currency))
        report(Rule::Currency, CurrencyMissing);
    if (inv.lines.isEmpty())
        report(Rule::AtLeastOneLine, NoLines);
    if (isBlank(inv.buyerReference) && isBlank(inv.purchaseOrderReference))
        report(Rule::BuyerOrOrderReference, ReferenceMissing);
    const bool bothGerman = inv.seller.address.countryCode == countryGermany
        && inv.buyer.address.countryCode == countryGermany;
    if (inv.notes.size() > 1 && !bothGerman)
        report(Rule::OneNote, TooManyNotes);
    for (const PrecedingInvoice &preceding : inv.precedingInvoices) {
        if (isBlank(preceding.number))
            report(Rule::PrecedingInvoiceNumber, PrecedingNumberMissing);
    }
    if (inv.periodStart.isValid() && inv.periodEnd.isValid() && inv.periodEnd < inv.periodStart)
        report(Rule::InvoicingPeriodOrder, QString(), text(PeriodOrder));
    if (!inv.vatAccountingCurrency.isEmpty()) {
        if (!inv.vatTotalInAccountingCurrency)
            report(Rule::AccountingCurrencyTotal, AccountingCurrencyTotalMissing);
        if (inv.vatAccountingCurrency == inv.currency)
            report(Rule::AccountingCurrencyDiffers, AccountingCurrencySame);
    }
}

void RuleCheck::checkParty(const Party &party, bool seller)
{
    if (isBlank(party.name))
        report(seller ? Rule::SellerName : Rule::BuyerName,
            seller ? SellerNameMissing : BuyerNameMissing);
    if (isBlank(party.address.countryCode))
        report(seller ? Rule::SellerCountry : Rule::BuyerCountry,
            seller ? SellerCountryMissing : BuyerCountryMissing);
    if (party.electronicAddress.isEmpty())
        report(seller ? Rule::SellerElectronicAddress : Rule::BuyerElectronicAddress,
            seller ? SellerAddressMissing : BuyerAddressMissing);
    else if (party.electronicAddress.scheme.isEmpty())
        report(seller ? Rule::SellerAddressScheme : Rule::BuyerAddressScheme, QString(),
            text(AddressSchemeMissing).arg(party.electronicAddress.id));
    if (seller && party.vatIdentifier.isEmpty() && party.identifiers.isEmpty()
        && party.legalRegistration.isEmpty())
        report(Rule::SellerIdentified, SellerIdentifierMissing);
    if (!party.vatIdentifier.isEmpty()) {
        if (!hasVatPrefix(party.vatIdentifier))
            report(Rule::VatIdentifierPrefix, QString(),
                text(VatPrefixMissing).arg(party.vatIdentifier));
        else if (party.vatIdentifier.startsWith(countryBelgium)
            && !isBelgianVatNumber(party.vatIdentifier))
            report(Rule::BelgianVatNumber, QString(),
                text(BelgianVatInvalid).arg(party.vatIdentifier));
    }
    checkIdentifier(party.electronicAddress);
    checkIdentifier(party.legalRegistration);
    for (const Identifier &identifier : party.identifiers)
        checkIdentifier(identifier);
}

void RuleCheck::checkIdentifier(const Identifier &identifier)
{
    if (identifier.isEmpty())
        return;
    if (identifier.scheme == Scheme::BelgianEnterpriseNumber && !isEnterpriseNumber(identifier.id))
        report(Rule::BelgianEnterpriseNumber, QString(),
            text(EnterpriseNumberInvalid).arg(identifier.id));
    if (identifier.scheme == Scheme::BelgianVatNumber
        && !(identifier.id.startsWith(countryBelgium) && isBelgianVatNumber(identifier.id)))
        report(Rule::BelgianVatNumber, QString(), text(BelgianVatInvalid).arg(identifier.id));
}

void RuleCheck::checkLine(const InvoiceLine &line, qsizetype index)
{
    const QString place
        = text(PlaceLine).arg(line.id.isEmpty() ? QString::number(index + 1) : line.id);
    if (isBlank(line.itemName))
        report(Rule::LineItemName, place, text(ItemNameMissing));
    if (line.netPrice.isNegative())
        report(Rule::LineNetPriceNotNegative, place, text(NetPriceNegative));
    if (isBlank(line.unitCode))
        report(Rule::LineUnit, place, text(UnitCodeMissing));
    if (line.baseQuantity && !(Decimal() < *line.baseQuantity))
        report(Rule::BaseQuantityPositive, place, text(BaseQuantityNotPositive));
    if (line.periodStart.isValid() && line.periodEnd.isValid() && line.periodEnd < line.periodStart)
        report(Rule::LinePeriodOrder, place, text(PeriodOrder));
    if (isBlank(line.vatCategory))
        report(Rule::LineCategory, place, text(CategoryMissing));
    else
        checkRate(line.vatCategory, line.vatRate, place, CategoryRule::LineRate);
    for (qsizetype k = 0; k < line.allowanceCharges.size(); ++k) {
        const AllowanceCharge &item = line.allowanceCharges[k];
        const QString itemPlace = place + QStringLiteral(", ")
            + text(item.isCharge ? PlaceCharge : PlaceAllowance).arg(k + 1);
        checkAllowanceCharge(item, itemPlace, true);
    }
}

void RuleCheck::checkAllowanceCharge(const AllowanceCharge &item, const QString &place, bool onLine)
{
    if (isBlank(item.reason) && isBlank(item.reasonCode)) {
        const char16_t *rule = onLine
            ? (item.isCharge ? Rule::LineChargeReason : Rule::LineAllowanceReason)
            : (item.isCharge ? Rule::ChargeReason : Rule::AllowanceReason);
        report(rule, place, text(ReasonMissing));
    }
    checkPercentage(item, place);
}

void RuleCheck::checkPercentage(const AllowanceCharge &item, const QString &place)
{
    if (item.percentage && !item.baseAmount)
        report(Rule::AllowanceChargeBaseAmount, place, text(PercentageWithoutBase));
    else if (item.baseAmount && !item.percentage)
        report(Rule::AllowanceChargePercentageMissing, place, text(PercentageWithoutBase));
    else if (item.baseAmount && item.percentage) {
        const Decimal expected = (*item.baseAmount * *item.percentage).dividedBy(hundred, 4);
        if (!within(item.amount, expected, lineSlack))
            report(Rule::AllowanceChargePercentage, place, text(PercentageAmount));
    }
}

void RuleCheck::checkRate(const QString &category, const std::optional<Decimal> &rate,
    const QString &place, CategoryRule rule)
{
    const QString id = categoryRuleId(category, rule);
    if (id.isEmpty())
        return;
    if (category == VatCategory::Standard) {
        if (!rate || !(Decimal() < *rate))
            report(id, place, text(StandardRateNeeded));
    } else if (category == VatCategory::OutOfScope) {
        if (rate)
            report(id, place, text(NoRateAllowed));
    } else if (!rate || !rate->isZero()) {
        report(id, place, text(ZeroRateNeeded).arg(category));
    }
}

void RuleCheck::checkDocumentAllowanceCharges()
{
    int allowances = 0;
    int charges = 0;
    for (const AllowanceCharge &item : m_invoice.allowanceCharges) {
        const int number = item.isCharge ? ++charges : ++allowances;
        const QString place = text(item.isCharge ? PlaceCharge : PlaceAllowance).arg(number);
        if (isBlank(item.vatCategory))
            report(item.isCharge ? Rule::ChargeCategory : Rule::AllowanceCategory, place,
                text(CategoryMissing));
        else
            checkRate(item.vatCategory, item.vatRate, place,
                item.isCharge ? CategoryRule::ChargeRate : CategoryRule::AllowanceRate);
        checkAllowanceCharge(item, place, false);
    }
}

bool RuleCheck::linesUse(const QString &category) const
{
    return std::any_of(m_invoice.lines.begin(), m_invoice.lines.end(),
        [&](const InvoiceLine &line) { return line.vatCategory == category; });
}

bool RuleCheck::documentItemsUse(const QString &category, bool charges) const
{
    return std::any_of(m_invoice.allowanceCharges.begin(), m_invoice.allowanceCharges.end(),
        [&](const AllowanceCharge &item) {
            return item.isCharge == charges && item.vatCategory == category;
        });
}

bool RuleCheck::usesCategory(const QString &category) const
{
    return linesUse(category) || documentItemsUse(category, false)
        || documentItemsUse(category, true);
}

void RuleCheck::checkCategoryIdentifiers(const QString &category, CategoryRule rule)
{
    const Party &seller = m_invoice.seller;
    const Party &buyer = m_invoice.buyer;
    const bool sellerVat = !seller.vatIdentifier.isEmpty();
    const bool sellerTaxId = sellerVat || !seller.taxRegistration.isEmpty();
    const bool buyerVat = !buyer.vatIdentifier.isEmpty();
    const QString id = categoryRuleId(category, rule);
    if (category == VatCategory::ReverseCharge) {
        if (!sellerTaxId || !(buyerVat || !buyer.legalRegistration.isEmpty()))
            report(id, ReverseChargeIdentifiers);
    } else if (category == VatCategory::IntraCommunity) {
        if (!sellerVat || !buyerVat)
            report(id, IntraCommunityIdentifiers);
    } else if (category == VatCategory::OutOfScope) {
        if (sellerVat || buyerVat)
            report(id, OutOfScopeIdentifiers);
    } else if (category == VatCategory::Export) {
        if (!sellerVat)
            report(id, QString(), text(SellerVatNeeded).arg(category));
    } else if (!sellerTaxId) {
        report(id, QString(), text(SellerVatNeeded).arg(category));
    }
}

void RuleCheck::checkCategories()
{
    static const QStringList categories { VatCategory::Standard, VatCategory::ZeroRated,
        VatCategory::Exempt, VatCategory::ReverseCharge, VatCategory::IntraCommunity,
        VatCategory::Export, VatCategory::OutOfScope };
    QStringList used;
    for (const QString &category : categories) {
        if (linesUse(category))
            checkCategoryIdentifiers(category, CategoryRule::LineIdentifiers);
        if (documentItemsUse(category, false))
            checkCategoryIdentifiers(category, CategoryRule::AllowanceIdentifiers);
        if (documentItemsUse(category, true))
            checkCategoryIdentifiers(category, CategoryRule::ChargeIdentifiers);
        if (usesCategory(category))
            used.append(category);
    }
    if (used.contains(VatCategory::OutOfScope) && used.size() > 1)
        report(Rule::OutOfScopeAlone, OutOfScopeMixed);
    if (used.contains(VatCategory::IntraCommunity)) {
        const Delivery &delivery = m_invoice.delivery;
        if (!delivery.date.isValid() && !m_invoice.periodStart.isValid()
            && !m_invoice.periodEnd.isValid())
            report(Rule::IntraCommunityDelivery, IntraCommunityDeliveryDate);
        if (isBlank(delivery.address.countryCode))
            report(Rule::IntraCommunityDeliveryCountry, IntraCommunityDeliveryCountry);
    }
    for (const VatExemption &exemption : m_invoice.vatExemptions) {
        const bool given = !isBlank(exemption.reason) || !isBlank(exemption.reasonCode);
        const bool taxed = exemption.category == VatCategory::Standard
            || exemption.category == VatCategory::ZeroRated;
        if (given && taxed && used.contains(exemption.category))
            report(categoryRuleId(exemption.category, CategoryRule::ExemptionReason), QString(),
                text(ExemptionReasonNotAllowed).arg(exemption.category));
    }
    if (used.contains(VatCategory::Exempt)
        && std::none_of(m_invoice.vatExemptions.begin(), m_invoice.vatExemptions.end(),
            [](const VatExemption &exemption) {
                return exemption.category == VatCategory::Exempt
                    && (!isBlank(exemption.reason) || !isBlank(exemption.reasonCode));
            }))
        report(categoryRuleId(VatCategory::Exempt, CategoryRule::ExemptionReason), QString(),
            text(ExemptionReasonNeeded).arg(VatCategory::Exempt));
}

void RuleCheck::checkPayment()
{
    for (const PaymentMeans &means : m_invoice.paymentMeans) {
        if (isBlank(means.code))
            report(Rule::PaymentMeansCode, PaymentCodeMissing);
        if (isCreditTransfer(means.code) && isBlank(means.accountId))
            report(Rule::CreditTransferAccount, TransferAccountMissing);
        if (means.code == PaymentMeansCode::SepaDirectDebit && isBlank(means.mandateReference))
            report(Rule::DirectDebitMandate, MandateMissing);
        // A SEPA transfer pays to an IBAN, and so does any Belgian account;
        // other accounts of a plain transfer may be numbered otherwise.
        const bool sepa = means.code == PaymentMeansCode::SepaCreditTransfer
            || means.accountId.startsWith(countryBelgium);
        if (!sepa)
            continue;
        if (!isBlank(means.accountId) && checkIban(means.accountId) != PaymentCheck::Valid)
            report(Rule::AccountIban, QString(), text(IbanInvalid).arg(means.accountId));
        if (!means.bic.isEmpty() && checkBic(means.bic) != PaymentCheck::Valid)
            report(Rule::AccountBic, QString(), text(BicInvalid).arg(means.bic));
    }
}

void RuleCheck::compare(QStringView rule, const QString &place, const Decimal &stated,
    const Decimal &expected, const Decimal &slack)
{
    if (!within(stated, expected, slack))
        report(rule, place, text(StatedAmountDiffers).arg(stated.toString(), expected.toString()));
}

void RuleCheck::checkStatedAmounts(const InvoiceAmounts &stated)
{
    QList<Decimal> lineAmounts;
    Decimal lineSum(0, amountDecimals);
    for (qsizetype i = 0; i < m_invoice.lines.size(); ++i) {
        const InvoiceLine &line = m_invoice.lines[i];
        const Decimal amount = i < stated.lineNetAmounts.size()
            ? stated.lineNetAmounts[i]
            : line.statedNetAmount.value_or(lineNetAmount(line));
        lineAmounts.append(amount);
        lineSum += amount;
        const QString place
            = text(PlaceLine).arg(line.id.isEmpty() ? QString::number(i + 1) : line.id);
        compare(Rule::LineNetAmount, place, amount, lineNetAmount(line), lineSlack);
    }
    Decimal allowances(0, amountDecimals);
    Decimal charges(0, amountDecimals);
    for (const AllowanceCharge &item : m_invoice.allowanceCharges)
        (item.isCharge ? charges : allowances) += item.amount;
    const DocumentTotals &t = stated.totals;
    compare(Rule::LineNetTotal, QStringLiteral("BT-106"), t.lineNetTotal, lineSum);
    compare(Rule::AllowanceTotal, QStringLiteral("BT-107"), t.allowanceTotal, allowances);
    compare(Rule::ChargeTotal, QStringLiteral("BT-108"), t.chargeTotal, charges);
    compare(Rule::TaxExclusiveAmount, QStringLiteral("BT-109"), t.taxExclusiveAmount,
        lineSum - allowances + charges);
    Decimal vatSum(0, amountDecimals);
    for (const VatBreakdown &entry : stated.vatBreakdown)
        vatSum += entry.taxAmount;
    compare(Rule::VatTotal, QStringLiteral("BT-110"), t.vatTotal, vatSum);
    compare(Rule::TaxInclusiveAmount, QStringLiteral("BT-112"), t.taxInclusiveAmount,
        (t.taxExclusiveAmount + t.vatTotal).rounded(amountDecimals));
    compare(Rule::PayableAmount, QStringLiteral("BT-115"), t.payableAmount,
        (t.taxInclusiveAmount - t.paidAmount + t.roundingAmount).rounded(amountDecimals));
    checkStatedBreakdown(stated, lineAmounts);
}

void RuleCheck::checkStatedBreakdown(
    const InvoiceAmounts &stated, const QList<Decimal> &lineAmounts)
{
    for (const VatBreakdown &entry : stated.vatBreakdown) {
        const auto sameRate = [&](const std::optional<Decimal> &rate) {
            return !entry.rate || !rate ? !entry.rate && !rate : *rate == *entry.rate;
        };
        Decimal taxable(0, amountDecimals);
        for (qsizetype i = 0; i < m_invoice.lines.size(); ++i) {
            const InvoiceLine &line = m_invoice.lines[i];
            if (line.vatCategory == entry.category && sameRate(line.vatRate))
                taxable += lineAmounts[i];
        }
        for (const AllowanceCharge &item : m_invoice.allowanceCharges) {
            if (item.vatCategory == entry.category && sameRate(item.vatRate))
                taxable += item.isCharge ? item.amount : -item.amount;
        }
        const QString taxableRule = categoryRuleId(entry.category, CategoryRule::TaxableAmount);
        if (!taxableRule.isEmpty())
            compare(taxableRule, breakdownPlace(QStringLiteral("BT-116"), entry),
                entry.taxableAmount, taxable, breakdownSlack);
        // A rate of zero wants a tax amount that rounds to zero units.
        const Decimal rate = entry.rate.value_or(Decimal());
        const Decimal expected = rate.isZero()
            ? Decimal(0, amountDecimals)
            : (entry.taxableAmount * rate).dividedBy(hundred, amountDecimals);
        const Decimal slack = rate.isZero() ? Decimal(49, 2) : breakdownSlack;
        compare(Rule::CategoryTaxAmount, breakdownPlace(QStringLiteral("BT-117"), entry),
            entry.taxAmount, expected, slack);
    }
}

} // namespace

QString categoryRuleId(const QString &category, CategoryRule rule)
{
    static const QHash<QString, QString> families {
        { VatCategory::Standard, QStringLiteral("BR-S") },
        { VatCategory::ZeroRated, QStringLiteral("BR-Z") },
        { VatCategory::Exempt, QStringLiteral("BR-E") },
        { VatCategory::ReverseCharge, QStringLiteral("BR-AE") },
        { VatCategory::IntraCommunity, QStringLiteral("BR-IC") },
        { VatCategory::Export, QStringLiteral("BR-G") },
        { VatCategory::OutOfScope, QStringLiteral("BR-O") },
    };
    const QString family = families.value(category);
    if (family.isEmpty())
        return QString();
    return QStringLiteral("%1-%2").arg(family).arg(int(rule), 2, 10, QLatin1Char('0'));
}

QList<RuleBreach> checkRules(const Invoice &invoice, qint32 languageOffset)
{
    useLanguage(languageOffset);
    return RuleCheck(invoice).run();
}

} // namespace qor::einvoice
