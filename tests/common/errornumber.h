#pragma once

#include "runtime/runtimeerror.h"

namespace qor::test {

// The number of the run-time error an action raises, or 0 when it raises none.
template <typename Action> int errorNumber(Action &&action)
{
    try {
        action();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace qor::test
