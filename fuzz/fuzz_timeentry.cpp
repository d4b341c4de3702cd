// Time entry: what a user types into a time field, with any separator and
// every option, directly and through the library object.
#include "datetime/timeentry.h"
#include "fuzz/fuzzinput.h"
#include "lib/clsqorgenlib.h"
#include "runtime/runtimeerror.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    qor::fuzz::fuzzMachine();
    const uint8_t which = input.byte();
    const bool mbox = input.flag();
    const bool moreThan24 = input.flag();
    const bool hhmm = input.flag();
    const QStringList parts = input.parts(2);
    QString text = parts.value(0);
    const QString separator = parts.value(1).left(3);
    try {
        switch (which % 4) {
        case 0: {
            clsqorGenLib lib;
            lib.ControleerUur(text, mbox, moreThan24, hhmm);
            break;
        }
        case 1: {
            bool refused = false;
            qor::readTimeEntry(text, separator, { moreThan24, hhmm }, refused);
            break;
        }
        case 2: {
            clsqorGenLib lib;
            lib.GetTime(text);
            break;
        }
        default:
            qor::timeSeparatorOf(text);
            break;
        }
    } catch (const qor::RuntimeError &) {
        // Hours beyond a Long are an overflow the caller gets.
    }
    return 0;
}
