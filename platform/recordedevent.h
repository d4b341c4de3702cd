#pragma once

#include "qorgenlib_export.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace qor {

// What a recording platform saw the library show or do, one type per kind of
// record. Each type names its kind as the bridge writes it.

/// A button of a recorded message box, as the user read it.
struct QORGENLIB_EXPORT ShownButton
{
    QString name;
    QString caption;
    bool operator==(const ShownButton &) const = default;
};

/// The extended message box; its answer once it closed.
struct QORGENLIB_EXPORT MessageBoxEShown
{
    static constexpr const char *kind = "MsgBoxE";
    QString prompt;
    int buttons = 0; // the style value the caller passed
    QString title;
    QString caption;
    QString type; // "Critical", "Exclamation", ...
    QList<ShownButton> buttonsShown; // left to right
    std::optional<int> answer;
    bool operator==(const MessageBoxEShown &) const = default;
};

/// The plain system message box and its answer.
struct QORGENLIB_EXPORT MessageBoxShown
{
    static constexpr const char *kind = "MsgBox";
    QString prompt;
    int buttons = 0;
    QString title;
    int answer = 1;
    bool operator==(const MessageBoxShown &) const = default;
};

/// The input box; the text of the field or a cancel once it closed.
struct QORGENLIB_EXPORT InputBoxEShown
{
    static constexpr const char *kind = "InputBoxE";
    QString prompt;
    QString title;
    QString defaultValue;
    int maxLength = 0;
    struct Answer
    {
        bool cancelled = false;
        QString text;
        bool operator==(const Answer &) const = default;
    };
    std::optional<Answer> answer;
    bool operator==(const InputBoxEShown &) const = default;
};

/// The calculator and the register it left, or a cancel.
struct QORGENLIB_EXPORT CalculatorShown
{
    static constexpr const char *kind = "Calculator";
    double start = 0;
    bool cancelled = false;
    double result = 0;
    bool operator==(const CalculatorShown &) const = default;
};

/// The calculator's help card.
struct QORGENLIB_EXPORT CalculatorHelpShown
{
    static constexpr const char *kind = "CalculatorHelp";
    QString title;
    QStringList lines;
    bool operator==(const CalculatorHelpShown &) const = default;
};

/// The VAT note.
struct QORGENLIB_EXPORT NoteShown
{
    static constexpr const char *kind = "Note";
    QString text;
    bool operator==(const NoteShown &) const = default;
};

struct QORGENLIB_EXPORT BeepSounded
{
    static constexpr const char *kind = "beep";
    bool operator==(const BeepSounded &) const = default;
};

struct QORGENLIB_EXPORT SoundPlayed
{
    static constexpr const char *kind = "sound";
    QString file;
    bool continuous = false;
    bool operator==(const SoundPlayed &) const = default;
};

struct QORGENLIB_EXPORT SoundStopped
{
    static constexpr const char *kind = "stopSound";
    bool operator==(const SoundStopped &) const = default;
};

/// What the user saw or heard.
using ShownEvent = std::variant<MessageBoxEShown, MessageBoxShown, InputBoxEShown, CalculatorShown,
    CalculatorHelpShown, NoteShown, BeepSounded, SoundPlayed, SoundStopped>;

struct QORGENLIB_EXPORT ProcessStarted
{
    static constexpr const char *kind = "start";
    QString command;
    int windowStyle = 0;
    bool operator==(const ProcessStarted &) const = default;
};

struct QORGENLIB_EXPORT ShutDownAsked
{
    static constexpr const char *kind = "shutdown";
    bool operator==(const ShutDownAsked &) const = default;
};

struct QORGENLIB_EXPORT FormKeptOnTop
{
    static constexpr const char *kind = "onTop";
    QObject *form = nullptr;
    bool operator==(const FormKeptOnTop &) const = default;
};

struct QORGENLIB_EXPORT MousePointerSet
{
    static constexpr const char *kind = "mousePointer";
    int pointer = 0;
    bool operator==(const MousePointerSet &) const = default;
};

struct QORGENLIB_EXPORT KeySent
{
    static constexpr const char *kind = "keys";
    int virtualKey = 0;
    int scanCode = 0;
    int flags = 0;
    bool operator==(const KeySent &) const = default;
};

/// What the library did to the machine.
using MachineAction
    = std::variant<ProcessStarted, ShutDownAsked, FormKeptOnTop, MousePointerSet, KeySent>;

/// The kind of a record, as the bridge names it.
template <class Record> QString kindOf(const Record &record)
{
    return std::visit(
        [](const auto &event) { return QString::fromLatin1(std::decay_t<decltype(event)>::kind); },
        record);
}

} // namespace qor
