#include "host/control.h"

namespace qor {

Control::Control(QObject *parent)
    : HostObject(parent)
{ }

void Control::Move(float left, float top)
{
    place({ left, top });
}

void Control::Move(float left, float top, float width)
{
    place({ left, top, width });
}

void Control::Move(float left, float top, float width, float height)
{
    place({ left, top, width, height });
}

void Control::place(const QVariantList &values)
{
    recordCall(QStringLiteral("Move"), values);
    static const char *const names[] = { "Left", "Top", "Width", "Height" };
    for (int i = 0; i < values.size(); ++i)
        assign(QLatin1String(names[i]), values[i]);
}

} // namespace qor
