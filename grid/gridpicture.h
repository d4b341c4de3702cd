#pragma once

#include "qorgenlib_export.h"

#include <QByteArray>
#include <QMetaType>
#include <QObject>

namespace qor {

// A bitmap resource of the library shown in a grid heading: the ascending
// (1000) and descending (1001) sort pictures, 10 by 16 pixels, 4 bits per
// pixel. The value names the resource; bytes() gives the bitmap file.
class QORGENLIB_EXPORT GridPicture
{
    Q_GADGET
    Q_PROPERTY(qint32 ResourceId MEMBER resourceId)
    Q_PROPERTY(qint32 Width MEMBER width)
    Q_PROPERTY(qint32 Height MEMBER height)

public:
    enum Resource : qint32 { SortAscending = 1000, SortDescending = 1001 };

    qint32 resourceId = 0;
    qint32 width = 10;
    qint32 height = 16;

    static GridPicture of(Resource id);
    // The bitmap file of the resource; empty for an unknown id.
    QByteArray bytes() const;

    bool operator==(const GridPicture &other) const = default;
};

} // namespace qor

Q_DECLARE_METATYPE(qor::GridPicture)
