#include "platform/coreplatform.h"

#include "platform/commandline.h"
#include "platform/keyboardlayout.h"
#include "platform/wildcard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMutex>
#include <QProcess>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#ifndef QORGENLIB_SYSTEM_DIR
#define QORGENLIB_SYSTEM_DIR "/var/lib/qorsoft"
#endif

namespace qor {

CorePlatform::CorePlatform()
    : m_settings(RegionalSettings::fromLocale(QLocale::system().name()))
    , m_systemDirectory(defaultSystemDirectory())
    , m_developmentSoundDirectory(
          QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
          + QStringLiteral("/qorSoft/MultiMedia"))
{ }

CorePlatform::~CorePlatform()
{
    qDeleteAll(m_processes);
}

QDateTime CorePlatform::now() const
{
    return QDateTime::currentDateTime();
}
RegionalSettings CorePlatform::regionalSettings() const
{
    return m_settings;
}
void CorePlatform::setRegionalSettings(const RegionalSettings &settings)
{
    m_settings = settings;
}

// Without a screen the box is shown to nobody, but runs its own first steps
// as it would on a screen.
int CorePlatform::messageBoxE(const MessageBoxERequest &request)
{
    if (request.firstShown)
        request.firstShown();
    return defaultAnswer(request);
}

int CorePlatform::defaultAnswer(const MessageBoxERequest &request)
{
    const int result = request.resultForKey ? request.resultForKey(QStringLiteral("Enter")) : 0;
    if (result != 0)
        return result;
    return request.buttons.isEmpty() ? 1 : request.buttons.first().result;
}

int CorePlatform::systemMessageBox(const SystemMessageBoxRequest &)
{
    return 1;
}

InputBoxEAnswer CorePlatform::inputBoxE(const InputBoxERequest &request)
{
    if (request.firstShown)
        request.firstShown();
    return { false, request.defaultValue };
}

void CorePlatform::showNote(const NoteRequest &) { }
void CorePlatform::beep() { }

void CorePlatform::processEvents()
{
    if (QCoreApplication::instance())
        QCoreApplication::processEvents();
}

void CorePlatform::playSound(const QString &, bool) { }
void CorePlatform::stopSound() { }

QString CorePlatform::localPath(const QString &path)
{
    QString local = path;
    local.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return local;
}

bool CorePlatform::fileExists(const QString &path) const
{
    const QFileInfo info(localPath(path));
    return info.exists() && info.isFile();
}

bool CorePlatform::directoryExists(const QString &path) const
{
    return QFileInfo(localPath(path)).isDir();
}

bool CorePlatform::makeDirectory(const QString &path)
{
    return QDir().mkpath(localPath(path));
}

QList<FileEntry> CorePlatform::listFiles(const QString &directory, const QString &wildcard) const
{
    // Normal files only: no folders and no hidden files, in the order the
    // file system gives them.
    QList<FileEntry> entries;
    const QDir dir(localPath(directory));
    if (!dir.exists())
        return entries;
    const QFileInfoList infos
        = dir.entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QFileInfo &info : infos) {
        if (!matchesWildcard(info.fileName(), wildcard))
            continue;
        entries.append({ info.fileName(), fileAttributes(info.filePath()).value_or(0) });
    }
    return entries;
}

