#pragma once

#include <QString>

namespace qor {

// The shared settings file, "qorSoft.ini" in the system folder unless the
// caller names another file. Values are read into the classic 255-character
// buffer: at most 254 characters come back.
constexpr qsizetype settingValueLength = 254;

// The system folder's settings file.
QString defaultSettingsFile();

// The value of a key; an empty file name becomes the default file and is
// written back. An empty result with mbox tells the user on the plain system
// box; a missing file, section or key and an empty value are not told apart.
QString getIni(
    const QString &header, const QString &section, QString &iniFile, bool mbox, qint32 offset);

// Sets a key; an empty file name becomes the default file and is written
// back. Creates the file when needed; a file or folder that cannot be written
// stays as it was and nothing is reported.
void writeIni(
    const QString &header, const QString &section, const QString &value, QString &iniFile);

} // namespace qor
