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

} // namespace qor::test