std::optional<QByteArray> CorePlatform::readFile(const QString &path) const
{
    QFile file(localPath(path));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

bool CorePlatform::writeFile(const QString &path, const QByteArray &contents)
{
    // Written beside the file and renamed over it when complete.
    QSaveFile file(localPath(path));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(contents) != contents.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

std::unique_ptr<QIODevice> CorePlatform::openFile(const QString &path, QIODevice::OpenMode mode)
{
    auto file = std::make_unique<QFile>(localPath(path));
    if (!file->open(mode))
        return nullptr;
    return file;
}

QString CorePlatform::defaultSystemDirectory()
{
    return QStringLiteral(QORGENLIB_SYSTEM_DIR);
}

QString CorePlatform::systemDirectory() const
{
    return m_systemDirectory;
}
void CorePlatform::setSystemDirectory(const QString &path)
{
    m_systemDirectory = path;
}

// Sound: the development sound folder.
QString CorePlatform::developmentSoundDirectory() const
{
    return m_developmentSoundDirectory;
}
void CorePlatform::setDevelopmentSoundDirectory(const QString &path)
{
    m_developmentSoundDirectory = path;
}

qint64 CorePlatform::startProcess(const QString &commandLine, int)
{
    enum { invalidCall = 5, fileNotFound = 53, permissionDenied = 70 };
    QStringList words = splitCommandLine(commandLine);
    if (words.isEmpty() || words.first().isEmpty())
        return -invalidCall;
    QString program = localPath(words.takeFirst());
    if (program.contains(QLatin1Char('/'))) {
        const QFileInfo info(program);
        if (!info.exists())
            return -fileNotFound;
        if (!info.isFile() || !info.isExecutable())
            return -permissionDenied;
        program = info.absoluteFilePath();
    } else {
        program = QStandardPaths::findExecutable(program);
        if (program.isEmpty())
            return -fileNotFound;
    }
    auto *process = new QProcess;
    // The program has no console: its standard streams go nowhere.
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, words);
    if (!process->waitForStarted()) {
        delete process;
        return -invalidCall;
    }
    const qint64 id = process->processId();
    m_processes.insert(id, process);
    return id;
}

void CorePlatform::waitForProcess(qint64 processId)
{
    QProcess *process = m_processes.take(processId);
    if (!process)
        return;
    process->waitForFinished(-1);
    delete process;
}

// logind decides, as it does for any user's request; nothing is forced.
void CorePlatform::shutDown()
{
    QProcess::startDetached(QStringLiteral("systemctl"), { QStringLiteral("poweroff") });
}

// A headless host has no windows.
void CorePlatform::keepOnTop(QObject *, qint64) { }

std::optional<int> CorePlatform::fileAttributes(const QString &path) const
{
    const QByteArray local = QFile::encodeName(localPath(path));
    struct stat info;
    if (::stat(local.constData(), &info) != 0)
        return std::nullopt;
    int attributes = 0;
    if (S_ISDIR(info.st_mode))
        attributes |= FileAttribute::Directory;
    else if (S_ISREG(info.st_mode))
        attributes |= FileAttribute::Archive;
    if (!(info.st_mode & S_IWUSR))
        attributes |= FileAttribute::ReadOnly;
    const QString name = QFileInfo(QString::fromLocal8Bit(local)).fileName();
    if (name.startsWith(QLatin1Char('.')) && name != QLatin1String(".")
        && name != QLatin1String(".."))
        attributes |= FileAttribute::Hidden;
    return attributes;
}

namespace {

// Closes a descriptor when it goes out of scope.
struct Descriptor
{
    int fd = -1;
    ~Descriptor()
    {
        if (fd >= 0)
            ::close(fd);
    }
};

// Waits for a lock (LOCK_EX or LOCK_SH) on the whole file.
bool lockWhole(int fd, int operation)
{
    while (::flock(fd, operation) != 0) {
        if (errno != EINTR)
            return false;
    }
    return true;
}

int openLockFile(const QString &path)
{
    return ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
}

std::optional<QByteArray> readWhole(int fd)
{
    QByteArray contents;
    char buffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n == 0)
            return contents;
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return std::nullopt;
        contents.append(buffer, n);
    }
}

bool writeWhole(int fd, const QByteArray &contents)
{
    const char *data = contents.constData();
    qsizetype left = contents.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, data, size_t(left));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        data += n;
        left -= n;
    }
    return true;
}

