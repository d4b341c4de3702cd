#pragma once

#include "qorgenlib_export.h"

#include "host/controls/checkbox.h"

#include "host/control.h"

namespace qor {

/// The host's check box: Value 0 unchecked, 1 checked, 2 greyed.
class QORGENLIB_EXPORT CheckBox : public Control
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "CheckBox")
    Q_PROPERTY(QString Caption MEMBER m_caption)
    Q_PROPERTY(qint16 Value MEMBER m_value)

public:
    explicit CheckBox(QObject *parent = nullptr);

private:
    QString m_caption;
    qint16 m_value = controls::initial<qint16>(controls::checkBox, "Value");
};

} // namespace qor
