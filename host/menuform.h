#pragma once

#include "qorgenlib_export.h"

#include "host/controls/menuform.h"

#include "host/form.h"

namespace qor {

/// The host application's main menu form: its design settings and the child
/// controls the library dresses (the menu frame, the month view, eight shapes
/// and the version label).
class QORGENLIB_EXPORT MenuForm : public Form
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "MenuForm")
    Q_PROPERTY(qint32 BorderStyle MEMBER m_borderStyle)
    Q_PROPERTY(bool ControlBox MEMBER m_controlBox)
    Q_PROPERTY(bool MaxButton MEMBER m_maxButton)
    Q_PROPERTY(bool MinButton MEMBER m_minButton)
    Q_PROPERTY(bool Moveable MEMBER m_moveable)
    Q_PROPERTY(bool ShowInTaskbar MEMBER m_showInTaskbar)
    Q_PROPERTY(qint32 StartUpPosition MEMBER m_startUpPosition)
    Q_PROPERTY(qint32 WindowState MEMBER m_windowState)
    Q_PROPERTY(QObject *FrameMenu MEMBER m_frameMenu)
    Q_PROPERTY(QObject *MonthView MEMBER m_monthView)
    Q_PROPERTY(QVariantList ShapeMenu MEMBER m_shapeMenu)
    Q_PROPERTY(QObject *LabelVersie MEMBER m_labelVersie)

public:
    explicit MenuForm(QObject *parent = nullptr);

    QString elementClass(const QString &property) const override;

private:
    /// A new form has the settings of a new form of the host's designer.
    qint32 m_borderStyle = controls::initial<qint32>(controls::menuForm, "BorderStyle");
    bool m_controlBox = controls::initial<bool>(controls::menuForm, "ControlBox");
    bool m_maxButton = controls::initial<bool>(controls::menuForm, "MaxButton");
    bool m_minButton = controls::initial<bool>(controls::menuForm, "MinButton");
    bool m_moveable = controls::initial<bool>(controls::menuForm, "Moveable");
    bool m_showInTaskbar = controls::initial<bool>(controls::menuForm, "ShowInTaskbar");
    qint32 m_startUpPosition = controls::initial<qint32>(controls::menuForm, "StartUpPosition");
    qint32 m_windowState = controls::initial<qint32>(controls::menuForm, "WindowState");
    QObject *m_frameMenu = nullptr;
    QObject *m_monthView = nullptr;
    QVariantList m_shapeMenu;
    QObject *m_labelVersie = nullptr;
};

} // namespace qor
