#pragma once

#include "qorgenlib_export.h"

#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

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
    // presenter runs it once per box, before the box is answered.
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
    // presenter runs it once per box, before the box is answered.
    std::function<void()> firstShown;
};

struct QORGENLIB_EXPORT InputBoxEAnswer
{
    bool cancelled = false;
    QString text; // untrimmed text of the field when OK was chosen
};

/// The VAT note: a short text shown beside a field for half a second.
struct QORGENLIB_EXPORT NoteRequest
{
    QString text;
    QObject *field = nullptr; // the host control it belongs beside, when known
};

/// What the user sees and answers: the boxes, the note, the beep, and the
/// events a long task lets through. All dialogs are modal.
class QORGENLIB_EXPORT DialogPresenter
{
public:
    virtual ~DialogPresenter();

    virtual int messageBoxE(const MessageBoxERequest &request) = 0;
    virtual int systemMessageBox(const SystemMessageBoxRequest &request) = 0;
    virtual InputBoxEAnswer inputBoxE(const InputBoxERequest &request) = 0;
    /// The note closes itself after half a second and never holds the caller longer.
    virtual void showNote(const NoteRequest &note) = 0;
    virtual void beep() = 0;
    virtual void processEvents() = 0;

    /// The presenter of the calling thread: the one installed on its own, else the platform's.
    static DialogPresenter &current();
    /// Installs a presenter for the calling thread alone (nullptr returns the
    /// role to the platform) and returns the one it replaces.
    static std::shared_ptr<DialogPresenter> install(std::shared_ptr<DialogPresenter> presenter);
};

} // namespace qor
