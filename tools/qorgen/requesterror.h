#pragma once

#include "runtime/runtimeerror.h"

namespace qor {

// A request the bridge cannot read: bad JSON, a name the library does not
// know, arguments of the wrong number or shape. Nothing of it was run. The
// numbers follow what an automation caller would see where one fits:
// 438 unknown name, 449 argument not optional, 450 wrong number of arguments,
// 13 a value of the wrong shape, 429 an object of a class the bridge does
// not have, 5 anything else that cannot be read.
class RequestError : public RuntimeError
{
public:
    using RuntimeError::RuntimeError;

    static RequestError unreadable(const QString &what); // 5
    static RequestError wrongShape(const QString &what); // 13
    static RequestError unknownName(const QString &what); // 438
    static RequestError notOptional(const QString &what); // 449
    static RequestError wrongCount(const QString &what); // 450
    static RequestError cannotCreate(const QString &what); // 429
};

} // namespace qor
