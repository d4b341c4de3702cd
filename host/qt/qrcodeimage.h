#pragma once

#include "qorgenlib_export.h"

#include <QImage>
#include <QString>

namespace qor {

/// The QR code of a text (its UTF-8 bytes, error correction M) as a
/// black-and-white image with a quiet zone of four modules, moduleSize pixels
/// per module (1 to 20), for hosts that draw the code themselves. A null image
/// when the text cannot be encoded (empty, a lone surrogate, too long) or the
/// module size is outside 1 to 20.
QORGENLIB_WIDGETS_EXPORT QImage qrCodeImage(const QString &payload, int moduleSize = 4);

} // namespace qor
