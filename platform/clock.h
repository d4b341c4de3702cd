#pragma once

#include "qorgenlib_export.h"

#include "runtime/regionalsettings.h"

#include <QDateTime>

#include <memory>

namespace qor {

/// The machine's clock and the regional settings its user chose.
class QORGENLIB_EXPORT Clock
{
public:
    virtual ~Clock();

    virtual QDateTime now() const = 0;
    virtual RegionalSettings regionalSettings() const = 0;

    /// The clock of the calling thread: the one installed on its own, else the platform's.
    static Clock &current();
    /// Installs a clock for the calling thread alone (nullptr returns the role to
    /// the platform) and returns the one it replaces.
    static std::shared_ptr<Clock> install(std::shared_ptr<Clock> clock);
};

} // namespace qor
