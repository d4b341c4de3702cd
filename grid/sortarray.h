#pragma once

#include "runtime/regionalsettings.h"

#include <QVariant>

namespace qor {

// Sorts a one-dimensional array (lower bound 0) in place by number, by text
// ignoring case or by length, ascending or descending, dropping its empty
// elements, which leaves them as Empty at the end. A companion array of the
// same size, when given, follows its partners. The order is that of a stable
// insertion into the emptied array; this version gets the same result in
// O(n log n).
//
// arrayName not an array: RuntimeError 13. All elements empty: 9 (the array
// is then emptied). A companion of another size: the critical message box,
// and arrayName comes back emptied while the companion is untouched.
// refArrayName may be null (no companion); an Empty Variant counts as none.
void sortArray(QVariant &arrayName, int sortOrder, QVariant *refArrayName, qint32 offset);

// How the sort sees one element; shared with anything that must agree with it.
namespace sortelement {

// An element the sort drops: Empty or the empty text. Null is not blank;
// a nested array or an object raises 13.
bool isBlank(const QVariant &v);
// An element that may start the output (v <> "" is True): neither blank nor Null.
bool startsOutput(const QVariant &v);
// Whether x goes before y in the order 1 to 6 (soNumeric .. soLengthRev);
// false for any other order, and false when a Null takes part in a text or
// length comparison. A Null in a numeric order raises 94.
bool goesBefore(int sortOrder, const QVariant &x, const QVariant &y, const RegionalSettings &rs);

} // namespace sortelement

} // namespace qor
