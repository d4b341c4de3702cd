#include "payments/qrcode.h"

#include "platform/filesystem.h"

#include <QtEndian>

#include <qrencode.h>

#include <memory>

namespace qor {

namespace {

// CRC-32 as PNG chunks carry it, bit by bit.
quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFFu;
    for (char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) ? (crc >> 1) ^ 0xEDB88320u : crc >> 1;
    }
    return crc ^ 0xFFFFFFFFu;
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray pngChunk(const char *type, const QByteArray &data)
{
    const QByteArray typed = QByteArray(type) + data;
    return bigEndian(quint32(data.size())) + typed + bigEndian(crc32(typed));
}

// The code with its quiet zone, one pixel per module: dark outside the code
// is never true.
bool isDarkPixel(const QrMatrix &code, int x, int y)
{
    x -= qrQuietZone;
    y -= qrQuietZone;
    return x >= 0 && y >= 0 && x < code.size && y < code.size && code.isDark(x, y);
}

// Rows of one bit per pixel (1 is white), each after the filter byte 0.
QByteArray pngRows(const QrMatrix &code, int moduleSize)
{
    const int pixels = (code.size + 2 * qrQuietZone) * moduleSize;
    const int rowBytes = (pixels + 7) / 8;
    QByteArray rows;
    rows.reserve((rowBytes + 1) * pixels);
    for (int y = 0; y < pixels; ++y) {
        QByteArray row(rowBytes, '\0');
        for (int x = 0; x < pixels; ++x) {
            if (!isDarkPixel(code, x / moduleSize, y / moduleSize))
                row[x / 8] = char(quint8(row[x / 8]) | (0x80 >> (x % 8)));
        }
        rows.append('\0').append(row);
    }
    return rows;
}

bool endsWith(const QString &file, const char *extension)
{
    return file.endsWith(QLatin1String(extension), Qt::CaseInsensitive);
}

} // namespace

QrMatrix encodeQrCode(const QString &payload)
{
    if (payload.isEmpty() || !QStringView(payload).isValidUtf16())
        return {};
    const QByteArray bytes = payload.toUtf8();
    const std::unique_ptr<QRcode, void (*)(QRcode *)> encoded(
        QRcode_encodeData(int(bytes.size()), reinterpret_cast<const unsigned char *>(bytes.data()),
            0, QR_ECLEVEL_M),
        QRcode_free);
    if (!encoded)
        return {};
    QrMatrix code;
    code.size = encoded->width;
    code.dark.resize(std::size_t(code.size) * code.size);
    for (std::size_t i = 0; i < code.dark.size(); ++i)
        code.dark[i] = encoded->data[i] & 1;
    return code;
}

QByteArray qrCodePng(const QrMatrix &code, int moduleSize)
{
    const quint32 pixels = quint32((code.size + 2 * qrQuietZone) * moduleSize);
    // Width, height, one bit per pixel, grey scale, deflate, no filtering
    // choice, no interlace.
    QByteArray header = bigEndian(pixels) + bigEndian(pixels);
    header.append(char(1)).append(char(0)).append(char(0)).append(char(0)).append(char(0));
    // qCompress writes the length before the zlib stream PNG wants.
    const QByteArray compressed = qCompress(pngRows(code, moduleSize), 9).mid(4);
    return QByteArray("\x89PNG\r\n\x1a\n", 8) + pngChunk("IHDR", header)
        + pngChunk("IDAT", compressed) + pngChunk("IEND", {});
}

QByteArray qrCodeSvg(const QrMatrix &code, int moduleSize)
{
    const int modules = code.size + 2 * qrQuietZone;
    QByteArray path;
    for (int y = 0; y < code.size; ++y) {
        for (int x = 0; x < code.size; ++x) {
            if (code.isDark(x, y))
                path += 'M' + QByteArray::number(x + qrQuietZone) + ','
                    + QByteArray::number(y + qrQuietZone) + "h1v1h-1z";
        }
    }
    const QByteArray size = QByteArray::number(modules * moduleSize);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\""
        + size + "\" height=\"" + size + "\" viewBox=\"0 0 " + QByteArray::number(modules) + ' '
        + QByteArray::number(modules) + "\" shape-rendering=\"crispEdges\">\n"
        + "<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n<path fill=\"#000\" d=\"" + path
        + "\"/>\n</svg>\n";
}

bool saveQrCode(const QString &payload, const QString &file, int moduleSize)
{
    const bool png = endsWith(file, ".png");
    if ((!png && !endsWith(file, ".svg")) || moduleSize < smallestQrModule
        || moduleSize > largestQrModule)
        return false;
    const QrMatrix code = encodeQrCode(payload);
    if (code.isEmpty())
        return false;
    return FileSystem::current().writeFile(
        file, png ? qrCodePng(code, moduleSize) : qrCodeSvg(code, moduleSize));
}

} // namespace qor
