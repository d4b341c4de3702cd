#include "interchange/recordlayout.h"

#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

namespace qor {

QList<qint32> RecordLayout::widthsOf(const QVariant &array, const RegionalSettings &rs)
{
    if (!isArray(array))
        throw RuntimeError::typeMismatch();
    const QVariantList elements = array.toList();
    QList<qint32> widths;
    widths.reserve(elements.size());
    for (const QVariant &element : elements)
        widths.append(widthOf(element, rs));
    return widths;
}

qint32 RecordLayout::widthOf(const QVariant &element, const RegionalSettings &rs)
{
    const qint32 width = toLong(element, rs);
    if (width < 0)
        throw RuntimeError::invalidProcedureCall();
    return width;
}

QStringList RecordLayout::formatsOf(const QVariant &array, const RegionalSettings &rs)
{
    if (!isArray(array))
        throw RuntimeError::typeMismatch();
    QStringList formats;
    for (const QVariant &element : array.toList())
        formats.append(isEmpty(element) || isNull(element) ? QString() : toText(element, rs));
    return formats;
}

} // namespace qor
