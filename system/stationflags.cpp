#include "system/stationflags.h"

#include "platform/platform.h"

#include <QString>

namespace qor {

bool getKlantPC()
{
    const QString systemFolder = platform().systemDirectory();
    if (systemFolder.isEmpty())
        return true;
    return !platform().fileExists(systemFolder + QStringLiteral("\\QorVelChip.dll"));
}

} // namespace qor
