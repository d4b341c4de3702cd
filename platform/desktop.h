#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QPoint>
#include <QRect>

#include <memory>
#include <optional>

namespace qor {

/// The screen as the library measures it.
struct QORGENLIB_EXPORT ScreenInfo
{
    int width = 1024; // pixels
    int height = 768;
    int twipsPerPixelX = 15;
    int twipsPerPixelY = 15;
    std::optional<QRect> taskbar; // in pixels, when the system has one
    QPoint cursor; // pixels
    QPoint origin; // top-left pixel of the desktop

    /// The desktop without a taskbar that runs along a whole edge of it.
    QRect workArea() const;
};

/// Screen, cursor and windows.
class QORGENLIB_EXPORT Desktop
{
public:
    virtual ~Desktop();

    virtual ScreenInfo screen() const = 0;
    virtual void setMousePointer(int pointer) = 0;
    /// Keeps the form's window above all others.
    virtual void keepOnTop(QObject *form, qint64 windowHandle) = 0;

    /// The desktop of the calling thread: the one installed on its own, else the platform's.
    static Desktop &current();
    /// Installs a desktop for the calling thread alone (nullptr returns the role
    /// to the platform) and returns the one it replaces.
    static std::shared_ptr<Desktop> install(std::shared_ptr<Desktop> desktop);
};

} // namespace qor
