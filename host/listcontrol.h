#pragma once

#include "qorgenlib_export.h"

#include "host/controls/combobox.h"

#include "host/hostobject.h"

namespace qor {

/// What list boxes and combo boxes share: the entries with the number kept
/// beside each, the selected entry and the entry added last. Operations behave
/// as the classic controls: AddItem appends, or inserts before an index, keeps
/// ItemData beside its entry and moves the selection along with its entry.
class QORGENLIB_EXPORT ListControl : public HostObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList List READ list WRITE setList)
    Q_PROPERTY(QVariantList ItemData READ itemData WRITE setItemData)
    Q_PROPERTY(qint32 ListIndex READ listIndex WRITE setListIndex)
    Q_PROPERTY(qint32 ListCount READ listCount)
    Q_PROPERTY(qint32 NewIndex MEMBER m_newIndex)

public:
    explicit ListControl(QObject *parent = nullptr);

    QVariantList list() const;
    void setList(const QVariantList &entries);
    /// As long as the list: numbers never given are 0.
    QVariantList itemData() const;
    void setItemData(const QVariantList &numbers);
    qint32 listIndex() const { return m_listIndex; }
    /// -1 (nothing selected) up to ListCount - 1; anything else raises 380.
    void setListIndex(qint32 index);
    qint32 listCount() const { return qint32(m_entries.size()); }

    Q_INVOKABLE void Clear();
    Q_INVOKABLE void AddItem(const QString &item);
    Q_INVOKABLE void AddItem(const QString &item, qint32 index);
    Q_INVOKABLE void RemoveItem(qint32 index);

protected:
    /// Lets a combo box show the selected entry as its text.
    virtual void selectionChanged() { }

private:
    void insertEntry(const QString &entry, qint32 index);
    void alignNumbers();

    QStringList m_entries;
    QList<qint32> m_numbers;
    qint32 m_listIndex = controls::initial<qint32>(controls::comboBox, "ListIndex");
    qint32 m_newIndex = controls::initial<qint32>(controls::comboBox, "NewIndex");
};

} // namespace qor
