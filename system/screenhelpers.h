#pragma once

#include "lib/frame/windowsize.h"

#include <QObject>
#include <QString>
#include <QVariant>

namespace qor {

// Twips per millimetre, used exactly so.
constexpr double twipsPerMillimetre = 56.69286;

// The desktop beside the taskbar, in twips. The taskbar is taken as
// horizontal unless it spans the desktop's height; a desktop without one
// gives the whole desktop. The width is converted with the vertical factor,
// as it always was.
qorGenLib::WindowSize getWorkArea();

// The mouse position in twips along "X" or "Y" (either case), on the screen
// or, with a relative object, from its left or top edge. An object with a
// Parent is a control: its form's place and border come off too. Any other
// axis is reported on the plain system box and gives 0.
qint32 getMousePointerPos(const QString &xy, QObject *relativeObject);

// Keeps a form above all other windows: a widget itself, or a host form by
// its hWnd. Always returns Empty.
QVariant formOnTop(QObject *form);

// Twips to millimetres and back in double precision, returned as Single
// (RuntimeError 6 when the Single overflows).
float cMm(float twips);
float cTwips(float milliMeters);

} // namespace qor
