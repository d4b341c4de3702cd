#pragma once

#include "grid/gridcolumnwidths.h"

#include <QObject>
#include <QString>

namespace qor {

// Clears the grid, gives it the house style and fits it, in whole rows, into
// its frame; the frame then follows the grid. Resets the bookkeeping.
void setDBGridSize(QObject *grid, QObject *frame, bool fetchRowStyle, GridColumnWidths &widths);

struct GridColumnRequest
{
    qint16 colIndex = 0;
    QString dataField;
    QString caption;
    qint32 alignment = 0; // 0 left, 1 right, 2 centre
    qint32 colWidth = 0;
    bool visible = true;
    QString numberFormat;
    bool merge = false;
    bool fetchStyle = false;
    bool allowColSizing = false;
};

// Defines one column (adding the columns up to it); the last visible column
// so far takes the width that is left.
void setDBGridCol(QObject *grid, const GridColumnRequest &column, GridColumnWidths &widths);

// Shows the sort direction of one column in its heading (toggling it, or as
// forced with "ASC" or "DESC") and clears the others; a forced direction also
// leaves the sort clause orderColumn + " ASC"/" DESC" in the grid's Tag.
void setDBGridIcon(
    QObject *grid, qint16 colIndex, const QString &forceState, const QString &orderColumn);

} // namespace qor
