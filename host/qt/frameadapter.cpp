#include "host/qt/frameadapter.h"

#include "host/qt/twips.h"
#include "runtime/runtimeerror.h"

namespace qor {

FrameAdapter::FrameAdapter(QWidget *frame, QObject *parent)
    : QObject(parent)
    , m_frame(frame)
{ }

QWidget *FrameAdapter::frame() const
{
    if (!m_frame)
        throw RuntimeError::objectNotSet();
    return m_frame.data();
}

float FrameAdapter::left() const
{
    return twips::fromPixelsX(frame()->x());
}
void FrameAdapter::setLeft(float twipsLeft)
{
    frame()->move(twips::toPixelsX(twipsLeft), frame()->y());
}
float FrameAdapter::top() const
{
    return twips::fromPixelsY(frame()->y());
}
void FrameAdapter::setTop(float twipsTop)
{
    frame()->move(frame()->x(), twips::toPixelsY(twipsTop));
}
float FrameAdapter::width() const
{
    return twips::fromPixelsX(frame()->width());
}
void FrameAdapter::setWidth(float twipsWidth)
{
    frame()->resize(qMax(0, twips::toPixelsX(twipsWidth)), frame()->height());
}
float FrameAdapter::height() const
{
    return twips::fromPixelsY(frame()->height());
}
void FrameAdapter::setHeight(float twipsHeight)
{
    frame()->resize(frame()->width(), qMax(0, twips::toPixelsY(twipsHeight)));
}

qint32 FrameAdapter::backColor() const
{
    return twips::fromColor(frame()->palette().color(frame()->backgroundRole()));
}

void FrameAdapter::setBackColor(qint32 colour)
{
    QPalette palette = frame()->palette();
    palette.setColor(frame()->backgroundRole(), twips::toColor(colour, palette));
    frame()->setPalette(palette);
    frame()->setAutoFillBackground(true);
}

} // namespace qor
