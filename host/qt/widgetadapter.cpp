#include "host/qt/widgetadapter.h"

#include "host/qt/twips.h"
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
    return horizontal ? qor::twips::toPixelsX(twips) : qor::twips::toPixelsY(twips);
}

float WidgetAdapter::twips(int pixels, bool horizontal)
{
    return horizontal ? qor::twips::fromPixelsX(pixels) : qor::twips::fromPixelsY(pixels);
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
    return qor::twips::toColor(colour, QApplication::palette());
}

qint32 WidgetAdapter::colourNumber(const QColor &colour)
{
    return qor::twips::fromColor(colour);
}

void WidgetAdapter::paint(QWidget *widget, QPalette::ColorRole role, qint32 colour)
{
    QPalette palette = widget->palette();
    palette.setColor(role, qor::twips::toColor(colour, palette));
    widget->setPalette(palette);
}

} // namespace qor
