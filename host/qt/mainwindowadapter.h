#pragma once

#include "qorgenlib_export.h"

#include "host/controls/menuform.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QVariantList>

namespace qor {

class FrameAdapter;
class LabelAdapter;
class MonthViewAdapter;

/// Gives a host's QMainWindow the names of the menu form the library dresses:
/// the design settings, WindowState, Caption, place and size in twips, hWnd,
/// and the children FrameMenu (a group box), MonthView (a QCalendarWidget),
/// ShapeMenu (eight painted shapes) and LabelVersie (a label). Children the
/// window already has under those object names ("ShapeMenu0" ... "ShapeMenu7"
/// for the shapes) are used; the others are made on its central widget.
///
/// Of the design settings, ControlBox, MaxButton and MinButton are window flags
/// and ShowInTaskbar is the absence of the tool-window flag; BorderStyle (2
/// sizable, 1 fixed), Moveable and StartUpPosition are kept for the checks,
/// since the window manager decides moving and placing.
class QORGENLIB_WIDGETS_EXPORT MainWindowAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qint32 BorderStyle READ borderStyle WRITE setBorderStyle)
    Q_PROPERTY(bool ControlBox READ controlBox WRITE setControlBox)
    Q_PROPERTY(bool MaxButton READ maxButton WRITE setMaxButton)
    Q_PROPERTY(bool MinButton READ minButton WRITE setMinButton)
    Q_PROPERTY(bool Moveable MEMBER m_moveable)
    Q_PROPERTY(bool ShowInTaskbar READ showInTaskbar WRITE setShowInTaskbar)
    Q_PROPERTY(qint32 StartUpPosition MEMBER m_startUpPosition)
    Q_PROPERTY(qint32 WindowState READ windowState WRITE setWindowState)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(float Left READ left)
    Q_PROPERTY(float Top READ top)
    Q_PROPERTY(float Width READ width)
    Q_PROPERTY(float Height READ height)
    Q_PROPERTY(qint32 hWnd READ hWnd)
    Q_PROPERTY(QObject *FrameMenu READ frameMenu)
    Q_PROPERTY(QObject *MonthView READ monthView)
    Q_PROPERTY(QVariantList ShapeMenu READ shapeMenu)
    Q_PROPERTY(QObject *LabelVersie READ labelVersie)

public:
    explicit MainWindowAdapter(QMainWindow *window, QObject *parent = nullptr);

    QMainWindow *window() const;

    qint32 borderStyle() const { return m_borderStyle; }
    void setBorderStyle(qint32 style);
    bool controlBox() const;
    void setControlBox(bool on);
    bool maxButton() const;
    void setMaxButton(bool on);
    bool minButton() const;
    void setMinButton(bool on);
    bool showInTaskbar() const;
    void setShowInTaskbar(bool on);
    /// 0 normal, 1 minimised, 2 maximised.
    qint32 windowState() const;
    void setWindowState(qint32 state);
    QString caption() const;
    void setCaption(const QString &caption);
    float left() const;
    float top() const;
    float width() const;
    float height() const;
    qint32 hWnd() const;

    QObject *frameMenu() const;
    QObject *monthView() const;
    QVariantList shapeMenu() const;
    QObject *labelVersie() const;

private:
    void setFlag(Qt::WindowType flag, bool on);
    template <typename W> W *childWidget(const QString &name);

    QPointer<QMainWindow> m_window;
    qint32 m_borderStyle = controls::initial<qint32>(controls::menuForm, "BorderStyle");
    bool m_moveable = controls::initial<bool>(controls::menuForm, "Moveable");
    qint32 m_startUpPosition = controls::initial<qint32>(controls::menuForm, "StartUpPosition");
    FrameAdapter *m_frame = nullptr;
    MonthViewAdapter *m_monthView = nullptr;
    QVariantList m_shapes;
    LabelAdapter *m_label = nullptr;
};

} // namespace qor
