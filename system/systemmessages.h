#pragma once

#include <QtGlobal>

namespace qor::catalogue {

// Catalogue ids of what the system services tell the user.
enum SystemText : qint32 {
    ParameterNotFound = 1046,
    AlreadyOpen = 1054,
};

} // namespace qor::catalogue
