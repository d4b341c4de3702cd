#pragma once

#include <QString>

namespace qor {

// Plays a wave file from the application's multimedia folder, once or looping,
// and returns at once; an empty name stops what plays. Both arguments are
// rewritten: the folder to the one used, the name to the full path (so a
// second call with the same variable builds a doubled path). On a station that
// is not a customer station the platform's development sound folder is used,
// whatever the caller passed. A missing file gives the plain system box.
void playSound(QString &fileName, bool continuous, QString &soundDirectory, qint32 offset);

// Switches the dialogs' own sounds off (True) or on; direct calls of
// playSound always play.
void setSound(bool soundOff);

} // namespace qor
