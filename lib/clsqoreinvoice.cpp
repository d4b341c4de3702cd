#include "lib/clsqoreinvoice.h"

#include "einvoice/hostvalue.h"
#include "einvoice/invoicejson.h"
#include "einvoice/invoicetotals.h"
#include "einvoice/rulecheck.h"
#include "einvoice/ublreader.h"
#include "einvoice/ublwriter.h"
#include "einvoice/vatcategory.h"
#include "lib/latebinding.h"
#include "lib/typelibrary.h"
#include "runtime/dates.h"
#include "runtime/runtimeerror.h"

#include "platform/filesystem.h"

#include <QFile>
#include <QJsonDocument>

using namespace qor;
using namespace qor::einvoice;

namespace {

constexpr int invalidArgument = 5;
constexpr int pathFileAccessError = 75;
const Decimal standardBelgianRate = Decimal::fromInt(21);
const QString structuredMark = QStringLiteral("+++");

QDate dateOf(const QDateTime &value)
{
    const QDate date = value.date();
    return date.isValid() && date > zeroDate() ? date : QDate();
}

QDateTime propertyDate(const QDate &date)
{
    return QDateTime(date.isValid() ? date : zeroDate(), QTime(0, 0));
}

// Letters and digits only, upper case: "be 0123.456.749" -> "BE0123456749".
QString compact(const QString &number)
{
    QString result;
    for (QChar c : number) {
        if (c.isLetterOrNumber())
            result.append(c.toUpper());
    }
    return result;
}

// Twelve digits become "+++000/0000/00000+++"; anything else stays as given.
QString remittanceOf(const QString &reference)
{
    const QString digits = compact(reference);
    const bool structured = digits.size() == 12
        && std::all_of(digits.begin(), digits.end(), [](QChar c) { return c.isDigit(); });
    if (!structured)
        return reference.trimmed();
    return structuredMark + digits.left(3) + QLatin1Char('/') + digits.mid(3, 4) + QLatin1Char('/')
        + digits.mid(7) + structuredMark;
}

// "0208:0123456749" -> the identifier; without a colon the id alone.
Identifier identifierOf(const QString &schemeAndId)
{
    const qsizetype colon = schemeAndId.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return { schemeAndId.trimmed(), QString() };
    return { schemeAndId.mid(colon + 1).trimmed(), schemeAndId.left(colon).trimmed() };
}

QString textOf(const Identifier &identifier)
{
    if (identifier.scheme.isEmpty())
        return identifier.id;
    return identifier.scheme + QLatin1Char(':') + identifier.id;
}

// A rate left out: 21 for category S, none for O, 0 for the others.
std::optional<Decimal> rateFor(const QString &category, const QVariant &rate)
{
    if (!VatCategory::hasRate(category))
        return std::nullopt;
    if (const std::optional<Decimal> given = optionalDecimalFromHost(rate))
        return given;
    return category == VatCategory::Standard ? standardBelgianRate : Decimal::fromInt(0);
}

double amountOf(const Decimal &amount)
{
    return amount.toString().toDouble();
}

} // namespace

struct clsqorEInvoice::PartyProperties
{
    QString &name;
    QString &street;
    QString &postalCode;
    QString &city;
    QString &country;
    QString &vat;
    QString &enterpriseNr;
    QString &peppolId;
    QString &contact;
    QString &phone;
    QString &email;

    void writeTo(Party &party) const
    {
        party.name = name;
        party.address.streetName = street;
        party.address.postalZone = postalCode;
        party.address.cityName = city;
        party.address.countryCode = country.trimmed().toUpper();
        party.vatIdentifier = compact(vat);
        const QString enterprise = compact(enterpriseNr);
        if (enterprise != party.legalRegistration.id)
            party.legalRegistration = enterprise.isEmpty()
                ? Identifier()
                : Identifier { enterprise, QString::fromUtf16(Scheme::BelgianEnterpriseNumber) };
        party.electronicAddress
            = peppolId.isEmpty() ? party.legalRegistration : identifierOf(peppolId);
        party.contact = { contact, phone, email };
    }

    void readFrom(const Party &party) const
    {
        name = party.name;
        street = party.address.streetName;
        postalCode = party.address.postalZone;
        city = party.address.cityName;
        country = party.address.countryCode;
        vat = party.vatIdentifier;
        enterpriseNr = party.legalRegistration.id;
        peppolId = party.electronicAddress == party.legalRegistration
            ? QString()
            : textOf(party.electronicAddress);
        contact = party.contact.name;
        phone = party.contact.telephone;
        email = party.contact.email;
    }
};

clsqorEInvoice::clsqorEInvoice(QObject *parent)
    : QObject(parent)
    , m_rest(std::make_unique<Invoice>())
{
    Clear();
}

clsqorEInvoice::~clsqorEInvoice() = default;

