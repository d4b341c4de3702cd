#pragma once

#include "qorgenlib_export.h"

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace qor {

// The classic attribute bits of a file (docs/linux.md says how a file of this
// machine maps to them).
namespace FileAttribute {
enum Bit : int { ReadOnly = 1, Hidden = 2, System = 4, Directory = 16, Archive = 32 };
} // namespace FileAttribute

/// A file found by a directory listing, with its attribute bits.
struct QORGENLIB_EXPORT FileEntry
{
    QString name;
    int attributes = 0;
};

/// Files and folders; paths may use "\" or "/".
class QORGENLIB_EXPORT FileSystem
{
public:
    virtual ~FileSystem();

    virtual bool fileExists(const QString &path) const = 0;
    virtual bool directoryExists(const QString &path) const = 0;
    virtual bool makeDirectory(const QString &path) = 0;
    virtual QList<FileEntry> listFiles(const QString &directory, const QString &wildcard) const = 0;
    virtual std::optional<QByteArray> readFile(const QString &path) const = 0;
    // Writes the whole file or nothing: a reader sees the old file or the new
    // one, and a failed write leaves no part of the new contents behind.
    virtual bool writeFile(const QString &path, const QByteArray &contents) = 0;
    virtual QString systemDirectory() const = 0;

    /// Data files read and written as streams, so that a file larger than
    /// memory can pass (nullptr when the file cannot be opened).
    virtual std::unique_ptr<QIODevice> openFile(const QString &path, QIODevice::OpenMode mode) = 0;

    /// The attribute bits of a file or folder; nothing when it cannot be queried.
    virtual std::optional<int> fileAttributes(const QString &path) const = 0;
    /// Replaces a file by change(old contents) so that every reader sees the old
    /// or the new file whole, and concurrent updates of other processes are
    /// neither lost nor mixed in. A missing file reads as empty; a change that
    /// returns nothing leaves the file as it is. False when it could not be
    /// written (a read-only file or folder, no room).
    using FileChange = std::function<std::optional<QByteArray>(const QByteArray &old)>;
    virtual bool updateFile(const QString &path, const FileChange &change) = 0;

    /// The file system of the calling thread: the one installed on its own, else the platform's.
    static FileSystem &current();
    /// Installs a file system for the calling thread alone (nullptr returns the
    /// role to the platform) and returns the one it replaces.
    static std::shared_ptr<FileSystem> install(std::shared_ptr<FileSystem> files);
};

} // namespace qor
