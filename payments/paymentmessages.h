#pragma once

#include <QtGlobal>

namespace qor::catalogue {

// Catalogue ids of what the payment checks tell the user.
enum PaymentText : qint32 {
    PaymentErrorTitle = 1031,
    IbanWrong = 1060,
    IbanNotation = 1061,
    BicWrong = 1062,
    BicNotation = 1063,
    CreditorReferenceWrong = 1064,
    CreditorReferenceNotation = 1065,
};

} // namespace qor::catalogue
