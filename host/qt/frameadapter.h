#pragma once

#include "host/qt/widgetadapter.h"

#include <QGroupBox>

namespace qor {

// A frame on a real form, a group box: Caption and BorderStyle (0 flat
// without a line, 1 the group box's own frame).
class FrameAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(qint32 BorderStyle READ borderStyle WRITE setBorderStyle)

public:
    explicit FrameAdapter(QGroupBox *frame, QObject *parent = nullptr);

    QString caption() const;
    void setCaption(const QString &caption);
    qint32 borderStyle() const;
    void setBorderStyle(qint32 style);

private:
    QGroupBox *frame() const;
};

} // namespace qor
