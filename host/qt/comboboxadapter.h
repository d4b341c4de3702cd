#pragma once

#include "qorgenlib_export.h"

#include <QComboBox>
#include <QObject>
#include <QPointer>
#include <QVariantList>

namespace qor {

// Gives a QComboBox the names of a combo box: List and ItemData (the item's
// user data) as arrays, ListCount, ListIndex (the current index, -1 for none;
// anything beyond raises 380), Text, NewIndex, Clear and AddItem.
class QORGENLIB_WIDGETS_EXPORT ComboBoxAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList List READ list)
    Q_PROPERTY(QVariantList ItemData READ itemData WRITE setItemData)
    Q_PROPERTY(qint32 ListIndex READ listIndex WRITE setListIndex)
    Q_PROPERTY(qint32 ListCount READ listCount)
    Q_PROPERTY(qint32 NewIndex READ newIndex)
    Q_PROPERTY(QString Text READ text WRITE setText)

public:
    explicit ComboBoxAdapter(QComboBox *combo, QObject *parent = nullptr);

    QVariantList list() const;
    QVariantList itemData() const;
    void setItemData(const QVariantList &numbers);
    qint32 listIndex() const;
    void setListIndex(qint32 index);
    qint32 listCount() const;
    qint32 newIndex() const { return m_newIndex; }
    QString text() const;
    void setText(const QString &text);

    Q_INVOKABLE void Clear();
    Q_INVOKABLE void AddItem(const QString &item);
    Q_INVOKABLE void AddItem(const QString &item, qint32 index);

private:
    QComboBox *widget() const;

    QPointer<QComboBox> m_combo;
    qint32 m_newIndex = -1;
};

} // namespace qor
