#pragma once

#include <QString>
#include <QStringList>

namespace qor {

// The words of a command line as a person writes it, without a shell: blanks
// and tabs separate words, double quotes keep blanks inside a word and are
// dropped, two double quotes inside quotes give one literal double quote.
// Backslashes and single quotes are ordinary characters, so Windows paths and
// names such as O'Neil pass unchanged.
QStringList splitCommandLine(const QString &commandLine);

} // namespace qor
