#pragma once

#include <QObject>
#include <QVariant>

#include <optional>

namespace qor {

// A value translation list: stored values and the texts shown for them, in
// the order they are added to a column.
struct TranslationTable
{
    QVariantList values;
    QVariantList texts;
};

// The table of a TranslateEnum value (0 to 8), catalogue texts in the module
// language; none for any other value. crossValue is the extra value that the
// yes/no table shows as "X".
std::optional<TranslationTable> translationTable(qint32 translateType, qint32 crossValue);

// Fills column col of the grid with the table and switches translation on.
// Items already there stay: a second call appends a second set. A type
// outside 0 to 8 raises 9 once the column is taken.
void setDBGridTranslation(QObject *grid, qint32 translateType, qint16 col, qint32 crossValue,
    bool typeADO, qint32 offset);

} // namespace qor
