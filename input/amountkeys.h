#pragma once

#include <QObject>
#include <QVariant>

namespace qor {

// What the key handlers of amount fields read from the library object.
struct AmountKeySettings
{
    qint32 nbrDec = 0; // default number of decimals of KeyGetal
    qint32 btwTar1 = 0; // VAT rates in hundredths of a percent
    qint32 btwTar2 = 0;
    qint32 offset = 0; // language of the calculator's refusals
};

// The key filter of an amount or quantity field (an edit control, or a grid's
// cell editor with flexgrid): digits, one decimal separator, at most
// nbrDecimals decimals, "-" toggling the sign, "*" opening the calculator and
// "%" inserting its result register. Returns the key code to use, 0 when the
// key is consumed; ka is rewritten the same way where the key is refused.
// A missing nbrDecimals becomes the object's NbrDec in the caller's variable.
QVariant keyGetal(QObject *textBox, short &ka, QVariant &nbrDecimals, bool negNumber, bool flexgrid,
    const AmountKeySettings &settings);

// The key filter of a euro amount field: as keyGetal on an edit control, with
// two decimals unless eurDecimals reads as a number, grouping in the inserted
// result, and "%" adding the one VAT rate in force at once (with the VAT note)
// or opening the calculator when both rates are in force.
QVariant keyEuro(QObject *textBox, short &ka, QVariant &eurDecimals, bool negNumber,
    const AmountKeySettings &settings);

} // namespace qor
