#pragma once

#include "qorgenlib_export.h"

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
    float m_left = 0;
    float m_top = 0;
    float m_width = 0;
    float m_height = 0;
    QVariantList m_controls;
    qint32 m_hWnd = 0; // the window handle; a model form has no window
};

} // namespace qor
