#include "host/qt/gridstyleadapter.h"

#include "host/qt/widgetadapter.h"
#include "runtime/runtimeerror.h"

#include <QAbstractItemView>
#include <QTableView>

namespace qor {

GridStyleAdapter::GridStyleAdapter(
    QAbstractItemView *view, QPalette::ColorRole back, QPalette::ColorRole fore, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_back(back)
    , m_fore(fore)
{ }

void GridStyleAdapter::paint(QPalette::ColorRole role, qint32 colour)
{
    if (!m_view)
        throw RuntimeError::objectNotSet();
    WidgetAdapter::paint(m_view, role, colour);
}

void GridStyleAdapter::setBackColor(qint32 colour)
{
    paint(m_back, colour);
    m_backColor = colour;
}

void GridStyleAdapter::setForeColor(qint32 colour)
{
    paint(m_fore, colour);
    m_foreColor = colour;
}

bool GridStyleAdapter::wrapText() const
{
    auto *table = qobject_cast<QTableView *>(m_view.data());
    return table && table->wordWrap();
}

void GridStyleAdapter::setWrapText(bool wrap)
{
    if (auto *table = qobject_cast<QTableView *>(m_view.data()))
        table->setWordWrap(wrap);
}

} // namespace qor
