#pragma once

#include <QString>

namespace qor {

// A display mask of "&" placeholders and "\x" literals, read once and applied
// to many numbers. It shows a text as the library's Format does: placeholders
// filled from the right, empty ones showing nothing, and the surplus of a
// longer text in front of the first placeholder.
class DisplayMask
{
public:
    explicit DisplayMask(const QString &pattern);

    QString apply(const QString &text) const;

private:
    QString m_layout; // the literals, with NUL where a placeholder stands
    qsizetype m_slots = 0;
};

} // namespace qor
