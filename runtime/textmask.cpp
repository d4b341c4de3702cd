#include "runtime/textmask.h"

#include "runtime/patternliteral.h"

namespace qor {

namespace {

constexpr QChar slotMark(0);

} // namespace

TextMask::TextMask(const QString &pattern)
{
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar c = pattern.at(i);
        if (isLiteralStart(c)) {
            QString literal;
            i = readLiteral(pattern, i, literal);
            m_literalsAndSlots += literal.replace(slotMark, QChar(' '));
            continue;
        }
        if (c == QLatin1Char('&') || c == QLatin1Char('@')) {
            m_slotPositions.push_back(m_literalsAndSlots.size());
            m_literalsAndSlots += slotMark;
            m_blankSlot.push_back(c == QLatin1Char('@'));
            m_anyBlankSlot = m_anyBlankSlot || c == QLatin1Char('@');
        } else if (c == QLatin1Char('!')) {
            m_leftToRight = true;
        } else if (c == QLatin1Char('<')) {
            m_caseChange = -1;
        } else if (c == QLatin1Char('>')) {
            m_caseChange = 1;
        } else {
            m_literalsAndSlots += c == slotMark ? QChar(' ') : c;
        }
        ++i;
    }
}

QString TextMask::apply(QString text) const
{
    QString out;
    applyTo(text, out);
    return out;
}

void TextMask::applyTo(QStringView text, QString &out) const
{
    if (m_caseChange == 0 && text.size() == qsizetype(m_slotPositions.size()))
        return fillSlots(text, out);
    if (m_caseChange == 0)
        return applyExact(text, out);
    const QString cased = m_caseChange < 0 ? text.toString().toLower() : text.toString().toUpper();
    applyExact(cased, out);
}

void TextMask::applyExact(QStringView text, QString &out) const
{
    const qsizetype slotCount = qsizetype(m_blankSlot.size());
    if (text.size() == slotCount)
        return fillSlots(text, out);
    const qsizetype surplus = std::max<qsizetype>(0, text.size() - slotCount);
    const qsizetype offset = m_leftToRight ? 0 : text.size() - slotCount; // text index of slot 0
    // Sized once: exactly when every placeholder is "&", else to the longest
    // possible result and cut to what was written.
    qsizetype size = m_literalsAndSlots.size() + surplus;
    if (!m_anyBlankSlot) {
        const qsizetype filled = std::max<qsizetype>(
            0, std::min(slotCount, text.size() - offset) - std::max<qsizetype>(0, -offset));
        size = size - slotCount + filled;
    }
    out.resize(size); // keeps the buffer when it is not shared and large enough
    char16_t *write = reinterpret_cast<char16_t *>(out.data());
    char16_t *const start = write;
    const char16_t *source = reinterpret_cast<const char16_t *>(text.data());
    qsizetype slot = 0;
    for (QChar c : m_literalsAndSlots) {
        if (c != slotMark) {
            *write++ = c.unicode();
            continue;
        }
        if (!m_leftToRight && slot == 0)
            write = std::copy(source, source + surplus, write);
        const qsizetype from = offset + slot;
        if (from >= 0 && from < text.size())
            *write++ = source[from];
        else if (m_blankSlot[size_t(slot)])
            *write++ = u' ';
        if (m_leftToRight && slot == slotCount - 1)
            write = std::copy(source + slotCount, source + slotCount + surplus, write);
        ++slot;
    }
    if (write - start != size)
        out.resize(write - start);
}

// A text with exactly one character per placeholder, whatever the direction:
// the literals as they stand, each placeholder taking the next character.
void TextMask::fillSlots(QStringView text, QString &out) const
{
    out.resize(m_literalsAndSlots.size());
    char16_t *write = reinterpret_cast<char16_t *>(out.data());
    std::copy_n(reinterpret_cast<const char16_t *>(m_literalsAndSlots.constData()),
        m_literalsAndSlots.size(), write);
    const char16_t *source = reinterpret_cast<const char16_t *>(text.data());
    for (size_t slot = 0; slot < m_slotPositions.size(); ++slot)
        write[m_slotPositions[slot]] = source[slot];
}

} // namespace qor
