#pragma once

#include <QString>

namespace qor {

// Starts a command line with a window style and waits until the program
// ends: 0 whatever its exit code. A program that cannot be started is
// reported on the plain system box and its error number returned (53 no such
// program, 70 not executable, 5 a window style other than 0-4 and 6, or
// anything else).
qint32 shellAndWait(const QString &commandLine, qint32 windowStyle);

// The names of the normal files of a folder that match a wildcard, separated
// by `separator`, in the order the file system gives them. Only files whose
// attribute value is non-zero count; `attribute` changes nothing. A missing
// or unreadable folder gives "".
QString getFileList(
    const QString &folder, const QString &wildcard, qint32 attribute, const QString &separator);

// The system folder without one trailing "\", or "" when there is none.
QString getSystemDir();

// Asks the system to switch the machine off; the outcome is not checked.
void shutDownPC();

} // namespace qor
