#pragma once

#include "platform/desktop.h"
#include "runtime/runtimeerror.h"

#include <QColor>
#include <QPalette>
#include <QtMath>

#include <cmath>

namespace qor::twips {

/// Sizes: the host speaks twips, the widgets pixels, at the screen's twips per
/// pixel. A size no screen can show (or not a number) raises RuntimeError 6.
inline int toPixels(double twips, double twipsPerPixel)
{
    const double value = std::round(twips / qMax(1.0, twipsPerPixel));
    if (!std::isfinite(value) || std::fabs(value) > 1.0e7)
        throw RuntimeError::overflow();
    return int(value);
}
inline int toPixelsX(double twips)
{
    return toPixels(twips, Desktop::current().screen().twipsPerPixelX);
}
inline int toPixelsY(double twips)
{
    return toPixels(twips, Desktop::current().screen().twipsPerPixelY);
}
inline float fromPixelsX(int pixels)
{
    return float(pixels) * float(Desktop::current().screen().twipsPerPixelX);
}
inline float fromPixelsY(int pixels)
{
    return float(pixels) * float(Desktop::current().screen().twipsPerPixelY);
}

/// Colours: &HBBGGRR, or &H800000nn for a system colour of the palette.
inline QColor toColor(qint32 colour, const QPalette &palette)
{
    constexpr quint32 systemBit = 0x80000000u;
    const auto bits = quint32(colour);
    if (bits & systemBit) {
        switch (bits & 0xFFu) {
        case 0x0D: return palette.color(QPalette::Highlight);
        case 0x0E: return palette.color(QPalette::HighlightedText);
        case 0x05: return palette.color(QPalette::Base);
        case 0x08: return palette.color(QPalette::Text);
        case 0x11: return palette.color(QPalette::Disabled, QPalette::Text);
        case 0x12: return palette.color(QPalette::ButtonText);
        default: return palette.color(QPalette::Button);
        }
    }
    return QColor(int(bits & 0xFFu), int((bits >> 8) & 0xFFu), int((bits >> 16) & 0xFFu));
}
inline qint32 fromColor(const QColor &color)
{
    return qint32(quint32(color.red()) | quint32(color.green()) << 8 | quint32(color.blue()) << 16);
}

} // namespace qor::twips
