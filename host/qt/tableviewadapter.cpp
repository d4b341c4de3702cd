#include "host/qt/tableviewadapter.h"

#include "host/qt/gridstyleadapter.h"
#include "host/qt/tablecolumnsadapter.h"
#include "runtime/runtimeerror.h"

#include <QHeaderView>
#include <QStandardItemModel>

namespace qor {

namespace {

constexpr qint32 MarqueeHighlightRow = 3;
constexpr qint32 MultiSelectNone = 0;
constexpr qint32 MultiSelectSimple = 1;
constexpr qint32 ScrollBarsHorizontal = 1;
constexpr qint32 ScrollBarsVertical = 2;
constexpr qint32 RowDividerNone = 0;

QTableView *prepared(QTableView *view)
{
    if (!view->model())
        view->setModel(new QStandardItemModel(view));
    return view;
}

} // namespace

TableViewAdapter::TableViewAdapter(QTableView *view, QObject *parent)
    : WidgetAdapter(prepared(view), parent)
    , m_view(prepared(view))
    , m_style(new GridStyleAdapter(view, QPalette::Base, QPalette::Text, this))
    , m_highlightRowStyle(
          new GridStyleAdapter(view, QPalette::Highlight, QPalette::HighlightedText, this))
    , m_selectedStyle(
          new GridStyleAdapter(view, QPalette::Highlight, QPalette::HighlightedText, this))
    , m_columns(new TableColumnsAdapter(view, this))
{ }

QTableView *TableViewAdapter::view() const
{
    if (!m_view)
        throw RuntimeError::objectNotSet();
    return m_view.data();
}

bool TableViewAdapter::allowUpdate() const
{
    return view()->editTriggers() != QAbstractItemView::NoEditTriggers;
}

void TableViewAdapter::setAllowUpdate(bool allow)
{
    view()->setEditTriggers(allow ? QAbstractItemView::DoubleClicked
                | QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed
                                  : QAbstractItemView::NoEditTriggers);
}

void TableViewAdapter::setDeadAreaBackColor(qint32 colour)
{
    // The area beside and below the cells is the view's window colour.
    paint(view(), QPalette::Window, colour);
    m_deadAreaBackColor = colour;
}

qint16 TableViewAdapter::borderStyle() const
{
    return view()->frameShape() == QFrame::NoFrame ? 0 : 1;
}

void TableViewAdapter::setBorderStyle(qint16 style)
{
    view()->setFrameShape(style == 0 ? QFrame::NoFrame : QFrame::StyledPanel);
}

void TableViewAdapter::setHeadLines(double lines)
{
    if (lines < 0)
        throw RuntimeError::invalidPropertyValue();
    m_headLines = lines;
    QHeaderView *header = view()->horizontalHeader();
    const int lineHeight = header->fontMetrics().height();
    header->setFixedHeight(qMax(
        1, qRound(lines * lineHeight) + 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin)));
    header->setVisible(lines > 0);
}

bool TableViewAdapter::recordSelectors() const
{
    return view()->verticalHeader()->isVisible();
}

void TableViewAdapter::setRecordSelectors(bool shown)
{
    view()->verticalHeader()->setVisible(shown);
}

void TableViewAdapter::setMarqueeStyle(qint32 style)
{
    m_marqueeStyle = style;
    view()->setSelectionBehavior(style == MarqueeHighlightRow ? QAbstractItemView::SelectRows
                                                              : QAbstractItemView::SelectItems);
}

void TableViewAdapter::setMultiSelect(qint32 mode)
{
    m_multiSelect = mode;
    view()->setSelectionMode(mode == MultiSelectNone ? QAbstractItemView::SingleSelection
            : mode == MultiSelectSimple              ? QAbstractItemView::MultiSelection
                                                     : QAbstractItemView::ExtendedSelection);
}

void TableViewAdapter::setScrollBars(qint32 bars)
{
    m_scrollBars = bars;
    view()->setHorizontalScrollBarPolicy(
        bars & ScrollBarsHorizontal ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    view()->setVerticalScrollBarPolicy(
        bars & ScrollBarsVertical ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void TableViewAdapter::setRowDividerStyle(qint32 style)
{
    m_rowDividerStyle = style;
    view()->setShowGrid(style != RowDividerNone);
}

float TableViewAdapter::rowHeight() const
{
    return twips(view()->verticalHeader()->defaultSectionSize(), false);
}

void TableViewAdapter::setRowHeight(float twipsHeight)
{
    QHeaderView *rows = view()->verticalHeader();
    rows->setMinimumSectionSize(1);
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(qMax(1, pixels(twipsHeight, false)));
}

QObject *TableViewAdapter::style() const
{
    return m_style;
}
QObject *TableViewAdapter::highlightRowStyle() const
{
    return m_highlightRowStyle;
}
QObject *TableViewAdapter::selectedStyle() const
{
    return m_selectedStyle;
}
QObject *TableViewAdapter::columns() const
{
    return m_columns;
}

} // namespace qor
