#pragma once

#include <QtGlobal>

namespace qor::catalogue {

// Catalogue ids of what the identifier checks tell the user.
enum IdentifierText : qint32 {
    BankAccountNotation = 1001,
    BankAccountWrong = 1002,
    EnterpriseNumberWrong = 1010,
    EnterpriseNumberNotation = 1011,
    PaymentReferenceWrong = 1012,
    NationalNumberWrong = 1026,
    NationalNumberNotation = 1027,
    ErrorTitle = 1031,
    IdentityCardTitle = 1040,
    ReferenceTooLongStart = 1221,
    ReferenceTooLongEnd = 1222,
    ContactHelpDesk = 9700,
};

} // namespace qor::catalogue
