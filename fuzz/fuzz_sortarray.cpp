// SortArray on arbitrary arrays of every subtype, with and without a
// companion array, checked against the insertion sort it replaces.
#include "fuzz/fuzzinput.h"
#include "grid/sortarray.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"
#include "tests/grid/literalsortarray.h"

#include <QDateTime>

#include <cstdlib>

namespace {

// One element: the first character of its text picks the subtype.
QVariant element(const QString &text)
{
    const QString rest = text.mid(1);
    switch (text.isEmpty() ? u'_' : text.at(0).unicode()) {
    case u'_': return QString();
    case u'E': return qor::emptyVariant();
    case u'N': return qor::nullVariant();
    case u'i': return qor::integerVariant(qint16(rest.toInt()));
    case u'l': return qor::longVariant(rest.toInt());
    case u'd': return rest.toDouble();
    case u'b': return rest.startsWith(u'1');
    case u't': return QDateTime(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC).addDays(rest.toInt() % 3000000);
    case u'[': return QVariantList { rest };
    default: return text;
    }
}

// Two arrays alike element by element, subtype and text.
bool same(const QVariant &a, const QVariant &b)
{
    if (qor::isArray(a) != qor::isArray(b))
        return false;
    if (!qor::isArray(a))
        return qor::varType(a) == qor::varType(b);
    const QVariantList x = a.toList();
    const QVariantList y = b.toList();
    if (x.size() != y.size())
        return false;
    for (qsizetype i = 0; i < x.size(); ++i) {
        if (qor::varType(x[i]) != qor::varType(y[i]) || x[i].toString() != y[i].toString())
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    const qor::RegionalSettings rs = qor::fuzz::fuzzMachine().regionalSettings();
    const int order = input.byte() % 8;
    const uint8_t companion = input.byte();
    QVariantList elements;
    for (const QString &part : input.parts(65))
        elements.append(element(part));
    QVariant array = elements;
    QVariant ref;
    if (companion & 1) {
        QVariantList partners;
        for (qsizetype i = 0; i < elements.size() + ((companion & 2) ? 1 : 0); ++i)
            partners.append(qlonglong(i));
        ref = partners;
    }
    if (companion & 4)
        array = elements.value(0);
    QVariant fastArray = array;
    QVariant fastRef = ref;
    int fastError = 0;
    try {
        qor::sortArray(fastArray, order, &fastRef, 0);
    } catch (const qor::RuntimeError &e) {
        fastError = e.number();
    }
    // A companion of another size shows a message the yardstick does not.
    if (ref.isValid() && qor::isArray(array) && ref.toList().size() != elements.size())
        return 0;
    QVariant literalArray = array;
    QVariant literalRef = ref;
    int literalError = 0;
    try {
        qor::test::literalSortArray(literalArray, order, &literalRef, rs);
    } catch (const qor::RuntimeError &e) {
        literalError = e.number();
    }
    if (fastError != literalError)
        std::abort();
    if (!fastError && (!same(fastArray, literalArray) || !same(fastRef, literalRef)))
        std::abort();
    return 0;
}
