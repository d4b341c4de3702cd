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
            m_literalsAndSlots += slotMark;
            m_blankSlot.push_back(c == QLatin1Char('@'));
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
    if (m_caseChange < 0)
        text = text.toLower();
    else if (m_caseChange > 0)
        text = text.toUpper();
    const qsizetype slotCount = qsizetype(m_blankSlot.size());
    const qsizetype surplus = std::max<qsizetype>(0, text.size() - slotCount);
    const qsizetype offset = m_leftToRight ? 0 : text.size() - slotCount; // text index of slot 0
    QString out;
    out.reserve(m_literalsAndSlots.size() + text.size());
    qsizetype slot = 0;
    for (QChar c : m_literalsAndSlots) {
        if (c != slotMark) {
            out += c;
            continue;
        }
        if (!m_leftToRight && slot == 0)
            out += QStringView(text).left(surplus);
        const qsizetype source = offset + slot;
        if (source >= 0 && source < text.size())
            out += text.at(source);
        else if (m_blankSlot[size_t(slot)])
            out += QLatin1Char(' ');
        if (m_leftToRight && slot == slotCount - 1)
            out += QStringView(text).mid(slotCount);
        ++slot;
    }
    return out;
}

} // namespace qor
