#pragma once

#include "qorgenlib_export.h"

#include "platform/calculatorsession.h"
#include "runtime/regionalsettings.h"

#include <QByteArray>
#include <QDateTime>
#include <QIODevice>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>

namespace qor {

/// One button of a dialog as the library laid it out.
struct QORGENLIB_EXPORT DialogButton
{
    QString name; // "cmdOK", "cmdCancel", "cmdYes", "cmdNo"
    QString caption;
    int result = 0;
};

/// The extended message box, fully prepared by the library: what to show and
/// how keys and scanner codes map to results (0: the key chooses nothing).
struct QORGENLIB_EXPORT MessageBoxERequest
{
    QString prompt;
    int style = 0; // the style value the caller passed
    QString title; // the title the caller passed
    QString caption; // the title bar text actually shown
    QString text; // the text shown: the prompt, or in the identity-number mode the number explained
    int type = 4; // 0 Critical, 1 Exclamation, 2 Information, 3 Question, 4 Message
    QString typeName; // "Critical", "Exclamation", ...
    QList<DialogButton> buttons; // visible buttons, left to right
    std::function<int(const QString &key)> resultForKey; // "Enter", "Escape", "J", ...
    std::function<int(const QString &scan)> resultForScan; // text typed by a scanner, e.g. "%[OK]"
    // The box's own step when it is first shown (the sound of its type); every
    // platform runs it once per box, before the box is answered.
    std::function<void()> firstShown;
};

struct QORGENLIB_EXPORT SystemMessageBoxRequest
{
    QString prompt;
    int style = 0;
    QString title;
};

struct QORGENLIB_EXPORT InputBoxERequest
{
    QString prompt;
    QString title;
    QString caption;
    QString defaultValue;
    int maxLength = 250;
    QString okCaption;
    QString cancelCaption;
    // The box's own step when it is first shown (the question sound); every
    // platform runs it once per box, before the box is answered.
    std::function<void()> firstShown;
};

struct QORGENLIB_EXPORT InputBoxEAnswer
{
    bool cancelled = false;
    QString text; // untrimmed text of the field when OK was chosen
};

/// The screen as the library measures it.
struct QORGENLIB_EXPORT ScreenInfo
{
    int width = 1024; // pixels
    int height = 768;
    int twipsPerPixelX = 15;
    int twipsPerPixelY = 15;
    std::optional<QRect> taskbar; // in pixels, when the system has one
    QPoint cursor; // pixels
    QPoint origin; // top-left pixel of the desktop

    /// The desktop without a taskbar that runs along a whole edge of it.
    QRect workArea() const;
};

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

/// The only door to the machine. Every subsystem reaches the clock, the regional
/// settings, the screen, dialogs, sound, files, processes and keyboard through
/// the platform installed for its thread, so hosts, tests and the bridge can
/// choose what the library sees.
class QORGENLIB_EXPORT Platform
{
public:
    virtual ~Platform();

    /// Clock and regional settings.
    virtual QDateTime now() const = 0;
    virtual RegionalSettings regionalSettings() const = 0;

    /// User interface. All dialogs are modal.
    virtual int messageBoxE(const MessageBoxERequest &request) = 0;
    virtual int systemMessageBox(const SystemMessageBoxRequest &request) = 0;
    virtual InputBoxEAnswer inputBoxE(const InputBoxERequest &request) = 0;
    /// The calculator and the VAT note (platform/calculatorsession.h). The note
    /// closes itself after half a second and never holds the caller longer.
    virtual CalculatorAnswer calculator(const CalculatorRequest &request) = 0;
    virtual void showNote(const NoteRequest &note) = 0;
    virtual void beep() = 0;
    virtual void processEvents() = 0;

    /// Sound: a wave file once or looping; stop what plays.
    virtual void playSound(const QString &file, bool continuous) = 0;
    virtual void stopSound() = 0;

    /// Files and folders; paths may use "\" or "/".
    virtual bool fileExists(const QString &path) const = 0;
    virtual bool directoryExists(const QString &path) const = 0;
    virtual bool makeDirectory(const QString &path) = 0;
    virtual QList<FileEntry> listFiles(const QString &directory, const QString &wildcard) const = 0;
    virtual std::optional<QByteArray> readFile(const QString &path) const = 0;
    // Writes the whole file or nothing: a reader sees the old file or the new
    // one, and a failed write leaves no part of the new contents behind.
    virtual bool writeFile(const QString &path, const QByteArray &contents) = 0;
    virtual QString systemDirectory() const = 0;
    /// Sound: the folder a station that is not a customer station plays its
    /// sounds from, whatever the caller asks for.
    virtual QString developmentSoundDirectory() const = 0;

    /// Data files read and written as streams, so that a file larger than
    /// memory can pass (nullptr when the file cannot be opened).
    virtual std::unique_ptr<QIODevice> openFile(const QString &path, QIODevice::OpenMode mode) = 0;

    /// System services: file attributes, whole-file updates, processes, the
    /// running copies of an application, shut-down and topmost windows.
    /// The attribute bits of a file or folder; nothing when it cannot be queried.
    virtual std::optional<int> fileAttributes(const QString &path) const = 0;
    /// Replaces a file by change(old contents) so that every reader sees the old
    /// or the new file whole, and concurrent updates of other processes are
    /// neither lost nor mixed in. A missing file reads as empty; a change that
    /// returns nothing leaves the file as it is. False when it could not be
    /// written (a read-only file or folder, no room).
    using FileChange = std::function<std::optional<QByteArray>(const QByteArray &old)>;
    virtual bool updateFile(const QString &path, const FileChange &change) = 0;
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
    /// Keeps the form's window above all others.
    virtual void keepOnTop(QObject *form, qint64 windowHandle) = 0;

    /// Screen, cursor and windows.
    virtual ScreenInfo screen() const = 0;
    virtual void setMousePointer(int pointer) = 0;

    /// Key injection: the virtual key and scan code of a character, and one
    /// key event (flags 0 down, 2 up) into the input stream of the focus.
    virtual int virtualKeyOf(int ansiCode) const = 0;
    virtual int scanCodeOf(int ansiCode) const = 0;
    virtual void keyEvent(int virtualKey, int scanCode, int flags) = 0;

    /// The platform of the calling thread; a headless default until one is installed.
    static Platform &current();
    /// Installs a platform for the calling thread and returns the one it replaces.
    static std::shared_ptr<Platform> install(std::shared_ptr<Platform> platform);
};

/// Shorthand used throughout the library.
inline Platform &platform()
{
    return Platform::current();
}

} // namespace qor
