#include "dialogs/sound.h"

#include "lib/frame/dialogsound.h"
#include "lib/frame/modgenlib.h"

namespace qor {

void playSound(QString &fileName, bool continuous, QString &soundDirectory, qint32 offset)
{
    useLanguage(offset);
    playSoundFile(fileName, continuous, soundDirectory);
}

void setSound(bool soundOff)
{
    modGenLib().soundOff = soundOff;
}

} // namespace qor
