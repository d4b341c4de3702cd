#include "grid/sortarray.h"

#include "grid/gridmessages.h"
#include "input/amounts.h"
#include "input/textfilters.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <algorithm>
#include <vector>

namespace qor {

namespace {

enum Order { Numeric = 1, NumericRev, Alphabetic, AlphabeticRev, Length, LengthRev };

bool isOrder(int sortOrder)
{
    return sortOrder >= Numeric && sortOrder <= LengthRev;
}
bool isNumericOrder(int sortOrder)
{
    return sortOrder == Numeric || sortOrder == NumericRev;
}
bool isTextOrder(int sortOrder)
{
    return sortOrder == Alphabetic || sortOrder == AlphabeticRev;
}
bool isReversed(int sortOrder)
{
    return sortOrder == NumericRev || sortOrder == AlphabeticRev || sortOrder == LengthRev;
}

void requireScalar(const QVariant &v)
{
    if (isArray(v) || isObject(v))
        throw RuntimeError::typeMismatch();
}

// The element's text form (Null raises 94 from the conversion).
QString textOf(const QVariant &v, const RegionalSettings &rs)
{
    if (isEmpty(v))
        return QString();
    if (v.typeId() == QMetaType::QString)
        return v.toString();
    return toText(v, rs);
}

double numberOf(const QVariant &v, const RegionalSettings &rs)
{
    return cGetalValue(filterNumeric(textOf(v, rs)), rs);
}

// What an element is compared by; Null elements compare with nothing.
struct SortKey
{
    bool null = false;
    double number = 0;
    QString text;
};

SortKey keyOf(int sortOrder, const QVariant &v, const RegionalSettings &rs)
{
    SortKey key;
    if (isNumericOrder(sortOrder)) {
        key.number = numberOf(v, rs);
    } else if (!isOrder(sortOrder)) {
        key.null = isNull(v);
    } else if (isNull(v)) {
        key.null = true;
    } else if (isTextOrder(sortOrder)) {
        key.text = textOf(v, rs).toUpper();
    } else {
        key.number = textOf(v, rs).size();
    }
    return key;
}

bool keyGoesBefore(int sortOrder, const SortKey &x, const SortKey &y)
{
    if (!isOrder(sortOrder) || x.null || y.null)
        return false;
    if (isTextOrder(sortOrder))
        return isReversed(sortOrder) ? x.text > y.text : x.text < y.text;
    return isReversed(sortOrder) ? x.number > y.number : x.number < y.number;
}

// <0 when x goes before y, >0 when y goes before x, 0 when neither does.
int compareKeys(int sortOrder, const SortKey &x, const SortKey &y)
{
    if (!isOrder(sortOrder) || x.null || y.null)
        return 0;
    int ascending = 0;
    if (isTextOrder(sortOrder))
        ascending = x.text.compare(y.text);
    else
        ascending = x.number < y.number ? -1 : (y.number < x.number ? 1 : 0);
    return isReversed(sortOrder) ? -ascending : ascending;
}

QVariantList arrayElements(const QVariant &v)
{
    if (!isArray(v))
        throw RuntimeError::typeMismatch();
    return v.toList();
}

// One element taken into the output, in the order they were taken.
struct Placed
{
    qsizetype source; // index in the input
    qsizetype rankOf; // the element whose key decides its place (itself unless Null)
};

// The insertion places every element before the first one already placed that
// it goes before, so the output is always ordered by (key, arrival). A Null
// element goes before nothing and nothing goes before it: it stays behind the
// element that was last in key order when it arrived, and that is its rank.
class SortRun
{
public:
    SortRun(int sortOrder, const QVariantList &source, const RegionalSettings &rs)
        : m_order(sortOrder)
        , m_source(source)
        , m_rs(rs)
    { }

    void take(qsizetype index)
    {
        SortKey key = keyOf(m_order, m_source.at(index), m_rs);
        const qsizetype self = qsizetype(m_keys.size());
        m_keys.push_back(std::move(key));
        qsizetype rank = self;
        if (m_keys[size_t(self)].null) {
            rank = m_last;
        } else if (m_last < 0
            || keyGoesBefore(m_order, m_keys[size_t(m_last)], m_keys[size_t(self)])) {
            m_last = self;
        }
        m_placed.push_back({ index, rank });
    }

