#pragma once

#include "qorgenlib_export.h"

#include <QString>

namespace qor {

/// The text of an edit field with its caret and selection, kept the way the
/// classic edit control keeps them: new text puts the caret in front, a caret
/// past the end stops at the end and drops the selection, and a selection never
/// runs past the end. Negative values raise RuntimeError 380.
class QORGENLIB_EXPORT TextSelection
{
public:
    QString text() const { return m_text; }
    int start() const { return m_start; }
    int length() const { return m_length; }

    void setText(const QString &text);
    void setStart(int start);
    void setLength(int length);

private:
    QString m_text;
    int m_start = 0;
    int m_length = 0;
};

} // namespace qor
