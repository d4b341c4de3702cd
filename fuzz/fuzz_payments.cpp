// The payment readers: IBAN, BIC and creditor reference checks through the
// library object, the old account notation, the payment QR text of any
// fields and amount, and the QR code drawn from it.
#include "fuzz/fuzzinput.h"
#include "lib/clsqorgenlib.h"
#include "payments/qrcode.h"

#include <cstring>

namespace {

// Eight bytes as a double: NaN, infinities and huge amounts included.
double amountOf(qor::fuzz::FuzzInput &input)
{
    unsigned char bytes[sizeof(double)];
    for (unsigned char &byte : bytes)
        byte = input.byte();
    double amount;
    std::memcpy(&amount, bytes, sizeof amount);
    return amount;
}

// The text as UTF-16 code units taken two bytes at a time, so that lone
// surrogates reach the readers too.
QString utf16Of(const QString &latin1)
{
    QString text;
    for (qsizetype i = 0; i + 1 < latin1.size(); i += 2)
        text.append(QChar(char16_t(latin1[i].unicode() << 8 | (latin1[i + 1].unicode() & 0xFF))));
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    qor::fuzz::fuzzMachine();
    clsqorGenLib lib;
    const uint8_t which = input.byte();
    const bool mbox = input.flag();
    const bool rawUtf16 = input.flag();
    lib.setProperty("Offset", (input.byte() % 3) * 10000);
    const double amount = amountOf(input);
    QStringList parts = input.parts(5);
    if (rawUtf16) {
        for (QString &part : parts)
            part = utf16Of(part);
    }
    while (parts.size() < 5)
        parts.append(QString());
    QString text = parts[0];
    switch (which % 9) {
    case 0: lib.ControleerIBAN(text, mbox); break;
    case 1: lib.GetIBAN(text); break;
    case 2: lib.GetBBAN(text); break;
    case 3: lib.GetBIC(text); break;
    case 4: lib.ControleerBIC(text, mbox); break;
    case 5: lib.GetRF(text); break;
    case 6: lib.ControleerRF(text, mbox); break;
    case 7: lib.GetEPCQR(parts[0], parts[1], amount, parts[2], parts[3], parts[4]); break;
    default: {
        const qor::QrMatrix code = qor::encodeQrCode(text);
        if (!code.isEmpty())
            qor::qrCodeSvg(code, 1 + which % 3).size();
        break;
    }
    }
    return 0;
}
