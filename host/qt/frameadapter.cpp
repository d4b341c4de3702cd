#include "host/qt/frameadapter.h"

namespace qor {

FrameAdapter::FrameAdapter(QGroupBox *frame, QObject *parent)
    : WidgetAdapter(frame, parent)
{ }

QGroupBox *FrameAdapter::frame() const
{
    return static_cast<QGroupBox *>(widget());
}

QString FrameAdapter::caption() const
{
    return frame()->title();
}
void FrameAdapter::setCaption(const QString &caption)
{
    frame()->setTitle(caption);
}

qint32 FrameAdapter::borderStyle() const
{
    return frame()->isFlat() ? 0 : 1;
}
void FrameAdapter::setBorderStyle(qint32 style)
{
    frame()->setFlat(style == 0);
}

} // namespace qor
