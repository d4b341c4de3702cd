#pragma once

#include "qorgenlib_export.h"

#include "host/controls/propertydefinition.h"

#include "host/hostobject.h"

namespace qor {

/// A placed control of a form (a shape, a label, a month view): position and
/// size in twips and the classic Move. Any other property it is given is kept.
class QORGENLIB_EXPORT Control : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Control")
    Q_PROPERTY(float Left MEMBER m_left)
    Q_PROPERTY(float Top MEMBER m_top)
    Q_PROPERTY(float Width MEMBER m_width)
    Q_PROPERTY(float Height MEMBER m_height)

public:
    explicit Control(QObject *parent = nullptr);

    /// Moves and sizes it at once; what is left out keeps its value.
    Q_INVOKABLE void Move(float left, float top);
    Q_INVOKABLE void Move(float left, float top, float width);
    Q_INVOKABLE void Move(float left, float top, float width, float height);

private:
    void place(const QVariantList &values);

    float m_left = controls::initial<float>(controls::control, "Left");
    float m_top = controls::initial<float>(controls::control, "Top");
    float m_width = controls::initial<float>(controls::control, "Width");
    float m_height = controls::initial<float>(controls::control, "Height");
};

} // namespace qor
