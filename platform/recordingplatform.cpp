#include "platform/recordingplatform.h"

namespace qor {

RecordingPlatform::RecordingPlatform() = default;

bool RecordingPlatform::isCancel(const QVariant &answer)
{
    return answer.typeId() == QMetaType::QVariantMap
        && answer.toMap().value(QStringLiteral("cancel")).toBool();
}

bool RecordingPlatform::isNumber(const QVariant &answer)
{
    switch (answer.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Short: return true;
    default: return false;
    }
}

void RecordingPlatform::setNow(const QDateTime &now)
{
    m_now = now;
}
void RecordingPlatform::setLocale(const QString &name)
{
    setRegionalSettings(RegionalSettings::fromLocale(name));
}
void RecordingPlatform::setScreen(const ScreenInfo &screen)
{
    m_screen = screen;
}

void RecordingPlatform::setSoundPlayback(
    std::function<void(const QString &, bool)> play, std::function<void()> stop)
{
    m_play = std::move(play);
    m_stop = std::move(stop);
}

void RecordingPlatform::setAnswers(const QVariantList &answers)
{
    m_answers = answers;
}
void RecordingPlatform::addAnswer(const QVariant &answer)
{
    m_answers.append(answer);
}

void RecordingPlatform::clearRecords()
{
    m_shown.clear();
    m_actions.clear();
}

std::optional<QVariant> RecordingPlatform::takeAnswer()
{
    if (m_answers.isEmpty())
        return std::nullopt;
    return m_answers.takeFirst();
}

QDateTime RecordingPlatform::now() const
{
    return m_now.isValid() ? m_now : CorePlatform::now();
}

int RecordingPlatform::messageBoxEAnswer(const MessageBoxERequest &request)
{
    // A key that chooses no button is swallowed and the box waits for the next one.
    while (auto answer = takeAnswer()) {
        int result = 0;
        if (isNumber(*answer))
            result = answer->toInt();
        else if (answer->typeId() == QMetaType::QVariantMap && request.resultForScan)
            result
                = request.resultForScan(answer->toMap().value(QStringLiteral("scan")).toString());
        else if (request.resultForKey)
            result = request.resultForKey(answer->toString());
        if (result != 0)
            return result;
    }
    return defaultAnswer(request);
}

// The box is recorded as it appears; what its first showing plays follows it,
// and its answer is filled in when it closes.
int RecordingPlatform::messageBoxE(const MessageBoxERequest &request)
{
    const qsizetype at = m_shown.size();
    // Dialogs: the visible buttons, left to right, as the user read them.
    QList<ShownButton> buttonsShown;
    for (const DialogButton &button : request.buttons)
        buttonsShown.append({ button.name, button.caption });
    record(MessageBoxEShown { request.prompt, request.style, request.title, request.caption,
        request.typeName, buttonsShown, std::nullopt });
    if (request.firstShown)
        request.firstShown();
    const int answer = messageBoxEAnswer(request);
    if (auto *box = shownAt<MessageBoxEShown>(at))
        box->answer = answer;
    return answer;
}

int RecordingPlatform::systemMessageBox(const SystemMessageBoxRequest &request)
{
    // A box with OK alone can only be answered OK: it leaves the script to the
    // dialogs that have a choice (the notice of a missing sound among them).
    constexpr int buttonBits = 0xF;
    int answer = 1;
    if ((request.style & buttonBits) != 0) {
        const auto scripted = takeAnswer();
        if (scripted && isNumber(*scripted))
            answer = scripted->toInt();
    }
    record(MessageBoxShown { request.prompt, request.style, request.title, answer });
    return answer;
}

InputBoxEAnswer RecordingPlatform::inputBoxE(const InputBoxERequest &request)
{
    const qsizetype at = m_shown.size();
    record(InputBoxEShown {
        request.prompt, request.title, request.defaultValue, request.maxLength, std::nullopt });
    if (request.firstShown)
        request.firstShown();
    InputBoxEAnswer answer { false, request.defaultValue };
    if (const auto scripted = takeAnswer()) {
        if (isCancel(*scripted))
            answer = { true, QString() };
        else
            answer.text = scripted->toString();
    }
    // The field refuses what its maximum length does not hold.
    if (request.maxLength > 0 && answer.text.size() > request.maxLength)
        answer.text.truncate(request.maxLength);
    if (auto *box = shownAt<InputBoxEShown>(at))
        box->answer = InputBoxEShown::Answer { answer.cancelled, answer.text };
    return answer;
}

void RecordingPlatform::showNote(const NoteRequest &note)
{
    record(NoteShown { note.text });
}

void RecordingPlatform::beep()
{
    record(BeepSounded {});
}

// No events are pending in a recorded session; running them could re-enter the caller.
void RecordingPlatform::processEvents() { }

void RecordingPlatform::playSound(const QString &file, bool continuous)
{
    record(SoundPlayed { file, continuous });
    if (m_play)
        m_play(file, continuous);
}

void RecordingPlatform::stopSound()
{
    record(SoundStopped {});
    if (m_stop)
        m_stop();
}

qint64 RecordingPlatform::startProcess(const QString &commandLine, int windowStyle)
{
    m_actions.append(ProcessStarted { commandLine, windowStyle });
    return CorePlatform::startProcess(commandLine, windowStyle);
}

// A recorded session never switches the machine off.
void RecordingPlatform::shutDown()
{
    m_actions.append(ShutDownAsked {});
}

void RecordingPlatform::keepOnTop(QObject *form, qint64)
{
    m_actions.append(FormKeptOnTop { form });
}

ScreenInfo RecordingPlatform::screen() const
{
    return m_screen;
}

void RecordingPlatform::setMousePointer(int pointer)
{
    m_actions.append(MousePointerSet { pointer });
}

void RecordingPlatform::keyEvent(int virtualKey, int scanCode, int flags)
{
    m_actions.append(KeySent { virtualKey, scanCode, flags });
}

} // namespace qor
