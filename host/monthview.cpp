#include "host/monthview.h"

namespace qor {

MonthView::MonthView(QObject *parent)
    : Control(parent)
{ }

} // namespace qor
