#pragma once

#include "qorgenlib_export.h"

#include "host/listcontrol.h"

namespace qor {

/// The host's combo box: a list with a text field that shows the selected entry.
class QORGENLIB_EXPORT ComboBox : public ListControl
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "ComboBox")
    Q_PROPERTY(QString Text MEMBER m_text)

public:
    explicit ComboBox(QObject *parent = nullptr);

protected:
    void selectionChanged() override;

private:
    QString m_text;
};

} // namespace qor
