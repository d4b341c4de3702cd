#pragma once

#include "qorgenlib_export.h"

#include "platform/platform.h"

#include <QHash>

class QProcess;

namespace qor {

/// The machine as a headless host sees it, through Qt Core alone: the real
/// clock, files and processes, the system's regional settings. With no screen
/// to show dialogs on, every dialog takes its default answer (Enter, OK on the
/// default text, the calculator closed at once) and sounds and keys go nowhere.
class QORGENLIB_EXPORT CorePlatform : public Platform
{
public:
    CorePlatform();
    ~CorePlatform() override;

    QDateTime now() const override;
    RegionalSettings regionalSettings() const override;
    void setRegionalSettings(const RegionalSettings &settings);

    int messageBoxE(const MessageBoxERequest &request) override;
    int systemMessageBox(const SystemMessageBoxRequest &request) override;
    InputBoxEAnswer inputBoxE(const InputBoxERequest &request) override;
    void showNote(const NoteRequest &note) override;
    void beep() override;
    void processEvents() override;

    void playSound(const QString &file, bool continuous) override;
    void stopSound() override;

    bool fileExists(const QString &path) const override;
    bool directoryExists(const QString &path) const override;
    bool makeDirectory(const QString &path) override;
    QList<FileEntry> listFiles(const QString &directory, const QString &wildcard) const override;
    std::optional<QByteArray> readFile(const QString &path) const override;
    bool writeFile(const QString &path, const QByteArray &contents) override;
    QString systemDirectory() const override;
    std::unique_ptr<QIODevice> openFile(const QString &path, QIODevice::OpenMode mode) override;
    void setSystemDirectory(const QString &path);
    /// Sound: the development sound folder.
    QString developmentSoundDirectory() const override;
    void setDevelopmentSoundDirectory(const QString &path);

    std::optional<int> fileAttributes(const QString &path) const override;
    bool updateFile(const QString &path, const FileChange &change) override;
    qint64 startProcess(const QString &commandLine, int windowStyle) override;
    void waitForProcess(qint64 processId) override;
    void shutDown() override;
    bool registerInstance(const QString &application) override;
    void keepOnTop(QObject *form, qint64 windowHandle) override;
    /// The folder that plays the system folder unless one is set.
    static QString defaultSystemDirectory();

    ScreenInfo screen() const override;
    void setMousePointer(int pointer) override;

    int virtualKeyOf(int ansiCode) const override;
    int scanCodeOf(int ansiCode) const override;
    void keyEvent(int virtualKey, int scanCode, int flags) override;

    /// A Windows-style path ("C:\data\x.ini") as a path of this machine.
    static QString localPath(const QString &path);
    // The answer of a box nobody answered: Enter, else its first button.
    static int defaultAnswer(const MessageBoxERequest &request);

private:
    RegionalSettings m_settings;
    QString m_systemDirectory;
    QString m_developmentSoundDirectory;
    QHash<qint64, QProcess *> m_processes;
};

} // namespace qor
