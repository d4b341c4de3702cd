#pragma once

namespace qor {

/// Why a payment identifier (IBAN, BIC, creditor reference) was refused, in
/// the terms users of other number-checking libraries know.
enum class PaymentCheck {
    /// The identifier is right.
    Valid,
    /// It has too few or too many characters.
    InvalidLength,
    /// A character is not allowed where it stands, or the structure is wrong.
    InvalidFormat,
    /// The check digits do not match.
    InvalidChecksum,
    /// A part (country, bank) is unknown or not the one asked for.
    InvalidComponent,
};

} // namespace qor
