#include "lib/frame/klantpc.h"

#include "platform/platform.h"

namespace qor {

bool getKlantPC()
{
    const QString systemFolder = platform().systemDirectory().left(255);
    if (systemFolder.isEmpty())
        return true;
    static const QString marker = QStringLiteral("QorVelChip.dll");
    return platform().listFiles(systemFolder + QLatin1Char('\\'), marker).isEmpty();
}

} // namespace qor
