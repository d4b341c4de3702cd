#pragma once

#include <QString>

namespace qor {

// What `qorgen --help` prints.
QString helpText();

} // namespace qor
