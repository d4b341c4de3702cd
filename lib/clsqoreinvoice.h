#pragma once

#include "qorgenlib_export.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

namespace qor {
class TypeLibrary;
namespace einvoice {
struct Invoice;
}
} // namespace qor

/// An e-invoice for late-bound hosts: one invoice or credit note, filled
/// through its properties and AddLine / AddAllowanceCharge, checked against
/// the rules of the e-invoice norm and the Peppol profile, and saved or loaded
/// as a Peppol BIS Billing 3.0 UBL document. Every method and property can
/// be reached by name through Invoke and through the qorgen bridge
/// ("object": "clsqorEInvoice").
///
/// Amounts, quantities, prices and rates are Variants: a text is read as an
/// exact decimal ("12.50" or "12,50"), a number to 15 significant digits. A
/// value that is no number raises run-time error 13, one beyond 18 digits 6.
/// Dates left at the zero date (1899-12-30) are not given.
///
/// Optional arguments are published as class info, as on clsqorGenLib.
class QORGENLIB_EXPORT clsqorEInvoice : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("AddLine",
        "{\"VATRate\": null, \"UnitCode\": \"C62\", \"VATCategory\": \"S\", \"ItemID\": \"\", "
        "\"GTIN\": \"\"}")
    Q_CLASSINFO("AddAllowanceCharge",
        "{\"ReasonCode\": \"\", \"VATRate\": null, \"VATCategory\": \"S\", \"LineNr\": 0}")
    Q_CLASSINFO("SetExemption", "{\"ReasonCode\": \"\"}")

    /// The language of the rule messages: 0 Dutch, 10000 French, 20000 English.
    Q_PROPERTY(qint32 Offset MEMBER m_Offset)
    /// 380 invoice (default), 381 credit note; other UNCL 1001 codes are kept.
    Q_PROPERTY(qint32 DocumentType MEMBER m_DocumentType)
    Q_PROPERTY(QString Number MEMBER m_Number)
    Q_PROPERTY(QDateTime IssueDate MEMBER m_IssueDate)
    Q_PROPERTY(QDateTime DueDate MEMBER m_DueDate)
    Q_PROPERTY(QDateTime DeliveryDate MEMBER m_DeliveryDate)
    Q_PROPERTY(QString Currency MEMBER m_Currency)
    /// The buyer's reference; a Peppol document needs it or OrderReference.
    Q_PROPERTY(QString BuyerReference MEMBER m_BuyerReference)
    Q_PROPERTY(QString OrderReference MEMBER m_OrderReference)
    /// One free text note.
    Q_PROPERTY(QString Note MEMBER m_Note)
    /// The number of the invoice a credit note corrects.
    Q_PROPERTY(QString PrecedingInvoice MEMBER m_PrecedingInvoice)
    Q_PROPERTY(QString PaymentTerms MEMBER m_PaymentTerms)
    /// UNCL 4461: "58" SEPA credit transfer (default), "30" credit transfer.
    Q_PROPERTY(QString PaymentMeansCode MEMBER m_PaymentMeansCode)
    Q_PROPERTY(QString IBAN MEMBER m_IBAN)
    Q_PROPERTY(QString BIC MEMBER m_BIC)
    /// A structured communication (twelve digits, written +++000/0000/00000+++)
    /// or an RF creditor reference.
    Q_PROPERTY(QString PaymentReference MEMBER m_PaymentReference)
    Q_PROPERTY(double PaidAmount MEMBER m_PaidAmount)

    // The seller and the buyer. EnterpriseNr is the Belgian enterprise number
    // (legal registration, scheme 0208); PeppolID the electronic address as
    // "scheme:id", by default "0208:" and the enterprise number.
    Q_PROPERTY(QString SellerName MEMBER m_SellerName)
    Q_PROPERTY(QString SellerStreet MEMBER m_SellerStreet)
    Q_PROPERTY(QString SellerPostalCode MEMBER m_SellerPostalCode)
    Q_PROPERTY(QString SellerCity MEMBER m_SellerCity)
    Q_PROPERTY(QString SellerCountry MEMBER m_SellerCountry)
    Q_PROPERTY(QString SellerVAT MEMBER m_SellerVAT)
    Q_PROPERTY(QString SellerEnterpriseNr MEMBER m_SellerEnterpriseNr)
    Q_PROPERTY(QString SellerPeppolID MEMBER m_SellerPeppolID)
    Q_PROPERTY(QString SellerContact MEMBER m_SellerContact)
    Q_PROPERTY(QString SellerPhone MEMBER m_SellerPhone)
    Q_PROPERTY(QString SellerEmail MEMBER m_SellerEmail)
    Q_PROPERTY(QString BuyerName MEMBER m_BuyerName)
    Q_PROPERTY(QString BuyerStreet MEMBER m_BuyerStreet)
    Q_PROPERTY(QString BuyerPostalCode MEMBER m_BuyerPostalCode)
    Q_PROPERTY(QString BuyerCity MEMBER m_BuyerCity)
    Q_PROPERTY(QString BuyerCountry MEMBER m_BuyerCountry)
    Q_PROPERTY(QString BuyerVAT MEMBER m_BuyerVAT)
    Q_PROPERTY(QString BuyerEnterpriseNr MEMBER m_BuyerEnterpriseNr)
    Q_PROPERTY(QString BuyerPeppolID MEMBER m_BuyerPeppolID)
    Q_PROPERTY(QString BuyerContact MEMBER m_BuyerContact)
    Q_PROPERTY(QString BuyerPhone MEMBER m_BuyerPhone)
    Q_PROPERTY(QString BuyerEmail MEMBER m_BuyerEmail)

    /// Computed from the lines, allowances and charges (read only).
    Q_PROPERTY(qint32 LineCount READ LineCount)
    Q_PROPERTY(double TotalExclVAT READ TotalExclVAT)
    Q_PROPERTY(double TotalVAT READ TotalVAT)
    Q_PROPERTY(double TotalInclVAT READ TotalInclVAT)
    Q_PROPERTY(double AmountDue READ AmountDue)

