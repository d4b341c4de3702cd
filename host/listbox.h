#pragma once

#include "qorgenlib_export.h"

#include "host/listcontrol.h"

namespace qor {

/// The host's list box.
class QORGENLIB_EXPORT ListBox : public ListControl
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "ListBox")

public:
    explicit ListBox(QObject *parent = nullptr);
};

} // namespace qor
