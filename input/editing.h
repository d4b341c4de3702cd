#pragma once

#include <QObject>

namespace qor {

// Selects the whole text of an edit control (or of a grid's cell editor), or
// puts the caret after its last character with nothing selected.
void selEdit(QObject *control, bool startAtEnd, bool gridEditor);

// Types one character into whatever has the keyboard focus: the plain key
// (never with Shift, Ctrl or Alt) pressed and released.
void sendAKey(int keyAscii);

} // namespace qor