public:
    explicit clsqorEInvoice(QObject *parent = nullptr);
    ~clsqorEInvoice() override;

    /// Late binding: a method or property by name (see qor::LateBinding).
    QVariant Invoke(const QString &name, QVariantList &args);
    static const qor::TypeLibrary &typeLibrary();

    /// The document as the model holds it, the properties included.
    qor::einvoice::Invoice document();
    /// Takes a model: the properties show its header fields.
    void setDocument(const qor::einvoice::Invoice &invoice);

    /// Adds a line; returns its number (1, 2, ...). VATRate left out is 21
    /// for category S, 0 for the others, none for O.
    Q_INVOKABLE qint32 AddLine(const QString &ItemName, const QVariant &Quantity,
        const QVariant &Price, const QVariant &VATRate, const QString &UnitCode,
        const QString &VATCategory, const QString &ItemID, const QString &GTIN);
    /// Adds an allowance (Charge false) or a charge to the document (LineNr 0)
    /// or to a line; returns how many the document or line now has. A line
    /// number that does not exist raises run-time error 9.
    Q_INVOKABLE qint32 AddAllowanceCharge(bool Charge, const QVariant &Amount,
        const QString &Reason, const QString &ReasonCode, const QVariant &VATRate,
        const QString &VATCategory, qint32 LineNr);
    /// Why the lines of a VAT category carry no VAT (needed for E).
    Q_INVOKABLE void SetExemption(
        const QString &VATCategory, const QString &Reason, const QString &ReasonCode);
    /// The rules the document breaks as an array of [rule id, message] pairs
    /// in the language of Offset; an empty array when it may be sent.
    Q_INVOKABLE QVariant Check();
    /// Checks the document and, when no rule is broken, writes it as a Peppol
    /// BIS 3.0 UBL file: True. False when rules are broken (nothing is
    /// written; Check tells which). A file that cannot be written raises
    /// run-time error 75.
    Q_INVOKABLE bool SaveUBL(const QString &FileName);
    /// Takes a UBL invoice or credit note from a file. A file that cannot be
    /// opened raises run-time error 53; a document that cannot be read raises
    /// 5, its description naming the place. Amounts the document states are
    /// kept and written back as they are.
    Q_INVOKABLE void LoadUBL(const QString &FileName);
    /// The document as Peppol BIS 3.0 UBL text, written as it is, unchecked.
    Q_INVOKABLE QString GetUBL();
    /// The document as JSON (the shape of docs/einvoice.md).
    Q_INVOKABLE QString GetJSON();
    /// Takes a document as JSON; a text that is not such a document raises
    /// run-time error 5 naming the first member that could not be taken.
    Q_INVOKABLE void SetJSON(const QString &Text);
    /// Starts a new, empty document (the language stays).
    Q_INVOKABLE void Clear();

    qint32 LineCount() const;
    double TotalExclVAT();
    double TotalVAT();
    double TotalInclVAT();
    double AmountDue();

private:
    struct PartyProperties;
    PartyProperties partyProperties(bool seller);
    void writePaymentMeans(qor::einvoice::Invoice &invoice) const;

    qint32 m_Offset = 0;
    qint32 m_DocumentType = 380;
    QString m_Number;
    QDateTime m_IssueDate;
    QDateTime m_DueDate;
    QDateTime m_DeliveryDate;
    QString m_Currency;
    QString m_BuyerReference;
    QString m_OrderReference;
    QString m_Note;
    QString m_PrecedingInvoice;
    QString m_PaymentTerms;
    QString m_PaymentMeansCode;
    QString m_IBAN;
    QString m_BIC;
    QString m_PaymentReference;
    double m_PaidAmount = 0;
    QString m_SellerName;
    QString m_SellerStreet;
    QString m_SellerPostalCode;
    QString m_SellerCity;
    QString m_SellerCountry;
    QString m_SellerVAT;
    QString m_SellerEnterpriseNr;
    QString m_SellerPeppolID;
    QString m_SellerContact;
    QString m_SellerPhone;
    QString m_SellerEmail;
    QString m_BuyerName;
    QString m_BuyerStreet;
    QString m_BuyerPostalCode;
    QString m_BuyerCity;
    QString m_BuyerCountry;
    QString m_BuyerVAT;
    QString m_BuyerEnterpriseNr;
    QString m_BuyerPeppolID;
    QString m_BuyerContact;
    QString m_BuyerPhone;
    QString m_BuyerEmail;
    // What the properties do not hold: lines, allowances, charges,
    // exemptions and every field of a document that was loaded.
    std::unique_ptr<qor::einvoice::Invoice> m_rest;
};
