#pragma once

#include <QString>

#include <vector>

namespace qor {

// A text mask of Format, read once and applied to any number of texts: "&" takes
// one character (nothing when there is none), "@" one character or a blank,
// "\x" and "quoted" runs are literals, "!" fills from the left, "<" and ">"
// change the case. Placeholders take the text from the right; a longer text
// puts its surplus in front of the first placeholder (after the last with "!").
class TextMask
{
public:
    explicit TextMask(const QString &pattern);

    QString apply(QString text) const;
    // The same into storage kept by the caller: its buffer is reused when large
    // enough, so applying a mask to many texts allocates nothing.
    void applyTo(QStringView text, QString &out) const;

private:
    void applyExact(QStringView text, QString &out) const;
    void fillSlots(QStringView text, QString &out) const;

    QString m_literalsAndSlots; // NUL marks a placeholder
    std::vector<bool> m_blankSlot; // '@' shows a blank when empty, '&' nothing
    std::vector<qsizetype> m_slotPositions; // of the placeholders in m_literalsAndSlots
    bool m_anyBlankSlot = false;
    bool m_leftToRight = false;
    int m_caseChange = 0; // -1 lower, 1 upper
};

} // namespace qor
