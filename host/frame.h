#pragma once

#include "qorgenlib_export.h"

#include "host/control.h"

namespace qor {

/// A frame: the container control around a grid or a group of fields.
class QORGENLIB_EXPORT Frame : public Control
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Frame")
    Q_PROPERTY(QString Caption MEMBER m_caption)
    Q_PROPERTY(qint32 BackColor MEMBER m_backColor)
    Q_PROPERTY(qint32 BorderStyle MEMBER m_borderStyle)

public:
    explicit Frame(QObject *parent = nullptr);

private:
    QString m_caption;
    qint32 m_backColor = qint32(0x8000000F); // the system's button face colour
    qint32 m_borderStyle = 1;
};

} // namespace qor
