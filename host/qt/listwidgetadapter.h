#pragma once

#include "qorgenlib_export.h"

#include <QListWidget>
#include <QObject>
#include <QPointer>
#include <QVariantList>

namespace qor {

// Gives a QListWidget the names of a list box: List and ItemData (kept as
// the item's user data) as arrays, ListCount, ListIndex (the current row,
// -1 for none; anything beyond raises 380), NewIndex, Clear and AddItem.
class QORGENLIB_WIDGETS_EXPORT ListWidgetAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList List READ list)
    Q_PROPERTY(QVariantList ItemData READ itemData WRITE setItemData)
    Q_PROPERTY(qint32 ListIndex READ listIndex WRITE setListIndex)
    Q_PROPERTY(qint32 ListCount READ listCount)
    Q_PROPERTY(qint32 NewIndex READ newIndex)
    Q_PROPERTY(QString Text READ text)

public:
    explicit ListWidgetAdapter(QListWidget *list, QObject *parent = nullptr);

    QVariantList list() const;
    QVariantList itemData() const;
    void setItemData(const QVariantList &numbers);
    qint32 listIndex() const;
    void setListIndex(qint32 index);
    qint32 listCount() const;
    qint32 newIndex() const { return m_newIndex; }
    QString text() const;

    Q_INVOKABLE void Clear();
    Q_INVOKABLE void AddItem(const QString &item);
    Q_INVOKABLE void AddItem(const QString &item, qint32 index);

private:
    QListWidget *widget() const;

    QPointer<QListWidget> m_list;
    qint32 m_newIndex = -1;
};

} // namespace qor
