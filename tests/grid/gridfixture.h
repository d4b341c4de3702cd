#pragma once

#include "host/column.h"
#include "host/frame.h"
#include "host/grid.h"
#include "runtime/callbyname.h"

#include <QStringList>

namespace qor::test {

inline QObject *child(QObject *object, const char *name)
{
    return getProperty(object, name).value<QObject *>();
}

inline QObject *columnOf(QObject *grid, qint32 index)
{
    return callOperation(child(grid, "Columns"), "Item", { index }).value<QObject *>();
}

inline qint32 columnCount(QObject *grid)
{
    return getProperty(child(grid, "Columns"), "Count").toInt();
}

// The widths of all columns, as "1000,1500,3260".
inline QString columnWidths(QObject *grid)
{
    QStringList widths;
    for (qint32 i = 0; i < columnCount(grid); ++i)
        widths.append(QString::number(getProperty(columnOf(grid, i), "Width").toDouble()));
    return widths.join(QLatin1Char(','));
}

} // namespace qor::test
