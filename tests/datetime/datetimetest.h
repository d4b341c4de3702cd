#pragma once

// Shared set-up of the date and time tests: a recording machine with a fixed
// clock, the regional settings of a locale and, when given, another
// two-digit-year window.

#include "lib/clsqorgenlib.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

namespace qor::test {

// Friday 15 March 2024, 08:30:00.
inline const QDateTime fixedNow(QDate(2024, 3, 15), QTime(8, 30), Qt::UTC);

inline std::shared_ptr<RecordingPlatform> installDateMachine(
    const QString &locale, const QDateTime &now = fixedNow, int twoDigitYearMax = 0)
{
    auto machine = installRecordingPlatform(locale);
    machine->setNow(now);
    if (twoDigitYearMax != 0) {
        RegionalSettings rs = machine->regionalSettings();
        rs.twoDigitYearMax = twoDigitYearMax;
        machine->setRegionalSettings(rs);
    }
    return machine;
}

// The prompts of the one message shown, or "" when none was.
inline QString shownPrompt(const RecordingPlatform &machine)
{
    const QList<ShownEvent> shown = machine.shown();
    if (shown.isEmpty())
        return QString();
    if (shown.size() > 1)
        return QStringLiteral("%1 messages").arg(shown.size());
    return onlyMessage(machine).value(QStringLiteral("prompt")).toString();
}

} // namespace qor::test
