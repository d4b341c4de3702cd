#pragma once

#include <QString>
#include <QVariant>

namespace qor {

// The digits 0 to 9 of a text, in order; everything else is dropped.
QString filterNumeric(const QString &text);
// Accented letters replaced by plain ones (Æ -> A, ß -> ss), the apostrophe
// and the double quote by the acute accent; only the characters listed in
// onlyThese when it is not empty.
QString filterAccenten(const QString &text, const QString &onlyThese = QString());
// Plain letters only; accented letters unaccented (filterAccent) or kept, and
// the characters of doNotRemove kept.
QString filterText(const QString &text, bool filterAccent, const QString &doNotRemove);
// Lower case character by character (the length never changes).
QString lowerCase(const QString &text);
// Lower case with a capital at the start of every word.
QString sCase(const QString &text);

} // namespace qor