    // The input indices in output order.
    std::vector<qsizetype> order() const
    {
        std::vector<qsizetype> arrival(m_placed.size());
        for (size_t i = 0; i < arrival.size(); ++i)
            arrival[i] = qsizetype(i);
        std::sort(arrival.begin(), arrival.end(), [this](qsizetype a, qsizetype b) {
            const SortKey &ka = m_keys[size_t(m_placed[size_t(a)].rankOf)];
            const SortKey &kb = m_keys[size_t(m_placed[size_t(b)].rankOf)];
            const int order = compareKeys(m_order, ka, kb);
            return order != 0 ? order < 0 : a < b;
        });
        std::vector<qsizetype> sources;
        sources.reserve(arrival.size());
        for (qsizetype a : arrival)
            sources.push_back(m_placed[size_t(a)].source);
        return sources;
    }

private:
    int m_order;
    const QVariantList &m_source;
    const RegionalSettings &m_rs;
    std::vector<SortKey> m_keys; // per arrival
    std::vector<Placed> m_placed;
    qsizetype m_last = -1; // arrival of the element last in key order
};

// The arrays as the caller sees them, written back whatever happens.
class SortTarget
{
public:
    SortTarget(QVariant &array, QVariant *ref)
        : m_array(array)
        , m_ref(ref)
    { }

    QVariantList output;
    QVariantList refOutput;
    bool withRef = false;

    void publish()
    {
        m_array = output;
        if (withRef)
            *m_ref = refOutput;
    }

    void fill(const std::vector<qsizetype> &order, const QVariantList &source,
        const QVariantList &refSource)
    {
        for (size_t p = 0; p < order.size(); ++p) {
            output[qsizetype(p)] = source.at(order[p]);
            if (withRef)
                refOutput[qsizetype(p)] = refSource.at(order[p]);
        }
    }

private:
    QVariant &m_array;
    QVariant *m_ref;
};

bool refGiven(const QVariant *ref)
{
    return ref && !isEmpty(*ref) && !isMissing(*ref);
}

// The element that starts the output: leading empty and Null elements are
// passed over, each taking place 0 for a moment. Returns the index after it.
qsizetype seed(SortTarget &target, const QVariantList &source, const QVariantList &refSource)
{
    qsizetype j = 0;
    do {
        if (j >= source.size()) {
            target.publish();
            throw RuntimeError::subscriptOutOfRange();
        }
        target.output[0] = source.at(j);
        if (target.withRef)
            target.refOutput[0] = refSource.at(j);
        ++j;
    } while (!sortelement::startsOutput(target.output.at(0)));
    return j;
}

void sortInto(SortTarget &target, int sortOrder, const QVariantList &source,
    const QVariantList &refSource, const RegionalSettings &rs)
{
    qsizetype j = 0;
    try {
        j = seed(target, source, refSource);
    } catch (const RuntimeError &) {
        target.publish();
        throw;
    }
    SortRun run(sortOrder, source, rs);
    run.take(j - 1);
    try {
        for (qsizetype i = j; i < source.size(); ++i) {
            if (!sortelement::isBlank(source.at(i)))
                run.take(i);
        }
    } catch (const RuntimeError &) {
        target.fill(run.order(), source, refSource);
        target.publish();
        throw;
    }
    target.fill(run.order(), source, refSource);
    target.publish();
}

} // namespace

namespace sortelement {

bool isBlank(const QVariant &v)
{
    requireScalar(v);
    return isEmpty(v) || (v.typeId() == QMetaType::QString && v.toString().isEmpty());
}

bool startsOutput(const QVariant &v)
{
    return !isBlank(v) && !isNull(v);
}

bool goesBefore(int sortOrder, const QVariant &x, const QVariant &y, const RegionalSettings &rs)
{
    if (!isOrder(sortOrder))
        return false;
    const SortKey kx = keyOf(sortOrder, x, rs);
    const SortKey ky = keyOf(sortOrder, y, rs);
    return keyGoesBefore(sortOrder, kx, ky);
}

} // namespace sortelement

void sortArray(QVariant &arrayName, int sortOrder, QVariant *refArrayName, qint32 offset)
{
    const QVariantList source = arrayElements(arrayName);
    SortTarget target(arrayName, refArrayName);
    target.output = QVariantList(source.size());
    target.publish();
    QVariantList refSource;
    if (refGiven(refArrayName)) {
        refSource = arrayElements(*refArrayName);
        if (refSource.size() != source.size()) {
            useLanguage(offset);
            showMessageBoxE(QLatin1String(gridtext::UnequalBounds), MessageBoxStyle::Critical,
                QLatin1String(gridtext::UnequalBoundsTitle));
            return;
        }
        target.withRef = true;
        target.refOutput = QVariantList(refSource.size());
        target.publish();
    }
    sortInto(target, sortOrder, source, refSource, Clock::current().regionalSettings());
}

} // namespace qor
