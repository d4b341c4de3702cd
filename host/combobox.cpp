#include "host/combobox.h"

namespace qor {

ComboBox::ComboBox(QObject *parent)
    : ListControl(parent)
{ }

void ComboBox::selectionChanged()
{
    m_text = listIndex() >= 0 ? list().at(listIndex()).toString() : QString();
}

} // namespace qor
