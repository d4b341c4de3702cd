#include "host/qt/tablecolumnadapter.h"

#include "host/qt/headingstyleadapter.h"
#include "host/qt/translationdelegate.h"
#include "host/qt/valueitemsadapter.h"
#include "host/qt/widgetadapter.h"
#include "runtime/runtimeerror.h"

#include <QHeaderView>

namespace qor {

namespace {

Qt::Alignment horizontal(qint32 alignment)
{
    return alignment == 1 ? Qt::AlignRight : alignment == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
}

} // namespace

TableColumnAdapter::TableColumnAdapter(QTableView *view, qint32 index, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_index(index)
    , m_delegate(new TranslationDelegate(view))
    , m_headingStyle(new HeadingStyleAdapter(this))
    , m_valueItems(new ValueItemsAdapter(m_delegate, this))
{
    view->setItemDelegateForColumn(index, m_delegate);
    m_widthPixels = header()->sectionSize(index);
}

QTableView *TableColumnAdapter::view() const
{
    if (!m_view || !m_view->model())
        throw RuntimeError::objectNotSet();
    return m_view.data();
}

QHeaderView *TableColumnAdapter::header() const
{
    return view()->horizontalHeader();
}

void TableColumnAdapter::setIndex(qint32 index)
{
    m_index = index;
    view()->setItemDelegateForColumn(index, m_delegate);
}

void TableColumnAdapter::setHeading(int role, const QVariant &value)
{
    view()->model()->setHeaderData(m_index, Qt::Horizontal, value, role);
}

QString TableColumnAdapter::caption() const
{
    return view()->model()->headerData(m_index, Qt::Horizontal).toString();
}

void TableColumnAdapter::setCaption(const QString &caption)
{
    setHeading(Qt::DisplayRole, caption);
}

void TableColumnAdapter::setAlignment(qint32 alignment)
{
    m_alignment = alignment;
    m_delegate->setAlignment(alignment);
    view()->viewport()->update();
}

float TableColumnAdapter::width() const
{
    const int pixels
        = header()->isSectionHidden(m_index) ? m_widthPixels : header()->sectionSize(m_index);
    return WidgetAdapter::twips(pixels, true);
}

void TableColumnAdapter::setWidth(float twipsWidth)
{
    // A section has no negative size: a negative width shows as 0.
    m_widthPixels = qMax(0, WidgetAdapter::pixels(twipsWidth, true));
    if (!header()->isSectionHidden(m_index))
        header()->resizeSection(m_index, m_widthPixels);
}

bool TableColumnAdapter::visible() const
{
    return !view()->isColumnHidden(m_index);
}

void TableColumnAdapter::setVisible(bool visible)
{
    if (visible == this->visible())
        return;
    if (!visible)
        m_widthPixels = header()->sectionSize(m_index);
    view()->setColumnHidden(m_index, !visible);
    if (visible)
        header()->resizeSection(m_index, m_widthPixels);
}

void TableColumnAdapter::setAllowSizing(bool allow)
{
    m_allowSizing = allow;
    header()->setSectionResizeMode(m_index, allow ? QHeaderView::Interactive : QHeaderView::Fixed);
}

void TableColumnAdapter::setHeadAlignment(qint32 alignment)
{
    m_headAlignment = alignment;
    setHeading(Qt::TextAlignmentRole, int(horizontal(alignment) | Qt::AlignVCenter));
}

QObject *TableColumnAdapter::headingStyle() const
{
    return m_headingStyle;
}

QObject *TableColumnAdapter::valueItems() const
{
    return m_valueItems;
}

} // namespace qor
