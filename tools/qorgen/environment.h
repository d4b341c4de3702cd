#pragma once

#include "tools/qorgen/jsonvalue.h"

#include <QDateTime>
#include <QPoint>
#include <QRect>
#include <QString>

#include <optional>

namespace qor {

class RecordingPlatform;

// The platform a request asks for: regional settings, clock, system folder,
// screen and sound. Every field is optional; what a request leaves out keeps
// the value it had. Fields of the screen are merged one by one.
class Environment
{
public:
    // From a request's "env" object; anything malformed raises RequestError 5.
    static Environment fromJson(const JsonValue &env);

    void setLocale(const QString &name); // RequestError 5 for a name no locale has
    void setNow(const QString &isoDateTime); // RequestError 5 when it is no date
    std::optional<bool> sound() const { return m_sound; }

    void applyTo(RecordingPlatform &platform) const;

private:
    void readScreen(const JsonValue &screen);

    std::optional<QString> m_locale;
    std::optional<QDateTime> m_now;
    std::optional<QString> m_systemDir;
    std::optional<QString> m_devSoundDir;
    std::optional<bool> m_sound;
    std::optional<int> m_width;
    std::optional<int> m_height;
    std::optional<int> m_twipsPerPixelX;
    std::optional<int> m_twipsPerPixelY;
    std::optional<std::optional<QRect>> m_taskbar;
    std::optional<QPoint> m_cursor;
};

} // namespace qor
