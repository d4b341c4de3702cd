#pragma once

#include "qorgenlib_export.h"

#include "host/controls/gridstyle.h"

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
    qint32 m_backColor = controls::initial<qint32>(controls::gridStyle, "BackColor");
    qint32 m_foreColor = controls::initial<qint32>(controls::gridStyle, "ForeColor");
    bool m_wrapText = controls::initial<bool>(controls::gridStyle, "WrapText");
    qint32 m_borderAppearance = controls::initial<qint32>(controls::gridStyle, "BorderAppearance");
};

} // namespace qor
