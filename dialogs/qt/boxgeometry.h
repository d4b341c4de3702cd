#pragma once

#include "dialogs/boxlayout.h"
#include "platform/desktop.h"

#include <QFont>
#include <QPixmap>
#include <QRect>

class QWidget;

namespace qor {

// The screen and the fonts of the library's boxes in twips, for the layout
// routine, and its results back in pixels.
class BoxGeometry
{
public:
    // The screen the platform reports; text measured in the widget's font.
    explicit BoxGeometry(const QWidget *textWidget);

    // A layout input for a prompt, with the screen and the measures filled in.
    BoxLayoutInput input(const QString &prompt, const QStringList &buttonCaptions) const;
    QRect toPixels(const QRect &twips) const;
    int pixelsX(int twips) const;
    int pixelsY(int twips) const;

    // The icon of a message type (0 Critical ... 4 Message).
    static QPixmap iconOf(const QWidget *widget, int type);

private:
    ScreenInfo m_screen;
    QFont m_font;
};

// Where the boxes keep their classic Tag texts: a dynamic property "Tag".
void setTag(QObject *object, const QString &tag);

} // namespace qor