// Writes the new contents beside the file and renames them over it: a reader
// sees the old file or the new one, never a part.
bool replaceFile(const QByteArray &path, const struct stat &old, const QByteArray &contents)
{
    const QFileInfo info(QString::fromLocal8Bit(path));
    const QByteArray folder = QFile::encodeName(info.absolutePath());
    const QByteArray temporary = folder + "/." + QFile::encodeName(info.fileName()) + ".new";
    Descriptor out { ::open(
        temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, old.st_mode & 07777) };
    if (out.fd < 0)
        return false;
    const bool written = ::fchmod(out.fd, old.st_mode & 07777) == 0 && writeWhole(out.fd, contents)
        && ::fsync(out.fd) == 0;
    if (!written || ::rename(temporary.constData(), path.constData()) != 0) {
        ::unlink(temporary.constData());
        return false;
    }
    Descriptor dir { ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC) };
    if (dir.fd >= 0)
        ::fsync(dir.fd);
    return true;
}

} // namespace

bool CorePlatform::updateFile(const QString &path, const FileChange &change)
{
    QString target = localPath(path);
    const QFileInfo link(target);
    if (link.isSymLink() && !link.canonicalFilePath().isEmpty())
        target = link.canonicalFilePath();
    const QByteArray local = QFile::encodeName(target);
    // Writers lock the file itself; the one that renames a new file over it
    // leaves the others a lock on a file that is gone, so they look again.
    for (int attempt = 0; attempt < 1000; ++attempt) {
        Descriptor file { ::open(local.constData(), O_RDONLY | O_CLOEXEC) };
        if (file.fd < 0 && errno == ENOENT)
            file.fd = ::open(local.constData(), O_RDONLY | O_CREAT | O_CLOEXEC, 0666);
        if (file.fd < 0 || !lockWhole(file.fd, LOCK_EX))
            return false;
        struct stat locked, current;
        if (::fstat(file.fd, &locked) != 0)
            return false;
        if (::stat(local.constData(), &current) != 0 || current.st_ino != locked.st_ino
            || current.st_dev != locked.st_dev)
            continue;
        // A file without write permission is read-only, even for the administrator.
        if (!S_ISREG(locked.st_mode) || ::access(local.constData(), W_OK) != 0
            || !(locked.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)))
            return false;
        const auto old = readWhole(file.fd);
        if (!old)
            return false;
        const auto contents = change(*old);
        if (!contents)
            return true;
        return replaceFile(local, locked, *contents);
    }
    return false;
}

bool CorePlatform::registerInstance(const QString &application)
{
    // Every running copy holds a shared lock on one file per application; a
    // copy that can take the lock exclusively is alone. Turning the exclusive
    // lock into a shared one lets go of it for a moment, so the test and the
    // change happen under a second, exclusive lock that every starting copy
    // takes first. The locks die with the process, however it ends.
    static QMutex mutex;
    static QHash<QString, int> held;
    const QMutexLocker locker(&mutex);
    QString name = application.toLower();
    for (QChar &c : name) {
        if (!c.isLetterOrNumber() && c != QLatin1Char('.') && c != QLatin1Char('-'))
            c = QLatin1Char('_');
    }
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QString base = folder + QStringLiteral("/qorgenlib-") + name;
    const Descriptor gate { openLockFile(base + QStringLiteral(".gate")) };
    if (gate.fd < 0 || !lockWhole(gate.fd, LOCK_EX))
        return false;
    int fd = held.value(name, -1);
    if (fd < 0) {
        fd = openLockFile(base + QStringLiteral(".instance"));
        if (fd < 0)
            return false;
        held.insert(name, fd);
    }
    const bool alone = ::flock(fd, LOCK_EX | LOCK_NB) == 0;
    lockWhole(fd, LOCK_SH);
    return !alone;
}

ScreenInfo CorePlatform::screen() const
{
    return ScreenInfo();
}
void CorePlatform::setMousePointer(int) { }

int CorePlatform::virtualKeyOf(int ansiCode) const
{
    return virtualKeyScan(ansiCode);
}
int CorePlatform::scanCodeOf(int ansiCode) const
{
    return oemScanCode(ansiToOem(ansiCode));
}
void CorePlatform::keyEvent(int, int, int) { }

} // namespace qor
