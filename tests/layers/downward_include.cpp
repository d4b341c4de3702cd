// Compiled with the include path of the identifier checks: the text filters,
// the frame services and the runtime lie below them, so this file compiles.
#include "input/textfilters.h"
#include "lib/frame/catalogue.h"
#include "runtime/runtimeerror.h"

int downwardIncludeProbe()
{
    return 0;
}
