#include "tools/qorgen/requesterror.h"

namespace qor {

RequestError RequestError::unreadable(const QString &what)
{
    return RequestError(5, what);
}
RequestError RequestError::wrongShape(const QString &what)
{
    return RequestError(13, what);
}
RequestError RequestError::unknownName(const QString &what)
{
    return RequestError(438, what);
}
RequestError RequestError::notOptional(const QString &what)
{
    return RequestError(449, what);
}
RequestError RequestError::wrongCount(const QString &what)
{
    return RequestError(450, what);
}
RequestError RequestError::cannotCreate(const QString &what)
{
    return RequestError(429, what);
}

} // namespace qor
