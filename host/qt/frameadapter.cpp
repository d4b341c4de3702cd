#include "host/qt/frameadapter.h"

#include <QFrame>
#include <QGroupBox>

namespace qor {

FrameAdapter::FrameAdapter(QWidget *frame, QObject *parent)
    : WidgetAdapter(frame, parent)
{ }

// A container without a title keeps its caption as the window title, which
// it does not show.
QString FrameAdapter::caption() const
{
    if (auto *box = qobject_cast<QGroupBox *>(widget()))
        return box->title();
    return widget()->windowTitle();
}
void FrameAdapter::setCaption(const QString &caption)
{
    if (auto *box = qobject_cast<QGroupBox *>(widget()))
        box->setTitle(caption);
    else
        widget()->setWindowTitle(caption);
}

qint32 FrameAdapter::borderStyle() const
{
    if (auto *box = qobject_cast<QGroupBox *>(widget()))
        return box->isFlat() ? 0 : 1;
    if (auto *frame = qobject_cast<QFrame *>(widget()))
        return frame->frameShape() == QFrame::NoFrame ? 0 : 1;
    return 0;
}
void FrameAdapter::setBorderStyle(qint32 style)
{
    if (auto *box = qobject_cast<QGroupBox *>(widget()))
        box->setFlat(style == 0);
    else if (auto *frame = qobject_cast<QFrame *>(widget()))
        frame->setFrameShape(style == 0 ? QFrame::NoFrame : QFrame::Box);
}

qint32 FrameAdapter::backColor() const
{
    QWidget *frame = widget();
    return colourNumber(frame->palette().color(frame->backgroundRole()));
}
void FrameAdapter::setBackColor(qint32 colour)
{
    QWidget *frame = widget();
    paint(frame, frame->backgroundRole(), colour);
    frame->setAutoFillBackground(true);
}

} // namespace qor
