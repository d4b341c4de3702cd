#pragma once

#include <QString>

namespace qor {

// Plays a wave file from the application's multimedia folder, once or looping,
// and returns at once; an empty name stops what plays. Both arguments are
// rewritten: the folder to the one used, the name to the full path (so a
// second call with the same variable builds a doubled path). On a station that
// is not a customer station the platform's development sound folder is used,
// whatever the caller passed. A missing file gives the plain system box.
void playSoundFile(QString &fileName, bool continuous, QString &soundDirectory);

// The sound of a message type (0 Critical ... 4 Message).
QString typeSoundFile(int type);
// What a dialog plays when first shown: the sound of its type, once, from the
// default folder, unless sounds are off; errors ignored (a missing file still
// gives its notice).
void playDialogSound(int type);

} // namespace qor