const TypeLibrary &clsqorEInvoice::typeLibrary()
{
    static const TypeLibrary library(&clsqorEInvoice::staticMetaObject, {}, {});
    return library;
}

QVariant clsqorEInvoice::Invoke(const QString &name, QVariantList &args)
{
    return LateBinding(this, typeLibrary()).invoke(name, args);
}

clsqorEInvoice::PartyProperties clsqorEInvoice::partyProperties(bool seller)
{
    if (seller)
        return { m_SellerName, m_SellerStreet, m_SellerPostalCode, m_SellerCity, m_SellerCountry,
            m_SellerVAT, m_SellerEnterpriseNr, m_SellerPeppolID, m_SellerContact, m_SellerPhone,
            m_SellerEmail };
    return { m_BuyerName, m_BuyerStreet, m_BuyerPostalCode, m_BuyerCity, m_BuyerCountry, m_BuyerVAT,
        m_BuyerEnterpriseNr, m_BuyerPeppolID, m_BuyerContact, m_BuyerPhone, m_BuyerEmail };
}

Invoice clsqorEInvoice::document()
{
    // Fields the properties leave as they were keep what a loaded document said.
    Invoice invoice = *m_rest;
    invoice.kind
        = m_DocumentType == TypeCode::CreditNote ? DocumentKind::CreditNote : DocumentKind::Invoice;
    if (m_DocumentType != m_rest->effectiveTypeCode())
        invoice.typeCode = m_DocumentType;
    invoice.number = m_Number;
    invoice.issueDate = dateOf(m_IssueDate);
    invoice.dueDate = dateOf(m_DueDate);
    invoice.delivery.date = dateOf(m_DeliveryDate);
    invoice.currency = m_Currency;
    invoice.buyerReference = m_BuyerReference;
    invoice.purchaseOrderReference = m_OrderReference;
    if (m_Note != m_rest->notes.join(QLatin1Char('\n')))
        invoice.notes = m_Note.isEmpty() ? QStringList() : QStringList { m_Note };
    if (!invoice.precedingInvoices.isEmpty())
        invoice.precedingInvoices.removeFirst();
    if (!m_PrecedingInvoice.isEmpty())
        invoice.precedingInvoices.prepend({ m_PrecedingInvoice,
            m_rest->precedingInvoices.value(0).number == m_PrecedingInvoice
                ? m_rest->precedingInvoices.first().issueDate
                : QDate() });
    invoice.paymentTerms = m_PaymentTerms;
    writePaymentMeans(invoice);
    if (!m_rest->paidAmount || amountOf(*m_rest->paidAmount) != m_PaidAmount)
        invoice.paidAmount
            = m_PaidAmount == 0 ? std::nullopt : std::optional(decimalFromHost(m_PaidAmount));
    partyProperties(true).writeTo(invoice.seller);
    partyProperties(false).writeTo(invoice.buyer);
    return invoice;
}

void clsqorEInvoice::writePaymentMeans(Invoice &invoice) const
{
    PaymentMeans means = invoice.paymentMeans.value(0, PaymentMeans());
    if (!invoice.paymentMeans.isEmpty())
        invoice.paymentMeans.removeFirst();
    if (m_IBAN.isEmpty() && m_PaymentReference.isEmpty())
        return;
    means.code = m_PaymentMeansCode;
    means.accountId = compact(m_IBAN);
    means.bic = compact(m_BIC);
    if (m_PaymentReference != means.remittanceInformation)
        means.remittanceInformation = remittanceOf(m_PaymentReference);
    invoice.paymentMeans.prepend(means);
}

void clsqorEInvoice::setDocument(const Invoice &invoice)
{
    *m_rest = invoice;
    m_DocumentType = invoice.effectiveTypeCode();
    m_Number = invoice.number;
    m_IssueDate = propertyDate(invoice.issueDate);
    m_DueDate = propertyDate(invoice.dueDate);
    m_DeliveryDate = propertyDate(invoice.delivery.date);
    m_Currency = invoice.currency;
    m_BuyerReference = invoice.buyerReference;
    m_OrderReference = invoice.purchaseOrderReference;
    m_Note = invoice.notes.join(QLatin1Char('\n'));
    m_PrecedingInvoice = invoice.precedingInvoices.isEmpty()
        ? QString()
        : invoice.precedingInvoices.first().number;
    m_PaymentTerms = invoice.paymentTerms;
    const PaymentMeans means = invoice.paymentMeans.value(0, PaymentMeans());
    m_PaymentMeansCode = means.code;
    m_IBAN = means.accountId;
    m_BIC = means.bic;
    m_PaymentReference = means.remittanceInformation;
    m_PaidAmount = invoice.paidAmount ? amountOf(*invoice.paidAmount) : 0;
    partyProperties(true).readFrom(invoice.seller);
    partyProperties(false).readFrom(invoice.buyer);
}

