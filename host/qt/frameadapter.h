#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace qor {

// Gives any container widget (a QGroupBox, a QFrame) the names of the host's
// frame: place and size in twips, its caption when it has a title, and its
// background as a colour number.
class QORGENLIB_WIDGETS_EXPORT FrameAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(float Left READ left WRITE setLeft)
    Q_PROPERTY(float Top READ top WRITE setTop)
    Q_PROPERTY(float Width READ width WRITE setWidth)
    Q_PROPERTY(float Height READ height WRITE setHeight)
    Q_PROPERTY(qint32 BackColor READ backColor WRITE setBackColor)

public:
    explicit FrameAdapter(QWidget *frame, QObject *parent = nullptr);

    float left() const;
    void setLeft(float twips);
    float top() const;
    void setTop(float twips);
    float width() const;
    void setWidth(float twips);
    float height() const;
    void setHeight(float twips);
    qint32 backColor() const;
    void setBackColor(qint32 colour);

private:
    QWidget *frame() const;

    QPointer<QWidget> m_frame;
};

} // namespace qor
