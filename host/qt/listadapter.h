#pragma once

#include "qorgenlib_export.h"

#include "host/controls/combobox.h"

#include "host/qt/widgetadapter.h"

#include <QObject>
#include <QVariantList>

namespace qor {

/// What a combo box and a list box have in common: List and ItemData (the
/// item's user data) as arrays, ListCount, ListIndex (the current row, -1 for
/// none; anything beyond raises 380), NewIndex, Clear and AddItem, besides the
/// position and size in twips of every placed control. A subclass
/// reaches its widget through the few primitives below and raises 91 when the
/// widget is gone.
class QORGENLIB_WIDGETS_EXPORT ListAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(QVariantList List READ list)
    Q_PROPERTY(QVariantList ItemData READ itemData WRITE setItemData)
    Q_PROPERTY(qint32 ListIndex READ listIndex WRITE setListIndex)
    Q_PROPERTY(qint32 ListCount READ listCount)
    Q_PROPERTY(qint32 NewIndex READ newIndex)

public:
    QVariantList list() const;
    QVariantList itemData() const;
    void setItemData(const QVariantList &numbers);
    qint32 listIndex() const;
    void setListIndex(qint32 index);
    qint32 listCount() const;
    qint32 newIndex() const { return m_newIndex; }

    Q_INVOKABLE void Clear();
    Q_INVOKABLE void AddItem(const QString &item);
    Q_INVOKABLE void AddItem(const QString &item, qint32 index);

protected:
    ListAdapter(QWidget *widget, QObject *parent);

    virtual int itemCount() const = 0;
    virtual QString itemText(int row) const = 0;
    virtual QVariant itemNumber(int row) const = 0;
    virtual void setItemNumber(int row, qint32 number) = 0;
    virtual int currentRow() const = 0;
    virtual void setCurrentRow(int row) = 0;
    virtual void clearItems() = 0;
    /// A new item with the number 0 at row.
    virtual void insertItem(int row, const QString &text) = 0;

private:
    qint32 m_newIndex = controls::initial<qint32>(controls::comboBox, "NewIndex");
};

} // namespace qor
