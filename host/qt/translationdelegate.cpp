#include "host/qt/translationdelegate.h"

#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/variant.h"

namespace qor {

namespace {

bool missing(const QVariant &v)
{
    return isEmpty(v) || isNull(v);
}

bool sameValue(const QVariant &cell, const QVariant &item)
{
    if (missing(cell) || missing(item))
        return missing(cell) && isNull(item);
    if (isArray(cell) || isObject(cell) || isArray(item) || isObject(item))
        return false;
    const RegionalSettings rs = Clock::current().regionalSettings();
    if (isNumeric(cell, rs) && isNumeric(item, rs))
        return toDouble(cell, rs) == toDouble(item, rs);
    return toText(cell, rs) == toText(item, rs);
}

} // namespace

QString TranslationDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    if (m_translate) {
        for (const Item &item : m_items) {
            if (sameValue(value, item.value))
                return missing(item.displayValue)
                    ? QString()
                    : toText(item.displayValue, Clock::current().regionalSettings());
        }
    }
    return QStyledItemDelegate::displayText(value, locale);
}

void TranslationDelegate::initStyleOption(
    QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // An empty cell still shows what its translation gives it.
    if (m_translate && option->text.isEmpty())
        option->text = displayText(index.data(Qt::DisplayRole), option->locale);
    const Qt::Alignment horizontal = m_alignment == 1 ? Qt::AlignRight
        : m_alignment == 2                            ? Qt::AlignHCenter
                                                      : Qt::AlignLeft;
    option->displayAlignment = horizontal | Qt::AlignVCenter;
}

} // namespace qor
