// The scan state machine: key sequences typed into a model field across
// calls, against any scan format, the scanner buffer carried between keys.
#include "fuzz/fuzzinput.h"
#include "host/textbox.h"
#include "lib/clsqorgenlib.h"
#include "runtime/runtimeerror.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    qor::fuzz::fuzzMachine();
    const bool fieldOnly = input.flag();
    const bool mbox = input.flag();
    const uint8_t selLength = input.byte();
    const QStringList parts = input.parts(3);
    QString format = parts.value(0);
    const QString keys = parts.value(1);
    qor::TextBox field;
    field.setText(parts.value(2));
    field.setSelLength(selLength % 8);
    clsqorGenLib lib;
    for (const QChar key : keys) {
        try {
            const qint16 code = lib.ScanBM(&field, qint16(key.unicode()), format, fieldOnly, mbox);
            qor::test::typeIntoModel(&field, code);
        } catch (const qor::RuntimeError &) {
            // A code beyond a byte in the middle of a scan: the host gets error 5.
        }
    }
    return 0;
}
