#pragma once

#include "platform/dialogpresenter.h"

#include <QString>

namespace qor {

// The style value of the extended message box: bits tested one by one, as the
// classic box did, so any combination (and any other bit) may be passed.
namespace MessageBoxStyle {
enum Bit : int {
    OK = 0, // no button bit: OK alone
    OKCancel = 1,
    YesNo = 4,
    Critical = 16,
    Question = 32,
    Exclamation = 48, // both the critical and the question bit
    Information = 64,
};
// Not a bit pattern: the identity-number box of the identity card check.
constexpr int IdentityNumber = -1;
} // namespace MessageBoxStyle

// What the extended message box returns (0: no button chosen).
namespace MessageBoxResult {
enum Value : int { None = 0, OK = 1, Cancel = 2, Yes = 6, No = 7 };
} // namespace MessageBoxResult

// How the extended message box reads its style value: the message type and
// the buttons are bit tests, not a table of the standard sets, so style 3
// shows OK and Cancel and style 5 Yes and No.
namespace MessageBoxLogic {

enum Type { Critical = 0, Exclamation = 1, Information = 2, Question = 3, Message = 4 };

Type typeOf(int style);
QString typeName(Type type);

// The visible buttons with their captions in the module language. In the
// identity-number mode cmdOK is captioned "Vreemd" (a foreign card, result 1)
// and cmdCancel "TypeFout" (a typing error, result 2).
QList<DialogButton> buttonsOf(int style);

// The result a key chooses with these buttons (0: none). Keys are named
// "Enter", "Escape" or by their letter, in either case.
int resultForKey(const QList<DialogButton> &buttons, const QString &key);
// The same in the identity-number mode: the first letter of a caption chooses
// its button; Enter and Escape choose the typing error, so that a number that
// fails the check is only accepted on purpose.
int resultForIdentityKey(const QList<DialogButton> &buttons, const QString &key);

// The text the identity-number box shows around the number.
QString identityNumberText(const QString &number);
// The result of a text the scanner field received ("OK" or "ANN"), 0 otherwise.
int resultForScannedText(const QList<DialogButton> &buttons, const QString &text);

// The box fully prepared for the platform; the caption is the caller's title,
// or the catalogue title of the type when the title is blank.
MessageBoxERequest prepare(const QString &prompt, int style, const QString &title);

} // namespace MessageBoxLogic

// Shows the extended message box in the module language and returns 1, 2, 6
// or 7; the answer is also kept as the module's last message-box result.
int showMessageBoxE(const QString &prompt, int style, const QString &title);

} // namespace qor
