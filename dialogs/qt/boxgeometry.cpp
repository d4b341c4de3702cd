#include "dialogs/qt/boxgeometry.h"

#include <QFontMetrics>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace qor {

namespace {

constexpr int buttonMinimumWidth = 1215; // twips
constexpr int buttonHeight = 375;
constexpr int buttonPadding = 24; // pixels beside a caption

} // namespace

BoxGeometry::BoxGeometry(const QWidget *textWidget)
    : m_screen(Desktop::current().screen())
    , m_font(textWidget->font())
{
    m_screen.twipsPerPixelX = std::max(1, m_screen.twipsPerPixelX);
    m_screen.twipsPerPixelY = std::max(1, m_screen.twipsPerPixelY);
}

BoxLayoutInput BoxGeometry::input(const QString &prompt, const QStringList &buttonCaptions) const
{
    const QFontMetrics metrics(m_font);
    const int twipsX = m_screen.twipsPerPixelX;
    BoxLayoutInput input;
    input.prompt = prompt;
    input.screenWidth = int(std::min<qint64>(INT_MAX, qint64(m_screen.width) * twipsX));
    input.screenHeight
        = int(std::min<qint64>(INT_MAX, qint64(m_screen.height) * m_screen.twipsPerPixelY));
    input.textWidth = [metrics, twipsX](
                          const QString &line) { return metrics.horizontalAdvance(line) * twipsX; };
    input.lineHeight = metrics.lineSpacing() * m_screen.twipsPerPixelY;
    for (const QString &caption : buttonCaptions)
        input.buttonWidths.append(std::max(
            buttonMinimumWidth, (metrics.horizontalAdvance(caption) + buttonPadding) * twipsX));
    input.buttonHeight = buttonHeight;
    return input;
}

int BoxGeometry::pixelsX(int twips) const
{
    return twips / m_screen.twipsPerPixelX;
}

int BoxGeometry::pixelsY(int twips) const
{
    return twips / m_screen.twipsPerPixelY;
}

QRect BoxGeometry::toPixels(const QRect &twips) const
{
    return QRect(
        pixelsX(twips.x()), pixelsY(twips.y()), pixelsX(twips.width()), pixelsY(twips.height()));
}

QPixmap BoxGeometry::iconOf(const QWidget *widget, int type)
{
    static const QStyle::StandardPixmap icons[] = { QStyle::SP_MessageBoxCritical,
        QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxInformation,
        QStyle::SP_MessageBoxQuestion, QStyle::SP_FileDialogInfoView };
    return widget->style()->standardIcon(icons[std::clamp(type, 0, 4)]).pixmap(32, 32);
}

void setTag(QObject *object, const QString &tag)
{
    object->setProperty("Tag", tag);
}

} // namespace qor
