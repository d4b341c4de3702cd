#pragma once

#include <QString>

namespace qor {

// storage.resize(n), done in place when the storage has a buffer of its own
// with room for n characters: what QString::resize does then, without the
// call. The checks shrink and grow their texts every time, so this counts.
inline void setLength(QString &storage, qsizetype n)
{
    QString::DataPointer &d = storage.data_ptr();
    const qsizetype capacity = d.constAllocatedCapacity();
    if (n < 0 || d.needsDetach() || capacity == 0 || n > capacity - d.freeSpaceAtBegin()) {
        storage.resize(n);
        return;
    }
    d.size = n;
    d.data()[n] = u'\0';
}

// The characters of storage sized to n, for writing all n of them. A storage
// with a buffer of its own that is large enough is used as it is: the checks
// write a display of the same length check after check, emptied in between
// when a number is refused.
inline char16_t *sizedForWriting(QString &storage, qsizetype n)
{
    setLength(storage, n);
    return reinterpret_cast<char16_t *>(storage.data());
}

} // namespace qor
