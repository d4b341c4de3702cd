#include "grid/gridpicture.h"

#include <QFile>

static void initGridPictures()
{
    Q_INIT_RESOURCE(gridpictures);
}

namespace qor {

GridPicture GridPicture::of(Resource id)
{
    GridPicture picture;
    picture.resourceId = id;
    return picture;
}

QByteArray GridPicture::bytes() const
{
    initGridPictures();
    QFile file(QStringLiteral(":/qorgenlib/grid/%1.bmp").arg(resourceId));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

} // namespace qor
