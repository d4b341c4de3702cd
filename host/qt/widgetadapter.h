#pragma once

#include "qorgenlib_export.h"

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QWidget>

namespace qor {

/// Gives a child widget of a form the names of a placed control: Left, Top,
/// Width and Height in twips (converted with the platform's twips per pixel),
/// Visible, Move and ZOrder. The adapter does not own the widget; a widget
/// that is gone raises RuntimeError 91.
class QORGENLIB_WIDGETS_EXPORT WidgetAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(float Left READ left WRITE setLeft)
    Q_PROPERTY(float Top READ top WRITE setTop)
    Q_PROPERTY(float Width READ width WRITE setWidth)
    Q_PROPERTY(float Height READ height WRITE setHeight)
    Q_PROPERTY(bool Visible READ visible WRITE setVisible)

public:
    explicit WidgetAdapter(QWidget *widget, QObject *parent = nullptr);

    QWidget *widget() const;

    float left() const;
    void setLeft(float twips);
    float top() const;
    void setTop(float twips);
    float width() const;
    void setWidth(float twips);
    float height() const;
    void setHeight(float twips);
    bool visible() const;
    void setVisible(bool visible);

    Q_INVOKABLE void Move(float left, float top);
    Q_INVOKABLE void Move(float left, float top, float width);
    Q_INVOKABLE void Move(float left, float top, float width, float height);
    /// 0 brings the widget in front of its siblings, anything else behind them.
    Q_INVOKABLE void ZOrder(qint32 position = 0);

    /// A classic colour number (&HBBGGRR, or &H800000xx for a system colour).
    static QColor colourOf(qint32 colour);
    /// The classic colour number (&HBBGGRR) of a colour.
    static qint32 colourNumber(const QColor &colour);
    /// Gives a role of the widget's palette a classic colour number; a system
    /// colour is taken from that palette.
    static void paint(QWidget *widget, QPalette::ColorRole role, qint32 colour);
    /// Twips to pixels and back, horizontally or vertically.
    static int pixels(double twips, bool horizontal);
    static float twips(int pixels, bool horizontal);

private:
    QPointer<QWidget> m_widget;
};

} // namespace qor
