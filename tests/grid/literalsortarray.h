#pragma once

#include "grid/sortarray.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

namespace qor::test {

// The insertion sort written out step by step as the library once ran it:
// clear the input, seed place 0 with the first element that is not empty,
// then insert each further element before the first placed one it goes
// before, scanning up to its own index. Quadratic; a yardstick for sortArray.
// A companion of another size is left alone (the message is not shown here).
inline void literalSortArray(
    QVariant &arrayName, int order, QVariant *ref, const RegionalSettings &rs)
{
    if (!isArray(arrayName))
        throw RuntimeError::typeMismatch();
    QVariantList array = arrayName.toList();
    const qsizetype upper = array.size() - 1;
    QVariantList source(array.size());
    for (qsizetype i = 0; i <= upper; ++i) {
        source[i] = array[i];
        array[i] = QVariant();
    }
    const bool withRef = ref && !isEmpty(*ref);
    QVariantList refArray, refSource;
    auto publish = [&] {
        arrayName = array;
        if (withRef)
            *ref = refArray;
    };
    if (withRef) {
        if (!isArray(*ref)) {
            arrayName = array;
            throw RuntimeError::typeMismatch();
        }
        refArray = ref->toList();
        if (refArray.size() - 1 != upper) {
            arrayName = array;
            return;
        }
        refSource = refArray;
        for (qsizetype i = 0; i <= upper; ++i)
            refArray[i] = QVariant();
    }
    try {
        qsizetype j = 0;
        do {
            if (j > upper)
                throw RuntimeError::subscriptOutOfRange();
            array[0] = source[j];
            if (withRef)
                refArray[0] = refSource[j];
            ++j;
        } while (!sortelement::startsOutput(array[0]));
        qsizetype placed = 1;
        for (qsizetype i = j; i <= upper; ++i) {
            if (sortelement::isBlank(source[i]))
                continue;
            bool inserted = false;
            for (qsizetype k = 0; k != i; ++k) {
                if (!sortelement::goesBefore(order, source[i], array[k], rs))
                    continue;
                for (qsizetype m = placed - 1; m >= k; --m) {
                    array[m + 1] = array[m];
                    if (withRef)
                        refArray[m + 1] = refArray[m];
                }
                array[k] = source[i];
                if (withRef)
                    refArray[k] = refSource[i];
                inserted = true;
                break;
            }
            if (!inserted) {
                array[placed] = source[i];
                if (withRef)
                    refArray[placed] = refSource[i];
            }
            ++placed;
        }
    } catch (const RuntimeError &) {
        publish();
        throw;
    }
    publish();
}

} // namespace qor::test
