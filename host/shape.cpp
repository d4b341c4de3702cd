#include "host/shape.h"

namespace qor {

Shape::Shape(QObject *parent)
    : Control(parent)
{ }

void Shape::ZOrder(qint32 position)
{
    recordCall(QStringLiteral("ZOrder"), { position });
}

} // namespace qor
