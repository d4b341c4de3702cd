#include "lib/frame/modgenlib.h"

namespace qor {

ModGenLib &ModGenLib::current()
{
    thread_local ModGenLib state;
    return state;
}

void ModGenLib::reset()
{
    current() = ModGenLib();
}

} // namespace qor
