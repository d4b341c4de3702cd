#pragma once

#include "qorgenlib_export.h"

#include "host/controls/shape.h"

#include "host/control.h"

namespace qor {

/// A shape control: a rectangle with a border and a fill, brought to the
/// front with ZOrder 0.
class QORGENLIB_EXPORT Shape : public Control
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Shape")
    Q_PROPERTY(qint32 BorderStyle MEMBER m_borderStyle)
    Q_PROPERTY(qint32 FillStyle MEMBER m_fillStyle)
    Q_PROPERTY(qint32 BorderColor MEMBER m_borderColor)
    Q_PROPERTY(qint32 FillColor MEMBER m_fillColor)

public:
    explicit Shape(QObject *parent = nullptr);

    /// 0 brings it in front of its siblings, 1 sends it behind them.
    Q_INVOKABLE void ZOrder(qint32 position = 0);

private:
    qint32 m_borderStyle = controls::initial<qint32>(controls::shape, "BorderStyle");
    qint32 m_fillStyle = controls::initial<qint32>(controls::shape, "FillStyle");
    qint32 m_borderColor = controls::initial<qint32>(controls::shape, "BorderColor");
    qint32 m_fillColor = controls::initial<qint32>(controls::shape, "FillColor");
};

} // namespace qor
