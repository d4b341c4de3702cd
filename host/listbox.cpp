#include "host/listbox.h"

namespace qor {

ListBox::ListBox(QObject *parent)
    : ListControl(parent)
{ }

} // namespace qor
