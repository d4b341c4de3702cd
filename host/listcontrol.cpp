#include "host/listcontrol.h"

#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

namespace qor {

namespace {

RuntimeError invalidPropertyValue()
{
    return RuntimeError::invalidPropertyValue();
}

QString entryText(const QVariant &item)
{
    return toText(item, Clock::current().regionalSettings());
}

} // namespace

ListControl::ListControl(QObject *parent)
    : HostObject(parent)
{ }

QVariantList ListControl::list() const
{
    QVariantList entries;
    entries.reserve(m_entries.size());
    for (const QString &entry : m_entries)
        entries.append(entry);
    return entries;
}

void ListControl::setList(const QVariantList &entries)
{
    m_entries.clear();
    for (const QVariant &entry : entries)
        m_entries.append(entryText(entry));
    alignNumbers();
    if (m_listIndex >= listCount())
        m_listIndex = -1;
}

QVariantList ListControl::itemData() const
{
    QVariantList numbers;
    numbers.reserve(m_numbers.size());
    for (qint32 number : m_numbers)
        numbers.append(number);
    return numbers;
}

void ListControl::setItemData(const QVariantList &numbers)
{
    m_numbers.clear();
    for (const QVariant &number : numbers)
        m_numbers.append(toLong(number, Clock::current().regionalSettings()));
    alignNumbers();
}

void ListControl::setListIndex(qint32 index)
{
    if (index < -1 || index >= listCount())
        throw invalidPropertyValue();
    m_listIndex = index;
    selectionChanged();
}

void ListControl::Clear()
{
    recordCall(QStringLiteral("Clear"));
    m_entries.clear();
    m_numbers.clear();
    m_listIndex = -1;
    m_newIndex = -1;
    selectionChanged();
}

void ListControl::AddItem(const QString &item)
{
    recordCall(QStringLiteral("AddItem"), { item });
    insertEntry(item, listCount());
}

void ListControl::AddItem(const QString &item, qint32 index)
{
    recordCall(QStringLiteral("AddItem"), { item, index });
    if (index < 0 || index > listCount())
        throw RuntimeError::invalidProcedureCall();
    insertEntry(item, index);
}

void ListControl::RemoveItem(qint32 index)
{
    recordCall(QStringLiteral("RemoveItem"), { index });
    if (index < 0 || index >= listCount())
        throw RuntimeError::invalidProcedureCall();
    m_entries.removeAt(index);
    m_numbers.removeAt(index);
    if (m_listIndex == index)
        m_listIndex = -1;
    else if (m_listIndex > index)
        --m_listIndex;
    m_newIndex = -1;
    selectionChanged();
}

void ListControl::insertEntry(const QString &entry, qint32 index)
{
    m_entries.insert(index, entry);
    m_numbers.insert(index, 0);
    if (m_listIndex >= index)
        ++m_listIndex;
    m_newIndex = index;
}

void ListControl::alignNumbers()
{
    m_numbers.resize(m_entries.size());
}

} // namespace qor
