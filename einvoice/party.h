#pragma once

#include <QList>
#include <QString>

namespace qor::einvoice {

/// An identifier with the code of the scheme it belongs to (an ISO 6523 ICD
/// such as "0208" for a Belgian enterprise number, "9925" for a Belgian VAT
/// number, "0088" for a GLN, "0160" for a GTIN). An empty id means absent.
struct Identifier
{
    QString id;
    /// The scheme; empty when the document gives none.
    QString scheme;

    bool isEmpty() const { return id.isEmpty(); }
    bool operator==(const Identifier &) const = default;
};

/// The scheme codes the library uses itself.
namespace Scheme {
inline constexpr char16_t BelgianEnterpriseNumber[] = u"0208";
inline constexpr char16_t BelgianVatNumber[] = u"9925";
inline constexpr char16_t Gtin[] = u"0160";
inline constexpr char16_t Gln[] = u"0088";
} // namespace Scheme

/// A postal address (seller BG-5, buyer BG-8, place of delivery BG-15).
struct PostalAddress
{
    /// BT-35 / BT-50 / BT-75: street and number.
    QString streetName;
    /// BT-36 / BT-51 / BT-76.
    QString additionalStreetName;
    /// BT-162 / BT-163 / BT-165: a third address line.
    QString addressLine3;
    /// BT-37 / BT-52 / BT-77.
    QString cityName;
    /// BT-38 / BT-53 / BT-78.
    QString postalZone;
    /// BT-39 / BT-54 / BT-79: province or region.
    QString countrySubentity;
    /// BT-40 / BT-55 / BT-80: ISO 3166-1 alpha-2 code ("BE"); required for
    /// the seller and the buyer.
    QString countryCode;

    bool isEmpty() const { return *this == PostalAddress(); }
    bool operator==(const PostalAddress &) const = default;
};

/// A contact person or department (seller BG-6, buyer BG-9).
struct Contact
{
    /// BT-41 / BT-56.
    QString name;
    /// BT-42 / BT-57.
    QString telephone;
    /// BT-43 / BT-58.
    QString email;

    bool isEmpty() const { return *this == Contact(); }
    bool operator==(const Contact &) const = default;
};

/// The seller (BG-4) or the buyer (BG-7).
///
/// A Belgian party is normally identified by its enterprise number: as legal
/// registration (scheme 0208) and as Peppol electronic address (0208, or 9925
/// with the VAT number). A Belgian VAT number is written as "BE" followed by
/// its ten digits.
struct Party
{
    /// BT-27 / BT-44: the registered name; required.
    QString name;
    /// BT-28 / BT-45: the trading name, when it differs.
    QString tradingName;
    /// BT-29 / BT-46: other identifiers of the party (with their schemes).
    QList<Identifier> identifiers;
    /// BT-30 / BT-47 with scheme BT-30-1 / BT-47-1: the legal registration
    /// (for a Belgian enterprise: its enterprise number, scheme 0208).
    Identifier legalRegistration;
    /// BT-33: the seller's additional legal information (legal form, capital).
    QString legalForm;
    /// BT-31 / BT-48: the VAT identifier with its country prefix ("BE0123456749").
    QString vatIdentifier;
    /// BT-32: the seller's tax registration when it has no VAT identifier.
    QString taxRegistration;
    /// BT-34 / BT-49 with scheme BT-34-1 / BT-49-1: the Peppol electronic
    /// address; required.
    Identifier electronicAddress;
    /// BG-5 / BG-8.
    PostalAddress address;
    /// BG-6 / BG-9.
    Contact contact;

    bool operator==(const Party &) const = default;
};

} // namespace qor::einvoice
