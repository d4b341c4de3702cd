#include "host/valueitem.h"

namespace qor {

ValueItem::ValueItem(QObject *parent)
    : HostObject(parent)
{ }

} // namespace qor
