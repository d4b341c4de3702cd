// The numeric and date readers and conversions on any text.
#include "fuzz/fuzzinput.h"
#include "lib/clsqorgenlib.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    const qor::RegionalSettings rs = qor::fuzz::fuzzMachine().regionalSettings();
    const uint8_t which = input.byte();
    const QVariant text = input.rest();
    try {
        switch (which % 9) {
        case 0: qor::toDouble(text, rs); break;
        case 1: qor::toLong(text, rs); break;
        case 2: qor::toInteger(text, rs); break;
        case 3: qor::toBoolean(text, rs); break;
        case 4: qor::toDate(text, rs); break;
        case 5: qor::isDate(text, rs); break;
        case 6: qor::isNumeric(text, rs); break;
        case 7: qor::val(text.toString()); break;
        default: clsqorGenLib().CGetal(text); break;
        }
    } catch (const qor::RuntimeError &) {
        // Type mismatch and overflow are the documented answers.
    }
    return 0;
}
