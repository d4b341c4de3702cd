#pragma once

#include "qorgenlib_export.h"

#include <QMetaType>
#include <QObject>

namespace qorGenLib {

/// A rectangle of the screen in twips, as the work-area query returns it.
struct QORGENLIB_EXPORT WindowSize
{
    Q_GADGET
    Q_PROPERTY(qint32 Left MEMBER Left)
    Q_PROPERTY(qint32 Top MEMBER Top)
    Q_PROPERTY(qint32 Right MEMBER Right)
    Q_PROPERTY(qint32 Bottom MEMBER Bottom)
    Q_PROPERTY(qint32 Width MEMBER Width)
    Q_PROPERTY(qint32 Height MEMBER Height)
public:
    qint32 Left = 0;
    qint32 Top = 0;
    qint32 Right = 0;
    qint32 Bottom = 0;
    qint32 Width = 0;
    qint32 Height = 0;

    bool operator==(const WindowSize &) const = default;
};

} // namespace qorGenLib

Q_DECLARE_METATYPE(qorGenLib::WindowSize)
