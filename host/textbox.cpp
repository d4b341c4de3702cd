#include "host/textbox.h"

#include "runtime/runtimeerror.h"

namespace qor {

TextBox::TextBox(QObject *parent)
    : HostObject(parent)
{ }

void TextBox::setMaxLength(qint32 maxLength)
{
    if (maxLength < 0)
        throw RuntimeError::invalidPropertyValue();
    m_maxLength = maxLength;
}

void TextBox::SetFocus()
{
    recordCall(QStringLiteral("SetFocus"));
    if (!m_enabled)
        throw RuntimeError::invalidProcedureCall();
}

} // namespace qor
