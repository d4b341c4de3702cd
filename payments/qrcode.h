#pragma once

#include "qorgenlib_export.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace qor {

/// The modules of a QR code: size x size, row by row, true for dark.
struct QrMatrix
{
    int size = 0;
    std::vector<bool> dark;

    bool isEmpty() const { return size == 0; }
    bool isDark(int x, int y) const { return dark[std::size_t(y) * size + x]; }
};

/// The light modules around a QR code that a reader needs to find it.
constexpr int qrQuietZone = 4;
/// The pixels (PNG) or units (SVG) of one module that a saved code may use.
constexpr int smallestQrModule = 1;
constexpr int largestQrModule = 20;
constexpr int defaultQrModule = 4;

/// The QR code of a text (its UTF-8 bytes, error correction level M, the
/// smallest version that holds them). Empty for an empty text, a text with a
/// lone surrogate, or one too long for any QR code.
QORGENLIB_EXPORT QrMatrix encodeQrCode(const QString &payload);

/// The code as a black-and-white PNG image with the quiet zone, moduleSize
/// pixels per module.
QORGENLIB_EXPORT QByteArray qrCodePng(const QrMatrix &code, int moduleSize);
/// The code as an SVG image with the quiet zone, moduleSize units per module.
QORGENLIB_EXPORT QByteArray qrCodeSvg(const QrMatrix &code, int moduleSize);

/// Saves the QR code of a text as PNG or SVG, by the file's extension (upper
/// or lower case), through the platform's file door, which writes the whole
/// file or leaves the old one. False for another extension, a module size
/// outside 1 to 20, a text encodeQrCode refuses, or a file that cannot be
/// written.
QORGENLIB_EXPORT bool saveQrCode(const QString &payload, const QString &file, int moduleSize);

} // namespace qor
