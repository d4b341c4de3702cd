#pragma once

#include "qorgenlib_export.h"

#include "host/qt/widgetadapter.h"

namespace qor {

/// A shape control on a real form: a widget that paints a rectangle with the
/// shape's border (BorderStyle 0: none) and fill (FillStyle 0: solid, 1:
/// transparent) in classic colour numbers.
class QORGENLIB_WIDGETS_EXPORT ShapeAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(qint32 BorderStyle READ borderStyle WRITE setBorderStyle)
    Q_PROPERTY(qint32 FillStyle READ fillStyle WRITE setFillStyle)
    Q_PROPERTY(qint32 BorderColor READ borderColor WRITE setBorderColor)
    Q_PROPERTY(qint32 FillColor READ fillColor WRITE setFillColor)

public:
    /// Makes the shape's widget as a child of `parent`, named `name`.
    ShapeAdapter(QWidget *parent, const QString &name, QObject *owner = nullptr);

    /// Among the shapes only: windowed siblings (frames, calendars, labels)
    /// stay in front of every shape, as they did on the classic form.
    Q_INVOKABLE void ZOrder(qint32 position = 0);

    qint32 borderStyle() const;
    void setBorderStyle(qint32 style);
    qint32 fillStyle() const;
    void setFillStyle(qint32 style);
    qint32 borderColor() const;
    void setBorderColor(qint32 colour);
    qint32 fillColor() const;
    void setFillColor(qint32 colour);
};

} // namespace qor
