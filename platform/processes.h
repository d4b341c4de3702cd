#pragma once

#include "qorgenlib_export.h"

#include <QString>

#include <memory>

namespace qor {

/// Programs: starting and awaiting them, the running copies of an
/// application, and switching the machine off.
class QORGENLIB_EXPORT Processes
{
public:
    virtual ~Processes();

    /// Start a command line (returns a process id, or a classic error number
    /// as a negative value: 53 no such program, 70 not executable, 5 other
    /// failures) and wait until it ends.
    virtual qint64 startProcess(const QString &commandLine, int windowStyle) = 0;
    virtual void waitForProcess(qint64 processId) = 0;
    /// Asks the system to switch the machine off; the outcome is not known.
    virtual void shutDown() = 0;
    /// Counts this process as a running copy of the application until it ends;
    /// true when another copy was already running.
    virtual bool registerInstance(const QString &application) = 0;

    /// The processes role of the calling thread: the one installed on its own, else the platform's.
    static Processes &current();
    /// Installs a processes role for the calling thread alone (nullptr returns
    /// the role to the platform) and returns the one it replaces.
    static std::shared_ptr<Processes> install(std::shared_ptr<Processes> processes);
};

} // namespace qor
