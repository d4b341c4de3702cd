#pragma once

#include <QString>

namespace qor {

// How a typed time is read and shown.
struct TimeEntryOptions
{
    bool allowMoreThan24Hours = false;
    bool twoDigitHours = true; // "08:30" rather than "8:30"
};

// Reads a typed time (830, 0830, 8.30, 8h30, 08:30, 8) into hours, the
// separator and two-digit minutes. `entry` is rewritten step by step as the
// reading goes; the result is the time, or "" when it cannot be one (a blank
// entry gives "" as well, `refused` tells them apart). Hours beyond a Long
// raise RuntimeError 6.
QString readTimeEntry(
    QString &entry, const QString &separator, const TimeEntryOptions &options, bool &refused);

// The system's time separator, found in the text of a time as the system
// writes it: its 3rd character, or the 2nd when the 3rd is a digit, or none
// when both are digits.
QString timeSeparatorOf(const QString &timeText);

} // namespace qor
