#pragma once

#include <QObject>
#include <QString>

namespace qor {

// Selects the first entry of a list or combo box whose ItemData is itemData
// (-9999: not given) or whose text is text ("" : not given), testing the
// number before the text on each entry. Without a match the fallback applies:
// -1 clears the selection, 0 selects the first entry, anything else leaves it.
// An empty list is left alone. Returns whether an entry matched.
bool setListIndex(QObject *listControl, qint32 itemData, const QString &text, qint32 notFound);

// A fingerprint of what a form's controls show, kept in the form's Tag
// (reset) or compared with it; returns whether anything changed (false on a
// reset). The separator is the library's vbSplit.
bool dataChange(QObject *form, bool reset, const QString &separator);

} // namespace qor
