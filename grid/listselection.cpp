#include "grid/listselection.h"

#include "grid/hostcollection.h"
#include "lib/frame/qorenums.h"
#include "platform/clock.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

namespace qor {

namespace {

constexpr qint32 NoItemData = -9999;

// An indexed list property (List, ItemData) as an array.
QVariantList entries(QObject *control, const char *property)
{
    const QVariant all = getProperty(control, property);
    if (!isArray(all))
        throw RuntimeError::typeMismatch();
    return all.toList();
}

QVariant entry(const QVariantList &entries, qint32 i)
{
    if (i >= entries.size())
        throw RuntimeError::subscriptOutOfRange();
    return entries.at(i);
}

// What a form's controls show, each Text and Value followed by the separator.
// A control without one of them, or whose value cannot be read as text,
// contributes nothing for it.
QString fingerprint(QObject *form, const QString &separator)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    QString print;
    QList<QObject *> controls;
    try {
        controls = hostcollection::elements(hostcollection::of(form, "Controls"));
    } catch (const RuntimeError &) {
        return print;
    }
    for (QObject *control : controls) {
        for (const char *property : { "Text", "Value" }) {
            try {
                const QVariant value = getProperty(control, property);
                print += (isNull(value) ? QString() : toText(value, rs)) + separator;
            } catch (const RuntimeError &) { }
        }
    }
    return print;
}

} // namespace

bool setListIndex(QObject *listControl, qint32 itemData, const QString &text, qint32 notFound)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    const qint32 count = toLong(getProperty(listControl, "ListCount"), rs);
    if (count <= 0)
        return false;
    // Both tests are made on every entry, as the classic And and Or do.
    const QVariantList numbers = entries(listControl, "ItemData");
    const QVariantList texts = entries(listControl, "List");
    for (qint32 i = 0; i < count; ++i) {
        const bool numberMatches = toLong(entry(numbers, i), rs) == itemData;
        const bool textMatches = toText(entry(texts, i), rs) == text;
        if ((numberMatches && itemData != NoItemData) || (textMatches && !text.isEmpty())) {
            setProperty(listControl, "ListIndex", i, rs);
            return true;
        }
    }
    if (notFound == qorGenLib::SetListIndexMinusOne || notFound == qorGenLib::SetListIndexLineZero)
        setProperty(listControl, "ListIndex", notFound, rs);
    return false;
}

bool dataChange(QObject *form, bool reset, const QString &separator)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    if (reset) {
        try {
            setProperty(form, "Tag", fingerprint(form, separator), rs);
        } catch (const RuntimeError &) { }
        return false;
    }
    QString kept;
    try {
        kept = toText(getProperty(form, "Tag"), rs);
    } catch (const RuntimeError &) { }
    return kept != fingerprint(form, separator);
}

} // namespace qor
