#pragma once

#include <QObject>
#include <QString>

namespace qor {

// Checks the host's main menu form and dresses it in the house layout: a
// message on the plain system box for each design setting that differs (and
// on it goes), then maximised, the menu frame, the month view, eight coloured
// shapes and the version label placed and coloured. The colours follow the
// module-wide scheme code ("17": orange, anything else: blue). The form's
// children are reached by name; a missing one raises the host's error.
void setDeskTop(QObject *formMenu);

// The colour pair of a scheme code: the strong colour and the light one.
struct DeskTopColours
{
    double first = 0;
    double second = 0;
};
DeskTopColours deskTopColours(const QString &schemeCode);

} // namespace qor
