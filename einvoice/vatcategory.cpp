#include "einvoice/vatcategory.h"

namespace qor::einvoice::VatCategory {

bool hasZeroVat(const QString &category)
{
    return category == ZeroRated || category == Exempt || category == ReverseCharge
        || category == IntraCommunity || category == Export || category == OutOfScope;
}

bool hasRate(const QString &category)
{
    return category != OutOfScope;
}

QString defaultExemptionCode(const QString &category)
{
    if (category == ReverseCharge)
        return QStringLiteral("VATEX-EU-AE");
    if (category == IntraCommunity)
        return QStringLiteral("VATEX-EU-IC");
    if (category == Export)
        return QStringLiteral("VATEX-EU-G");
    if (category == OutOfScope)
        return QStringLiteral("VATEX-EU-O");
    return QString();
}

} // namespace qor::einvoice::VatCategory
