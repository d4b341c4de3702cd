#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"

namespace qor {

/// One of a grid's style objects (its Style, HighlightRowStyle, SelectedStyle).
class QORGENLIB_EXPORT GridStyle : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Style")
    Q_PROPERTY(qint32 BackColor MEMBER m_backColor)
    Q_PROPERTY(qint32 ForeColor MEMBER m_foreColor)
    Q_PROPERTY(bool WrapText MEMBER m_wrapText)
    Q_PROPERTY(qint32 BorderAppearance MEMBER m_borderAppearance)

public:
    explicit GridStyle(QObject *parent = nullptr);

private:
    qint32 m_backColor = 0;
    qint32 m_foreColor = 0;
    bool m_wrapText = false;
    qint32 m_borderAppearance = 0;
};

} // namespace qor
