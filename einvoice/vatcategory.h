#pragma once

#include "qorgenlib_export.h"
#include <QString>

namespace qor::einvoice {

/// The VAT category codes (UNCL 5305 as restricted by the e-invoice norm),
/// kept as their one- or two-letter codes in the model (BT-95, BT-102,
/// BT-118, BT-151).
namespace VatCategory {
/// Standard rate (21 %, 12 %, 6 % in Belgium).
inline const QString Standard = QStringLiteral("S");
/// Zero rated goods.
inline const QString ZeroRated = QStringLiteral("Z");
/// Exempt from VAT.
inline const QString Exempt = QStringLiteral("E");
/// VAT reverse charge: the buyer accounts for the VAT.
inline const QString ReverseCharge = QStringLiteral("AE");
/// Intra-community supply of goods and services, VAT exempt.
inline const QString IntraCommunity = QStringLiteral("K");
/// Export outside the EU, VAT exempt.
inline const QString Export = QStringLiteral("G");
/// Services outside the scope of VAT: the only category without a rate.
inline const QString OutOfScope = QStringLiteral("O");
/// Canary Islands general indirect tax.
inline const QString CanaryIslands = QStringLiteral("L");
/// Ceuta and Melilla production services and import tax.
inline const QString CeutaMelilla = QStringLiteral("M");

/// True for the categories whose VAT amount is always zero (Z, E, AE, K, G, O).
QORGENLIB_EXPORT bool hasZeroVat(const QString &category);
/// True for the categories that carry a rate (all but O).
QORGENLIB_EXPORT bool hasRate(const QString &category);
/// The exemption reason code (BT-121) the category always has, if any:
/// "VATEX-EU-AE", "VATEX-EU-IC", "VATEX-EU-G", "VATEX-EU-O"; empty for the
/// others (an exempt category E needs the host's own reason).
QORGENLIB_EXPORT QString defaultExemptionCode(const QString &category);
} // namespace VatCategory

} // namespace qor::einvoice
