// The identifier checks through the library object, with and without messages.
#include "fuzz/fuzzinput.h"
#include "lib/clsqorgenlib.h"
#include "runtime/runtimeerror.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    qor::fuzz::fuzzMachine();
    clsqorGenLib lib;
    const uint8_t which = input.byte();
    const bool mbox = input.flag();
    lib.setProperty("Offset", (input.byte() % 6) * 10000);
    QString text = input.rest();
    QString landCode = QString(text).left(2);
    try {
        switch (which % 6) {
        case 0: lib.ControleerBankNr(text, mbox); break;
        case 1: lib.ControleerVAT(text, mbox, landCode); break;
        case 2: lib.ControleerNatNr(text, mbox, landCode); break;
        case 3: lib.ControleerIdentNr(text, mbox); break;
        case 4: lib.GetOGM(text); break;
        default: lib.ControleerOGM(text, mbox); break;
        }
    } catch (const qor::RuntimeError &) {
        // Overflow of a reference's first part travels to the caller.
    }
    return 0;
}
