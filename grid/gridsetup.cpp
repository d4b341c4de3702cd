#include "grid/gridsetup.h"

#include "grid/gridpicture.h"
#include "grid/hostcollection.h"
#include "platform/clock.h"
#include "runtime/blanks.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

#include <limits>

namespace qor {

namespace {

// Colours and settings of the house style.
constexpr qint32 White = 0xFFFFFF;
constexpr qint32 Black = 0;
constexpr qint32 SystemHighlight = qint32(0x8000000D);
constexpr double HeadLines = 1.29;
constexpr qint32 MarqueeHighlightRow = 3;
constexpr qint32 MultiSelectSimple = 1;
constexpr qint32 ScrollBarsVertical = 2;
constexpr qint32 DividerInset = 6;
constexpr qint32 HeadingCentred = 2;
constexpr qint32 PicturePositionRight = 1;

// Placement in the frame, in twips.
constexpr double GridLeft = 20;
constexpr double GridTop = 100;
constexpr double FrameWidthMargin = 45;
constexpr double FrameHeightMargin = 130;
constexpr double HeadingBand = 290;
constexpr double BottomGap = 10;
// Room for the vertical scroll bar beside the last column.
constexpr double ScrollBarRoom = 240;

void set(QObject *object, const char *name, const QVariant &value)
{
    setProperty(object, name, value, Clock::current().regionalSettings());
}

double number(QObject *object, const char *name)
{
    return toDouble(getProperty(object, name), Clock::current().regionalSettings());
}

QString text(QObject *object, const char *name)
{
    return toText(getProperty(object, name), Clock::current().regionalSettings());
}

QObject *child(QObject *object, const char *name)
{
    const QVariant value = getProperty(object, name);
    QObject *found = value.value<QObject *>();
    if (!found)
        throw RuntimeError::objectNotSet();
    return found;
}

QVariant columnsOf(QObject *grid)
{
    return hostcollection::of(grid, "Columns");
}

void removeAllColumns(QObject *grid)
{
    qint32 count = hostcollection::count(columnsOf(grid));
    while (count != 0) {
        hostcollection::remove(columnsOf(grid), 0);
        const qint32 left = hostcollection::count(columnsOf(grid));
        if (left >= count)
            return; // a collection that keeps its columns would hold us here for ever
        count = left;
    }
}

void setHouseStyle(QObject *grid, QObject *frame)
{
    for (const char *name : { "AllowAddNew", "AllowDelete", "AllowUpdate", "AllowColSelect" })
        set(grid, name, false);
    QObject *style = child(grid, "Style");
    set(style, "BackColor", White);
    set(style, "ForeColor", Black);
    set(grid, "DeadAreaBackColor", getProperty(frame, "BackColor"));
    set(style, "WrapText", true);
    set(grid, "BorderStyle", qint16(0));
    set(grid, "HeadLines", HeadLines);
    set(grid, "RecordSelectors", false);
    set(grid, "PartialRightColumn", true);
    set(grid, "MultipleLines", qint16(0));
    set(grid, "MarqueeStyle", MarqueeHighlightRow);
    set(grid, "MultiSelect", MultiSelectSimple);
    set(grid, "ScrollBars", ScrollBarsVertical);
    set(grid, "RowDividerStyle", DividerInset);
    QObject *highlight = child(grid, "HighlightRowStyle");
    set(highlight, "BackColor", SystemHighlight);
    set(highlight, "ForeColor", White);
    set(highlight, "BorderAppearance", 0);
    QObject *selected = child(grid, "SelectedStyle");
    set(selected, "BackColor", SystemHighlight);
    set(selected, "ForeColor", White);
}

// The grid in the frame, its height cut to whole rows below the heading band.
void placeInFrame(QObject *grid, QObject *frame)
{
    set(grid, "Left", GridLeft);
    set(grid, "Top", GridTop);
    set(grid, "Width", number(frame, "Width") - FrameWidthMargin);
    set(grid, "Height", number(frame, "Height") - FrameHeightMargin);
    const double height = number(grid, "Height");
    set(grid, "Height", height - vbMod(height - HeadingBand, number(grid, "RowHeight")));
    set(grid, "Height", number(grid, "Height") + BottomGap);
    set(frame, "Height", number(grid, "Height") + FrameHeightMargin);
    set(frame, "Height", number(frame, "Height") - BottomGap);
}

void addColumnsUpTo(QObject *grid, qint16 colIndex)
{
    const qint32 count = hostcollection::count(columnsOf(grid));
    if (count > std::numeric_limits<qint16>::max())
        throw RuntimeError::overflow();
    for (qint16 n = qint16(count); n <= colIndex; ++n) {
        hostcollection::add(columnsOf(grid), n);
        if (n == std::numeric_limits<qint16>::max())
            throw RuntimeError::overflow();
    }
}

// A new last visible column: the previous one gets its own width back.
void keepWidths(QObject *grid, const GridColumnRequest &wanted, GridColumnWidths &widths)
{
    if (!wanted.visible)
        return;
    if (wanted.colIndex > widths.lastColIndex) {
        QObject *previous = hostcollection::item(columnsOf(grid), widths.lastColIndex);
        set(previous, "Width", widths.lastColWidth);
        if (widths.lastColWidth >= 1)
            widths.usedWidth += float(number(previous, "Width"));
    }
    widths.lastColIndex = wanted.colIndex;
    widths.lastColWidth = wanted.colWidth;
}

void defineColumn(QObject *grid, const GridColumnRequest &wanted, const GridColumnWidths &widths)
{
    QObject *column = hostcollection::item(columnsOf(grid), wanted.colIndex);
    set(column, "DataField", wanted.dataField);
    set(column, "Caption", wanted.caption);
    set(column, "Alignment", wanted.alignment);
    set(column, "Width", float(number(grid, "Width")) - widths.usedWidth - float(ScrollBarRoom));
    set(column, "FetchStyle", wanted.fetchStyle);
    set(column, "Visible", wanted.visible);
    set(column, "NumberFormat", wanted.numberFormat);
    set(column, "Merge", wanted.merge);
    set(column, "AllowFocus", !wanted.merge);
    set(column, "AllowSizing", wanted.allowColSizing);
    set(child(column, "HeadingStyle"), "EllipsisText", true);
    set(column, "DividerStyle", DividerInset);
    set(column, "HeadAlignment", wanted.alignment == 0 ? 0 : HeadingCentred);
}

const QString &ascending()
{
    static const QString text = QStringLiteral(" ASC");
    return text;
}

const QString &descending()
{
    static const QString text = QStringLiteral(" DESC");
    return text;
}

void showDirection(QObject *column)
{
    QObject *heading = child(column, "HeadingStyle");
    const QString direction = trimBlanks(text(column, "Tag"));
    QVariant picture;
    if (direction == trimBlanks(descending()))
        picture = QVariant::fromValue(GridPicture::of(GridPicture::SortDescending));
    else if (direction == trimBlanks(ascending()))
        picture = QVariant::fromValue(GridPicture::of(GridPicture::SortAscending));
    set(heading, "ForegroundPicture", picture);
    set(heading, "ForegroundPicturePosition", PicturePositionRight);
    set(heading, "TransparentForegroundPicture", true);
}

} // namespace

void setDBGridSize(QObject *grid, QObject *frame, bool fetchRowStyle, GridColumnWidths &widths)
{
    removeAllColumns(grid);
    setHouseStyle(grid, frame);
    set(grid, "FetchRowStyle", fetchRowStyle);
    placeInFrame(grid, frame);
    widths = GridColumnWidths();
}

void setDBGridCol(QObject *grid, const GridColumnRequest &column, GridColumnWidths &widths)
{
    addColumnsUpTo(grid, column.colIndex);
    keepWidths(grid, column, widths);
    defineColumn(grid, column, widths);
}

void setDBGridIcon(
    QObject *grid, qint16 colIndex, const QString &forceState, const QString &orderColumn)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    for (QObject *column : hostcollection::elements(columnsOf(grid))) {
        const bool clicked = toLong(getProperty(column, "ColIndex"), rs) == colIndex;
        if (!clicked) {
            set(column, "Tag", QString());
        } else if (!forceState.isEmpty()) {
            set(column, "Tag",
                trimBlanks(forceState) == trimBlanks(descending()) ? descending() : ascending());
            set(grid, "Tag", orderColumn + text(column, "Tag"));
        } else {
            set(column, "Tag",
                trimBlanks(text(column, "Tag")) == trimBlanks(ascending()) ? descending()
                                                                           : ascending());
        }
        showDirection(column);
    }
}

} // namespace qor
