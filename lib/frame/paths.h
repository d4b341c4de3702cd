#pragma once

#include <QString>

namespace qor {

// A folder path without one trailing "\": "C:\data\" gives "C:\data", "C:\data\\"
// keeps one backslash, a blank path gives "". Surrounding blanks are kept.
QString pathRS(const QString &path);

} // namespace qor
