#include "system/screenhelpers.h"

#include "lib/frame/messageboxlogic.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/dialogpresenter.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

#include <cmath>
#include <limits>

namespace qor {

namespace {

// Left, top, right and bottom in pixels; right and bottom are the first pixel past the edge.
struct Edges
{
    qint64 left = 0, top = 0, right = 0, bottom = 0;
};

Edges edgesOf(const QRect &rect)
{
    return { rect.x(), rect.y(), qint64(rect.x()) + rect.width(),
        qint64(rect.y()) + rect.height() };
}

Edges workAreaIn(const Edges &desk, const Edges &bar)
{
    Edges area;
    if (desk.bottom != bar.top + bar.bottom) {
        // Horizontal: at the top or at the bottom.
        area.top = bar.top < 1 ? bar.bottom : desk.top;
        area.bottom = bar.top < 1 ? desk.bottom : bar.top;
        area.left = desk.left;
        area.right = desk.right;
    } else {
        // Vertical, spanning the height: at the left or at the right.
        area.left = bar.left < 1 ? bar.right : desk.left;
        area.right = bar.left < 1 ? desk.right : bar.left;
        area.top = desk.top;
        area.bottom = desk.bottom;
    }
    return area;
}

double numberProperty(QObject *object, const char *name)
{
    return toDouble(getProperty(object, name), Clock::current().regionalSettings());
}

QObject *parentOf(QObject *control)
{
    const QVariant parent = getProperty(control, "Parent");
    QObject *form = parent.value<QObject *>();
    if (!form)
        throw RuntimeError::objectNotSet();
    return form;
}

float single(double value)
{
    if (std::isfinite(value) && std::fabs(value) > std::numeric_limits<float>::max())
        throw RuntimeError::overflow();
    return float(value);
}

constexpr int formBorder = 45;
constexpr int titleBarAndBorder = 330;

} // namespace

qorGenLib::WindowSize getWorkArea()
{
    const ScreenInfo screen = Desktop::current().screen();
    const Edges desk = edgesOf(QRect(screen.origin, QSize(screen.width, screen.height)));
    const Edges bar = screen.taskbar ? edgesOf(*screen.taskbar) : Edges();
    const Edges area = workAreaIn(desk, bar);
    const double x = screen.twipsPerPixelX;
    const double y = screen.twipsPerPixelY;
    qorGenLib::WindowSize size;
    size.Left = roundToLong(double(area.left) * x);
    size.Top = roundToLong(double(area.top) * y);
    size.Right = roundToLong(double(area.right) * x);
    size.Bottom = roundToLong(double(area.bottom) * y);
    size.Width = roundToLong(double(area.right - area.left) * y);
    size.Height = roundToLong(double(area.bottom - area.top) * y);
    return size;
}

qint32 getMousePointerPos(const QString &xy, QObject *relativeObject)
{
    const ScreenInfo screen = Desktop::current().screen();
    const QString axis = xy.toUpper();
    qint32 result = 0;
    if (axis == QLatin1String("X")) {
        result = roundToLong(double(screen.cursor.x()) * screen.twipsPerPixelX);
        if (relativeObject) {
            result = roundToLong(result - numberProperty(relativeObject, "Left"));
            if (hasProperty(relativeObject, "Parent")) {
                result = roundToLong(result - numberProperty(parentOf(relativeObject), "Left"));
                result = roundToLong(double(result) - formBorder);
            }
        }
    } else if (axis == QLatin1String("Y")) {
        result = roundToLong(double(screen.cursor.y()) * screen.twipsPerPixelY);
        if (relativeObject) {
            result = roundToLong(result - numberProperty(relativeObject, "Top"));
            if (hasProperty(relativeObject, "Parent")) {
                QObject *form = parentOf(relativeObject);
                result = roundToLong(result - numberProperty(form, "Top"));
                const QString caption
                    = toText(getProperty(form, "Caption"), Clock::current().regionalSettings());
                if (!caption.isEmpty())
                    result = roundToLong(double(result) - titleBarAndBorder);
            }
        }
    } else {
        DialogPresenter::current().systemMessageBox(
            { QStringLiteral("Invalid XY-coordinate / GetMousePointerPos"),
                MessageBoxStyle::Critical | MessageBoxStyle::OK,
                QStringLiteral("qorSoft General DLL") });
    }
    return result;
}

QVariant formOnTop(QObject *form)
{
    if (form && form->isWidgetType()) {
        Desktop::current().keepOnTop(form, 0);
        return QVariant();
    }
    const double handle = numberProperty(form, "hWnd");
    if (!std::isfinite(handle) || std::fabs(handle) > 9.0e15)
        throw RuntimeError::overflow();
    Desktop::current().keepOnTop(form, qint64(handle));
    return QVariant();
}

float cMm(float twips)
{
    return single(double(twips) / twipsPerMillimetre);
}

float cTwips(float milliMeters)
{
    return single(double(milliMeters) * twipsPerMillimetre);
}

} // namespace qor
