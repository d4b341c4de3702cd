#pragma once

#include "qorgenlib_export.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace qor {

/// A bank of the National Bank of Belgium's list of bank identification codes.
struct BelgianBank
{
    /// Its BIC; empty for a code in use without a BIC of its own.
    QString bic;
    /// The bank's name as the list writes it.
    QString name;
};

/// The bank of a bank identification code (the first three BBAN digits, 0 to
/// 999); nothing for a code the list does not hold.
QORGENLIB_EXPORT std::optional<BelgianBank> belgianBankOfCode(int code);

/// The bank of a Belgian account: a Belgian IBAN (as typed) or an account in
/// the notation before IBAN (twelve digits, separators allowed). Nothing when
/// the account is wrong or its bank code is not in the list.
QORGENLIB_EXPORT std::optional<BelgianBank> belgianBankOf(QStringView account);

} // namespace qor
