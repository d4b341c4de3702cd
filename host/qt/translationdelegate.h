#pragma once

#include "qorgenlib_export.h"

#include <QList>
#include <QStyledItemDelegate>
#include <QVariant>

namespace qor {

/// Draws the cells of one grid column: aligned as the column asks and, while
/// translation is on, showing the text of the first value item whose value
/// equals the cell's value (numbers by value, other values by their text).
class QORGENLIB_WIDGETS_EXPORT TranslationDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    struct Item
    {
        QVariant value;
        QVariant displayValue;
    };

    using QStyledItemDelegate::QStyledItemDelegate;

    void setAlignment(qint32 alignment) { m_alignment = alignment; }
    void setTranslate(bool on) { m_translate = on; }
    bool translate() const { return m_translate; }
    void append(const Item &item) { m_items.append(item); }
    void removeAt(qsizetype index) { m_items.removeAt(index); }
    void clear() { m_items.clear(); }
    const QList<Item> &items() const { return m_items; }

    QString displayText(const QVariant &value, const QLocale &locale) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QList<Item> m_items;
    bool m_translate = false;
    qint32 m_alignment = 0; // 0 left, 1 right, 2 centre
};

} // namespace qor