qint32 clsqorEInvoice::AddLine(const QString &ItemName, const QVariant &Quantity,
    const QVariant &Price, const QVariant &VATRate, const QString &UnitCode,
    const QString &VATCategory, const QString &ItemID, const QString &GTIN)
{
    InvoiceLine line;
    line.id = QString::number(m_rest->lines.size() + 1);
    line.itemName = ItemName;
    line.quantity = decimalFromHost(Quantity);
    line.netPrice = decimalFromHost(Price);
    line.unitCode = UnitCode;
    line.vatCategory = VATCategory;
    line.vatRate = rateFor(VATCategory, VATRate);
    line.sellersItemId = ItemID;
    if (!GTIN.isEmpty())
        line.standardItemId = { GTIN, QString::fromUtf16(Scheme::Gtin) };
    m_rest->lines.append(line);
    return qint32(m_rest->lines.size());
}

qint32 clsqorEInvoice::AddAllowanceCharge(bool Charge, const QVariant &Amount,
    const QString &Reason, const QString &ReasonCode, const QVariant &VATRate,
    const QString &VATCategory, qint32 LineNr)
{
    if (LineNr < 0 || LineNr > m_rest->lines.size())
        throw RuntimeError::subscriptOutOfRange();
    AllowanceCharge item;
    item.isCharge = Charge;
    item.amount = decimalFromHost(Amount);
    item.reason = Reason;
    item.reasonCode = ReasonCode;
    QList<AllowanceCharge> &list
        = LineNr == 0 ? m_rest->allowanceCharges : m_rest->lines[LineNr - 1].allowanceCharges;
    if (LineNr == 0) {
        item.vatCategory = VATCategory;
        item.vatRate = rateFor(VATCategory, VATRate);
    }
    list.append(item);
    return qint32(list.size());
}

void clsqorEInvoice::SetExemption(
    const QString &VATCategory, const QString &Reason, const QString &ReasonCode)
{
    QList<VatExemption> &exemptions = m_rest->vatExemptions;
    exemptions.removeIf([&](const VatExemption &e) { return e.category == VATCategory; });
    exemptions.append({ VATCategory, Reason, ReasonCode });
}

QVariant clsqorEInvoice::Check()
{
    QVariantList found;
    for (const RuleBreach &breach : checkRules(document(), m_Offset))
        found.append(QVariant(QVariantList { breach.ruleId, breach.message }));
    return found;
}

bool clsqorEInvoice::SaveUBL(const QString &FileName)
{
    const Invoice invoice = document();
    if (!checkRules(invoice, m_Offset).isEmpty())
        return false;
    // Through the platform's door, which writes a whole file or none.
    if (!FileSystem::current().writeFile(FileName, writeUbl(invoice)))
        throw RuntimeError(pathFileAccessError, QStringLiteral("Path/File access error"));
    return true;
}

void clsqorEInvoice::LoadUBL(const QString &FileName)
{
    QFile file(FileName);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError::fileNotFound();
    const UblReadResult read = readUbl(file.read(maxUblDocumentSize + 1));
    if (!read.ok())
        throw RuntimeError(invalidArgument, read.errors.first());
    setDocument(read.invoice);
}

QString clsqorEInvoice::GetUBL()
{
    return QString::fromUtf8(writeUbl(document()));
}

QString clsqorEInvoice::GetJSON()
{
    return QString::fromUtf8(QJsonDocument(invoiceToJson(document())).toJson());
}

void clsqorEInvoice::SetJSON(const QString &Text)
{
    QJsonParseError parseError;
    const QJsonDocument json = QJsonDocument::fromJson(Text.toUtf8(), &parseError);
    if (!json.isObject())
        throw RuntimeError(
            5, QStringLiteral("Not a JSON object at character %1").arg(parseError.offset));
    const InvoiceFromJson read = invoiceFromJson(json.object());
    if (!read.errors.isEmpty())
        throw RuntimeError(invalidArgument, read.errors.first());
    setDocument(read.invoice);
}

void clsqorEInvoice::Clear()
{
    const qint32 offset = m_Offset;
    Invoice fresh;
    fresh.paymentMeans.append(PaymentMeans());
    setDocument(fresh);
    m_Offset = offset;
}

qint32 clsqorEInvoice::LineCount() const
{
    return qint32(m_rest->lines.size());
}

double clsqorEInvoice::TotalExclVAT()
{
    return amountOf(computeAmounts(document()).totals.taxExclusiveAmount);
}

double clsqorEInvoice::TotalVAT()
{
    return amountOf(computeAmounts(document()).totals.vatTotal);
}

double clsqorEInvoice::TotalInclVAT()
{
    return amountOf(computeAmounts(document()).totals.taxInclusiveAmount);
}

double clsqorEInvoice::AmountDue()
{
    return amountOf(computeAmounts(document()).totals.payableAmount);
}
