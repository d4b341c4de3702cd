#include "platform/coreplatform.h"

#include "platform/keyboardlayout.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace qor {

CorePlatform::CorePlatform()
    : m_settings(RegionalSettings::fromLocale(QLocale::system().name()))
    , m_systemDirectory(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
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

int CorePlatform::messageBoxE(const MessageBoxERequest &request)
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
    return { false, request.defaultValue };
}

CalculatorAnswer CorePlatform::calculator(const CalculatorRequest &request)
{
    return { false, request.start };
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
    QList<FileEntry> entries;
    const QDir dir(localPath(directory));
    if (!dir.exists())
        return entries;
    const QRegularExpression match
        = QRegularExpression::fromWildcard(wildcard, Qt::CaseInsensitive);
    const QFileInfoList infos
        = dir.entryInfoList(QDir::Files | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QFileInfo &info : infos) {
        if (!match.match(info.fileName()).hasMatch())
            continue;
        // Files that may be written carry the archive bit, the others read-only.
        int attributes = info.isWritable() ? 32 : 1;
        if (info.isHidden())
            attributes |= 2;
        entries.append({ info.fileName(), attributes });
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
    QFile file(localPath(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return file.write(contents) == contents.size();
}

std::unique_ptr<QIODevice> CorePlatform::openFile(const QString &path, QIODevice::OpenMode mode)
{
    auto file = std::make_unique<QFile>(localPath(path));
    if (!file->open(mode))
        return nullptr;
    return file;
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
    QStringList words = QProcess::splitCommand(commandLine);
    if (words.isEmpty())
        return -5; // invalid procedure call: nothing to start
    auto *process = new QProcess;
    const QString program = localPath(words.takeFirst());
    process->start(program, words);
    if (!process->waitForStarted()) {
        delete process;
        return -53; // file not found
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

void CorePlatform::shutDown()
{
    QProcess::startDetached(QStringLiteral("systemctl"), { QStringLiteral("poweroff") });
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
