#pragma once

#include "qorgenlib_export.h"

#include "platform/coreplatform.h"
#include "platform/recordedevent.h"

#include <QVariantList>

namespace qor {

/// A platform for tests and the bridge: it records everything the library shows
/// or plays, answers dialogs from a script, and reports the clock, regional
/// settings and screen it is given. Files and processes stay real.
///
/// Scripted answers, consumed in order by the dialogs:
/// - extended message box: a result number, a key name ("Enter", "Escape", "J")
///   or a map {"scan": text} typed through its scanner field; default "Enter";
/// - plain message box: a result number; default 1; a box with OK alone takes
///   no answer;
/// - input box: a string typed into the field before OK, or {"cancel": true};
///   default OK on the default value;
/// - calculator: the calculator's scripted presenter takes its answer from
///   the same script (calculator/scriptedcalculator.h).
class QORGENLIB_EXPORT RecordingPlatform : public CorePlatform
{
public:
    RecordingPlatform();

    /// What the platform reports.
    void setNow(const QDateTime &now); // an invalid value follows the real clock
    void setLocale(const QString &name);
    void setScreen(const ScreenInfo &screen);
    void setSoundPlayback(
        std::function<void(const QString &file, bool continuous)> play, std::function<void()> stop);

    /// The dialog script.
    void setAnswers(const QVariantList &answers);
    void addAnswer(const QVariant &answer);
    QVariantList pendingAnswers() const { return m_answers; }

    /// What the user saw or heard, in order.
    const QList<ShownEvent> &shown() const { return m_shown; }
    /// What the library did to the machine: key events, program starts, mouse
    /// pointer, shut-down, topmost forms.
    const QList<MachineAction> &actions() const { return m_actions; }
    void clearRecords();

    QDateTime now() const override;
    int messageBoxE(const MessageBoxERequest &request) override;
    int systemMessageBox(const SystemMessageBoxRequest &request) override;
    InputBoxEAnswer inputBoxE(const InputBoxERequest &request) override;
    void showNote(const NoteRequest &note) override;
    void beep() override;
    void processEvents() override;
    void playSound(const QString &file, bool continuous) override;
    void stopSound() override;
    qint64 startProcess(const QString &commandLine, int windowStyle) override;
    void shutDown() override;
    void keepOnTop(QObject *form, qint64 windowHandle) override;
    ScreenInfo screen() const override;
    void setMousePointer(int pointer) override;
    void keyEvent(int virtualKey, int scanCode, int flags) override;

    /// The next scripted answer, taken from the script; nothing when it is spent.
    std::optional<QVariant> takeAnswer();
    /// Records what the user saw or heard.
    void record(const ShownEvent &event) { m_shown.append(event); }
    /// A scripted answer that cancels ({"cancel": true}), or that is a number.
    static bool isCancel(const QVariant &answer);
    static bool isNumber(const QVariant &answer);

private:
    int messageBoxEAnswer(const MessageBoxERequest &request);
    // The record at the place a dialog took, while it is still there.
    template <class Shown> Shown *shownAt(qsizetype at)
    {
        return at < m_shown.size() ? std::get_if<Shown>(&m_shown[at]) : nullptr;
    }

    QDateTime m_now;
    ScreenInfo m_screen;
    QVariantList m_answers;
    QList<ShownEvent> m_shown;
    QList<MachineAction> m_actions;
    std::function<void(const QString &, bool)> m_play;
    std::function<void()> m_stop;
};

} // namespace qor
