// Format with any value and any mask or pattern.
#include "fuzz/fuzzinput.h"
#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/runtimeerror.h"

#include <cmath>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    const qor::RegionalSettings rs = qor::fuzz::fuzzMachine().regionalSettings();
    const uint8_t kind = input.byte();
    double number = 0;
    for (int i = 0; i < 8; ++i)
        reinterpret_cast<uint8_t *>(&number)[i] = input.byte();
    const QStringList parts = input.parts(2);
    const QString text = parts.value(0);
    const QString pattern = parts.value(1);
    QVariant value;
    switch (kind % 6) {
    case 0: value = text; break;
    case 1: value = number; break;
    case 2: value = float(number); break;
    case 3: value = qint32(std::fmod(std::isfinite(number) ? number : 0, 2147483648.0)); break;
    case 4: value = QDateTime(QDate(1899, 12, 30), QTime(0, 0)).addSecs(qint64(std::fmod(std::isfinite(number) ? number : 0, 4e8))); break;
    default: value = bool(kind & 8); break;
    }
    try {
        qor::format(value, pattern, rs);
    } catch (const qor::RuntimeError &) {
    }
    return 0;
}
