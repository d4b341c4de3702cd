#pragma once

#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"

#include <memory>

namespace qor::test {

// A fresh module state and a recording platform installed as the machine the
// library sees; an empty locale keeps the platform's default settings. The
// dialogs' own sounds are off, so that a box records only what it shows; the
// sound tests switch them on.
inline std::shared_ptr<RecordingPlatform> installRecordingPlatform(
    const QString &locale = QString())
{
    ModGenLib::reset();
    modGenLib().soundOff = true;
    auto machine = std::make_shared<RecordingPlatform>();
    if (!locale.isEmpty())
        machine->setLocale(locale);
    Platform::install(machine);
    return machine;
}

// A message box as the user reads it.
inline QVariantMap messageBox(const QString &prompt, int buttons, const QString &title)
{
    return { { QStringLiteral("prompt"), prompt }, { QStringLiteral("buttons"), buttons },
        { QStringLiteral("title"), title }, { QStringLiteral("caption"), title } };
}

// The one message box shown, reduced to what the user reads; empty when nothing was
// shown, the count when more than one was.
inline QVariantMap onlyMessage(const RecordingPlatform &machine)
{
    const QVariantList shown = machine.shown();
    if (shown.isEmpty())
        return {};
    if (shown.size() > 1)
        return { { QStringLiteral("count"), shown.size() } };
    QVariantMap box = shown.first().toMap();
    for (const char *detail : { "kind", "type", "answer", "buttonsShown" })
        box.remove(QLatin1String(detail));
    return box;
}

} // namespace qor::test
