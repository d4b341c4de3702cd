#pragma once

#include "platform/platform.h"

#include <QColor>
#include <QPalette>
#include <QtMath>

namespace qor::twips {

// Sizes: the host speaks twips, the widgets pixels, at the screen's twips per pixel.
inline int toPixelsX(double twips)
{
    return qRound(twips / platform().screen().twipsPerPixelX);
}
inline int toPixelsY(double twips)
{
    return qRound(twips / platform().screen().twipsPerPixelY);
}
inline float fromPixelsX(int pixels)
{
    return float(pixels * platform().screen().twipsPerPixelX);
}
inline float fromPixelsY(int pixels)
{
    return float(pixels * platform().screen().twipsPerPixelY);
}

// Colours: &HBBGGRR, or &H800000nn for a system colour of the palette.
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
