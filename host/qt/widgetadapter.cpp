#include "host/qt/widgetadapter.h"

#include "platform/platform.h"
#include "runtime/runtimeerror.h"

#include <QApplication>
#include <QPalette>

#include <cmath>

namespace qor {

WidgetAdapter::WidgetAdapter(QWidget *widget, QObject *parent)
    : QObject(parent)
    , m_widget(widget)
{ }

QWidget *WidgetAdapter::widget() const
{
    if (!m_widget)
        throw RuntimeError::objectNotSet();
    return m_widget.data();
}

int WidgetAdapter::pixels(double twips, bool horizontal)
{
    const ScreenInfo screen = platform().screen();
    const double perPixel = horizontal ? screen.twipsPerPixelX : screen.twipsPerPixelY;
    const double value = std::round(twips / qMax(1.0, perPixel));
    if (!std::isfinite(value) || std::fabs(value) > 1.0e7)
        throw RuntimeError::overflow();
    return int(value);
}

float WidgetAdapter::twips(int pixels, bool horizontal)
{
    const ScreenInfo screen = platform().screen();
    return float(pixels) * float(horizontal ? screen.twipsPerPixelX : screen.twipsPerPixelY);
}

float WidgetAdapter::left() const
{
    return twips(widget()->x(), true);
}
void WidgetAdapter::setLeft(float value)
{
    widget()->move(pixels(value, true), widget()->y());
}
float WidgetAdapter::top() const
{
    return twips(widget()->y(), false);
}
void WidgetAdapter::setTop(float value)
{
    widget()->move(widget()->x(), pixels(value, false));
}
float WidgetAdapter::width() const
{
    return twips(widget()->width(), true);
}
void WidgetAdapter::setWidth(float value)
{
    widget()->resize(qMax(0, pixels(value, true)), widget()->height());
}
float WidgetAdapter::height() const
{
    return twips(widget()->height(), false);
}
void WidgetAdapter::setHeight(float value)
{
    widget()->resize(widget()->width(), qMax(0, pixels(value, false)));
}
bool WidgetAdapter::visible() const
{
    return !widget()->isHidden();
}
void WidgetAdapter::setVisible(bool visible)
{
    widget()->setVisible(visible);
}

void WidgetAdapter::Move(float left, float top)
{
    setLeft(left);
    setTop(top);
}

void WidgetAdapter::Move(float left, float top, float width)
{
    Move(left, top);
    setWidth(width);
}

void WidgetAdapter::Move(float left, float top, float width, float height)
{
    Move(left, top, width);
    setHeight(height);
}

void WidgetAdapter::ZOrder(qint32 position)
{
    if (position == 0)
        widget()->raise();
    else
        widget()->lower();
}

QColor WidgetAdapter::colourOf(qint32 colour)
{
    const quint32 value = quint32(colour);
    if (value & 0x80000000u) {
        const QPalette palette = QApplication::palette();
        switch (value & 0xFF) {
        case 0x05: return palette.color(QPalette::Base);
        case 0x08: return palette.color(QPalette::Text);
        case 0x0D: return palette.color(QPalette::Highlight);
        case 0x11: return palette.color(QPalette::Disabled, QPalette::Text);
        case 0x12: return palette.color(QPalette::ButtonText);
        default: return palette.color(QPalette::Button);
        }
    }
    return QColor(int(value & 0xFF), int((value >> 8) & 0xFF), int((value >> 16) & 0xFF));
}

} // namespace qor
