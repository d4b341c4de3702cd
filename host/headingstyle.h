#pragma once

#include "qorgenlib_export.h"

#include "host/controls/headingstyle.h"

#include "host/hostobject.h"

namespace qor {

/// The heading style of a grid column: ellipsis and the picture in the heading.
class QORGENLIB_EXPORT HeadingStyle : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "HeadingStyle")
    Q_PROPERTY(bool EllipsisText MEMBER m_ellipsisText)
    Q_PROPERTY(QVariant ForegroundPicture MEMBER m_foregroundPicture)
    Q_PROPERTY(qint32 ForegroundPicturePosition MEMBER m_foregroundPicturePosition)
    Q_PROPERTY(bool TransparentForegroundPicture MEMBER m_transparentForegroundPicture)

public:
    explicit HeadingStyle(QObject *parent = nullptr);

private:
    bool m_ellipsisText = controls::initial<bool>(controls::headingStyle, "EllipsisText");
    QVariant m_foregroundPicture;
    qint32 m_foregroundPicturePosition
        = controls::initial<qint32>(controls::headingStyle, "ForegroundPicturePosition");
    bool m_transparentForegroundPicture
        = controls::initial<bool>(controls::headingStyle, "TransparentForegroundPicture");
};

} // namespace qor
