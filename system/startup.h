#pragma once

#include <QObject>
#include <QString>

namespace qor {

// Called once by each host at start: keeps the application object for the
// library's later use and refuses a second copy of the application. False
// when the host must end. Never raises: an application object that lacks a
// property reads as blank or False.
//
// A copy counts as running when its application object says so (PrevInstance)
// or when the platform knows another process that registered the same EXEName.
bool startUp(QObject *application, bool otherDLL, bool multiUse, qint32 offset);

} // namespace qor
