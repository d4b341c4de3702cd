#include "host/qt/valueitemsadapter.h"

#include "host/qt/translationdelegate.h"
#include "host/valueitem.h"
#include "runtime/runtimeerror.h"

#include <QAbstractItemView>

namespace qor {

ValueItemsAdapter::ValueItemsAdapter(TranslationDelegate *delegate, QObject *parent)
    : QObject(parent)
    , m_delegate(delegate)
{ }

TranslationDelegate *ValueItemsAdapter::delegate() const
{
    if (!m_delegate)
        throw RuntimeError::objectNotSet();
    return m_delegate.data();
}

void ValueItemsAdapter::repaint() const
{
    if (auto *view = qobject_cast<QAbstractItemView *>(delegate()->parent()))
        view->viewport()->update();
}

qint32 ValueItemsAdapter::count() const
{
    return qint32(delegate()->items().size());
}

bool ValueItemsAdapter::translate() const
{
    return delegate()->translate();
}

void ValueItemsAdapter::setTranslate(bool on)
{
    delegate()->setTranslate(on);
    repaint();
}

void ValueItemsAdapter::Add(QObject *item)
{
    if (!item)
        throw RuntimeError::objectNotSet();
    delegate()->append({ item->property("Value"), item->property("DisplayValue") });
    repaint();
}

QObject *ValueItemsAdapter::Item(qint32 index)
{
    if (index < 0 || index >= count())
        throw RuntimeError::subscriptOutOfRange();
    const TranslationDelegate::Item &entry = delegate()->items().at(index);
    auto *copy = new ValueItem(this);
    copy->assign(QStringLiteral("Value"), entry.value);
    copy->assign(QStringLiteral("DisplayValue"), entry.displayValue);
    return copy;
}

void ValueItemsAdapter::Remove(qint32 index)
{
    if (index < 0 || index >= count())
        throw RuntimeError::subscriptOutOfRange();
    delegate()->removeAt(index);
    repaint();
}

void ValueItemsAdapter::Clear()
{
    delegate()->clear();
    repaint();
}

} // namespace qor
