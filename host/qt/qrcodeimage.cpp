#include "host/qt/qrcodeimage.h"

#include "payments/qrcode.h"

namespace qor {

QImage qrCodeImage(const QString &payload, int moduleSize)
{
    if (moduleSize < smallestQrModule || moduleSize > largestQrModule)
        return {};
    const QrMatrix code = encodeQrCode(payload);
    if (code.isEmpty())
        return {};
    const int modules = code.size + 2 * qrQuietZone;
    QImage image(modules, modules, QImage::Format_Mono);
    image.fill(Qt::color0);
    image.setColor(0, qRgb(255, 255, 255));
    image.setColor(1, qRgb(0, 0, 0));
    for (int y = 0; y < code.size; ++y) {
        for (int x = 0; x < code.size; ++x) {
            if (code.isDark(x, y))
                image.setPixel(x + qrQuietZone, y + qrQuietZone, 1);
        }
    }
    return image.scaled(modules * moduleSize, modules * moduleSize);
}

} // namespace qor
