#pragma once

#include "runtime/regionalsettings.h"

#include <QObject>
#include <QString>

namespace qor {

// A VAT rate is a Long in hundredths of a percent (2100 is 21 %); 0 or less
// means the rate is not in use.

// The factor that adds the rate: 2100 gives 1.21.
double vatFactor(double rate);
// The caption of a calculator VAT key: the rate with one decimal, a blank and
// a percent sign ("21,0 %" under comma decimals).
QString vatKeyCaption(qint32 rate, const RegionalSettings &rs);
// A VAT key is shown only for a rate of 1 or more.
bool vatKeyVisible(qint32 rate);
// The VAT note " + 21 % BTW toevoegen " in the module language.
QString vatNoteText(qint32 rate, const RegionalSettings &rs);

// Fills a host combo box with "  0 %" and the rates in use, each entry's item
// data holding its rate, and selects an entry. The selection by value
// compares with the first rate for both entries, as it always did: a value
// equal to the second rate alone selects nothing; callers select it by index.
void loadComboBTW(QObject *combo, qint32 setValue, qint32 setListIndex, qint32 rate1, qint32 rate2,
    const RegionalSettings &rs);

// Whether typed amounts include VAT: with reset, clears the digit-typed flag
// and returns false; otherwise asks only when a digit was typed since.
bool controleerBtwClick(bool reset, qint32 offset);

} // namespace qor
