#pragma once

#include "qorgenlib_export.h"

#include "host/qt/widgetadapter.h"

namespace qor {

/// Gives a container widget on a real form (a QGroupBox, a QFrame) the names of
/// the host's frame: the place and size of every placed control, Caption (a
/// group box's title), BorderStyle (0 flat without a line, 1 the widget's own
/// frame) and BackColor as a colour number.
class QORGENLIB_WIDGETS_EXPORT FrameAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(qint32 BorderStyle READ borderStyle WRITE setBorderStyle)
    Q_PROPERTY(qint32 BackColor READ backColor WRITE setBackColor)

public:
    explicit FrameAdapter(QWidget *frame, QObject *parent = nullptr);

    QString caption() const;
    void setCaption(const QString &caption);
    qint32 borderStyle() const;
    void setBorderStyle(qint32 style);
    qint32 backColor() const;
    void setBackColor(qint32 colour);
};

} // namespace qor
