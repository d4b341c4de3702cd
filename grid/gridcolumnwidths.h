#pragma once

#include <QtGlobal>

namespace qor {

/// The column width bookkeeping a library object keeps between grid calls; one
/// grid is set up at a time and the state carries over to the next grid until
/// setDBGridSize starts afresh.
struct GridColumnWidths
{
    qint32 lastColIndex = 0; // the last visible column defined so far
    qint32 lastColWidth = 0; // the width asked for it
    float usedWidth = 0; // the widths of the visible columns already final
};

} // namespace qor
