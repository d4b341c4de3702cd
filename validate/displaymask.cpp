#include "validate/displaymask.h"

namespace qor {

namespace {

constexpr QChar slotMark(0);

} // namespace

DisplayMask::DisplayMask(const QString &pattern)
{
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if (c == QLatin1Char('&')) {
            m_layout += slotMark;
            ++m_slots;
        } else if (c == QLatin1Char('\\')) {
            if (++i < pattern.size())
                m_layout += pattern.at(i);
        } else {
            m_layout += c;
        }
    }
}

QString DisplayMask::apply(const QString &text) const
{
    const qsizetype first = text.size() - m_slots; // text index of the first placeholder
    const qsizetype shown = std::min<qsizetype>(text.size(), m_slots);
    QString out(
        m_layout.size() - m_slots + shown + std::max<qsizetype>(0, first), Qt::Uninitialized);
    QChar *to = out.data();
    const QChar *from = text.constData();
    qsizetype slot = 0;
    for (QChar c : m_layout) {
        if (c != slotMark) {
            *to++ = c;
            continue;
        }
        if (slot == 0 && first > 0)
            to = std::copy(from, from + first, to);
        const qsizetype source = first + slot++;
        if (source >= 0)
            *to++ = from[source];
    }
    return out;
}

} // namespace qor
