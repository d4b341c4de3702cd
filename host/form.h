#pragma once

#include "qorgenlib_export.h"

#include "host/controls/form.h"

#include "host/hostobject.h"

namespace qor {

/// A host form: its Tag (free for the library's use), caption, place and its
/// controls in the form's own order.
class QORGENLIB_EXPORT Form : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Form")
    Q_PROPERTY(QString Tag MEMBER m_tag)
    Q_PROPERTY(QString Caption MEMBER m_caption)
    Q_PROPERTY(float Left MEMBER m_left)
    Q_PROPERTY(float Top MEMBER m_top)
    Q_PROPERTY(float Width MEMBER m_width)
    Q_PROPERTY(float Height MEMBER m_height)
    Q_PROPERTY(QVariantList Controls MEMBER m_controls)
    Q_PROPERTY(qint32 hWnd MEMBER m_hWnd)

public:
    explicit Form(QObject *parent = nullptr);

private:
    QString m_tag;
    QString m_caption;
    float m_left = controls::initial<float>(controls::form, "Left");
    float m_top = controls::initial<float>(controls::form, "Top");
    float m_width = controls::initial<float>(controls::form, "Width");
    float m_height = controls::initial<float>(controls::form, "Height");
    QVariantList m_controls;
    qint32 m_hWnd = controls::initial<qint32>(controls::form, "hWnd");
};

} // namespace qor
