#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"

#include <QStringList>

namespace qor {

/// Makes a model host object from its class name ("TextBox", "Grid", ...),
/// matched regardless of case.
class QORGENLIB_EXPORT HostFactory
{
public:
    /// nullptr for a class it does not know.
    static HostObject *create(const QString &className, QObject *parent = nullptr);
    static QStringList classNames();
};

} // namespace qor
