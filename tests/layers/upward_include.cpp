// Compiled with the include path of the identifier checks: the library object
// is an outer layer, so this file must not compile.
#include "lib/clsqorgenlib.h"

int upwardIncludeProbe()
{
    return 0;
}
