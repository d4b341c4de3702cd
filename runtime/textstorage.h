#pragma once

#include <QString>

namespace qor {

// The characters of storage sized to n, for writing all n of them. A storage
// that already has that size and a buffer of its own is used as it is: the
// checks write a display of the same length check after check.
inline char16_t *sizedForWriting(QString &storage, qsizetype n)
{
    if (storage.size() != n)
        storage.resize(n);
    return reinterpret_cast<char16_t *>(storage.data());
}

} // namespace qor
