#include "host/qt/headingstyleadapter.h"

#include "grid/gridpicture.h"
#include "host/qt/tablecolumnadapter.h"

#include <QBitmap>
#include <QHeaderView>
#include <QImage>
#include <QPixmap>

namespace qor {

namespace {

QPixmap pixmapOf(const QVariant &picture, bool transparent)
{
    if (!picture.canConvert<GridPicture>()
        || picture.metaType() != QMetaType::fromType<GridPicture>())
        return QPixmap();
    QImage image = QImage::fromData(picture.value<GridPicture>().bytes(), "BMP");
    if (image.isNull())
        return QPixmap();
    QPixmap pixmap = QPixmap::fromImage(image);
    if (transparent) {
        // The colour of the bottom-left pixel is the see-through one.
        const QColor background = image.pixelColor(0, image.height() - 1);
        pixmap.setMask(QBitmap::fromImage(image.createMaskFromColor(background.rgb())));
    }
    return pixmap;
}

} // namespace

HeadingStyleAdapter::HeadingStyleAdapter(TableColumnAdapter *column)
    : QObject(column)
    , m_column(column)
{ }

void HeadingStyleAdapter::setEllipsisText(bool on)
{
    m_ellipsisText = on;
    if (QHeaderView *header = m_column->header())
        header->setTextElideMode(on ? Qt::ElideRight : Qt::ElideNone);
}

void HeadingStyleAdapter::setForegroundPicture(const QVariant &picture)
{
    m_picture = picture;
    showPicture();
}

void HeadingStyleAdapter::setTransparent(bool on)
{
    m_transparent = on;
    showPicture();
}

void HeadingStyleAdapter::showPicture()
{
    const QPixmap pixmap = pixmapOf(m_picture, m_transparent);
    m_column->setHeading(Qt::DecorationRole, pixmap.isNull() ? QVariant() : QVariant(pixmap));
}

} // namespace qor
