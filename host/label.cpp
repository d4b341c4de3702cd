#include "host/label.h"

namespace qor {

namespace {

constexpr float twipsPerCharacter = 100;

} // namespace

Label::Label(QObject *parent)
    : Control(parent)
{ }

void Label::setAutoSize(bool autoSize)
{
    m_autoSize = autoSize;
    fitCaption();
}

void Label::setCaption(const QString &caption)
{
    m_caption = caption;
    fitCaption();
}

void Label::fitCaption()
{
    if (m_autoSize)
        setProperty("Width", float(m_caption.size()) * twipsPerCharacter);
}

} // namespace qor
