#include "lib/frame/klantpc.h"

#include "platform/filesystem.h"

namespace qor {

bool getKlantPC()
{
    const QString systemFolder = FileSystem::current().systemDirectory().left(255);
    if (systemFolder.isEmpty())
        return true;
    static const QString marker = QStringLiteral("QorVelChip.dll");
    return FileSystem::current().listFiles(systemFolder + QLatin1Char('\\'), marker).isEmpty();
}

} // namespace qor
