#include "host/checkbox.h"

namespace qor {

CheckBox::CheckBox(QObject *parent)
    : Control(parent)
{ }

} // namespace qor
