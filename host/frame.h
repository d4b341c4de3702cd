#pragma once

#include "qorgenlib_export.h"

#include "host/controls/frame.h"

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
    qint32 m_backColor = controls::initial<qint32>(controls::frame, "BackColor");
    qint32 m_borderStyle = controls::initial<qint32>(controls::frame, "BorderStyle");
};

} // namespace qor
