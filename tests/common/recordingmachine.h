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
inline QVariantMap messageBox(
    const QString &prompt, int buttons, const QString &title, const QString &caption)
{
    return { { QStringLiteral("prompt"), prompt }, { QStringLiteral("buttons"), buttons },
        { QStringLiteral("title"), title }, { QStringLiteral("caption"), caption } };
}
inline QVariantMap messageBox(const QString &prompt, int buttons, const QString &title)
{
    return messageBox(prompt, buttons, title, title);
}

// The one message box shown, reduced to what the user reads; empty when nothing was
// shown, the count when more than one was.
inline QVariantMap onlyMessage(const RecordingPlatform &machine)
{
    const QList<ShownEvent> shown = machine.shown();
    if (shown.isEmpty())
        return {};
    if (shown.size() > 1)
        return { { QStringLiteral("count"), shown.size() } };
    if (const auto *box = std::get_if<MessageBoxEShown>(&shown.first()))
        return messageBox(box->prompt, box->buttons, box->title, box->caption);
    if (const auto *box = std::get_if<MessageBoxShown>(&shown.first()))
        return { { QStringLiteral("prompt"), box->prompt },
            { QStringLiteral("buttons"), box->buttons }, { QStringLiteral("title"), box->title } };
    return { { QStringLiteral("kind"), kindOf(shown.first()) } };
}

} // namespace qor::test
