#include "host/textselection.h"

#include "runtime/runtimeerror.h"

#include <algorithm>

namespace qor {

namespace {

void requireNotNegative(int value)
{
    if (value < 0)
        throw RuntimeError::invalidPropertyValue();
}

} // namespace

void TextSelection::setText(const QString &text)
{
    m_text = text;
    m_start = 0;
    m_length = 0;
}

void TextSelection::setStart(int start)
{
    requireNotNegative(start);
    m_start = std::min(start, int(m_text.size()));
    m_length = 0;
}

void TextSelection::setLength(int length)
{
    requireNotNegative(length);
    m_length = std::min(length, int(m_text.size()) - m_start);
}

} // namespace qor
