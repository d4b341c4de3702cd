#include "host/qt/shapeadapter.h"

#include <QPainter>

namespace qor {

namespace {

// The painted rectangle; its settings live in the widget so that the widget
// alone shows the shape.
class ShapeWidget : public QWidget
{
public:
    using QWidget::QWidget;

    qint32 borderStyle = 1;
    qint32 fillStyle = 1;
    qint32 borderColor = 0;
    qint32 fillColor = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (fillStyle == 0)
            painter.fillRect(rect(), WidgetAdapter::colourOf(fillColor));
        if (borderStyle != 0) {
            painter.setPen(QPen(WidgetAdapter::colourOf(borderColor), 1));
            painter.drawRect(rect().adjusted(0, 0, -1, -1));
        }
    }
};

const char *const shapeMark = "qorShape";

ShapeWidget *shapeOf(const WidgetAdapter *adapter)
{
    return static_cast<ShapeWidget *>(adapter->widget());
}

} // namespace

ShapeAdapter::ShapeAdapter(QWidget *parent, const QString &name, QObject *owner)
    : WidgetAdapter(new ShapeWidget(parent), owner)
{
    widget()->setObjectName(name);
    widget()->setProperty(shapeMark, true);
}

void ShapeAdapter::ZOrder(qint32 position)
{
    WidgetAdapter::ZOrder(position);
    QWidget *parent = widget()->parentWidget();
    if (!parent)
        return;
    for (QWidget *sibling : parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (!sibling->property(shapeMark).toBool())
            sibling->raise();
    }
}

qint32 ShapeAdapter::borderStyle() const
{
    return shapeOf(this)->borderStyle;
}
void ShapeAdapter::setBorderStyle(qint32 style)
{
    shapeOf(this)->borderStyle = style;
    widget()->update();
}
qint32 ShapeAdapter::fillStyle() const
{
    return shapeOf(this)->fillStyle;
}
void ShapeAdapter::setFillStyle(qint32 style)
{
    shapeOf(this)->fillStyle = style;
    widget()->update();
}
qint32 ShapeAdapter::borderColor() const
{
    return shapeOf(this)->borderColor;
}
void ShapeAdapter::setBorderColor(qint32 colour)
{
    shapeOf(this)->borderColor = colour;
    widget()->update();
}
qint32 ShapeAdapter::fillColor() const
{
    return shapeOf(this)->fillColor;
}
void ShapeAdapter::setFillColor(qint32 colour)
{
    shapeOf(this)->fillColor = colour;
    widget()->update();
}

} // namespace qor
