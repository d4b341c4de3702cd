#pragma once

#include <QString>

namespace qor {

// What `qorgen --help` prints.
QString helpText();
// What `qorgen COMMAND --help` prints: the part of the help about that command
// (with the value notation), or an empty text for an unknown command.
QString commandHelpText(const QString &command);

} // namespace qor
