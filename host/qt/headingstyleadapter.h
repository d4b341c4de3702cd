#pragma once

#include "qorgenlib_export.h"

#include "host/controls/headingstyle.h"

#include <QObject>
#include <QVariant>

namespace qor {

class TableColumnAdapter;

/// The heading style of a QTableView column: the picture goes into the
/// heading as its decoration (its corner colour transparent when asked), and
/// the ellipsis into the header's elide mode.
class QORGENLIB_WIDGETS_EXPORT HeadingStyleAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool EllipsisText READ ellipsisText WRITE setEllipsisText)
    Q_PROPERTY(QVariant ForegroundPicture READ foregroundPicture WRITE setForegroundPicture)
    Q_PROPERTY(qint32 ForegroundPicturePosition MEMBER m_picturePosition)
    Q_PROPERTY(bool TransparentForegroundPicture READ transparent WRITE setTransparent)

public:
    explicit HeadingStyleAdapter(TableColumnAdapter *column);

    bool ellipsisText() const { return m_ellipsisText; }
    void setEllipsisText(bool on);
    QVariant foregroundPicture() const { return m_picture; }
    void setForegroundPicture(const QVariant &picture);
    bool transparent() const { return m_transparent; }
    void setTransparent(bool on);

private:
    void showPicture();

    TableColumnAdapter *m_column;
    bool m_ellipsisText = controls::initial<bool>(controls::headingStyle, "EllipsisText");
    QVariant m_picture;
    qint32 m_picturePosition
        = controls::initial<qint32>(controls::headingStyle, "ForegroundPicturePosition");
    bool m_transparent
        = controls::initial<bool>(controls::headingStyle, "TransparentForegroundPicture");
};

} // namespace qor
