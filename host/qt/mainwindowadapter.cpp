#include "host/qt/mainwindowadapter.h"

#include "host/qt/frameadapter.h"
#include "host/qt/labeladapter.h"
#include "host/qt/monthviewadapter.h"
#include "host/qt/shapeadapter.h"
#include "runtime/runtimeerror.h"

#include <QCalendarWidget>
#include <QGroupBox>
#include <QLabel>

namespace qor {

namespace {

constexpr int shapeCount = 8;

} // namespace

template <typename W> W *MainWindowAdapter::childWidget(const QString &name)
{
    if (W *existing = m_window->findChild<W *>(name))
        return existing;
    auto *made = new W(m_window->centralWidget());
    made->setObjectName(name);
    return made;
}

MainWindowAdapter::MainWindowAdapter(QMainWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    if (!window->centralWidget())
        window->setCentralWidget(new QWidget(window));
    QWidget *desk = window->centralWidget();
    m_frame = new FrameAdapter(childWidget<QGroupBox>(QStringLiteral("FrameMenu")), this);
    m_monthView
        = new MonthViewAdapter(childWidget<QCalendarWidget>(QStringLiteral("MonthView")), this);
    for (int i = 0; i < shapeCount; ++i) {
        const QString name = QStringLiteral("ShapeMenu%1").arg(i);
        QObject *shape = nullptr;
        if (QWidget *existing = window->findChild<QWidget *>(name))
            shape = new WidgetAdapter(existing, this);
        else
            shape = new ShapeAdapter(desk, name, this);
        m_shapes.append(QVariant::fromValue(shape));
    }
    m_label = new LabelAdapter(childWidget<QLabel>(QStringLiteral("LabelVersie")), this);
}

QMainWindow *MainWindowAdapter::window() const
{
    if (!m_window)
        throw RuntimeError::objectNotSet();
    return m_window.data();
}

void MainWindowAdapter::setFlag(Qt::WindowType flag, bool on)
{
    QMainWindow *w = window();
    const bool visible = w->isVisible();
    w->setWindowFlag(Qt::CustomizeWindowHint, true);
    w->setWindowFlag(flag, on);
    if (visible)
        w->show();
}

void MainWindowAdapter::setBorderStyle(qint32 style)
{
    m_borderStyle = style;
}

bool MainWindowAdapter::controlBox() const
{
    return window()->windowFlags().testFlag(Qt::WindowSystemMenuHint)
        || !window()->windowFlags().testFlag(Qt::CustomizeWindowHint);
}
void MainWindowAdapter::setControlBox(bool on)
{
    setFlag(Qt::WindowSystemMenuHint, on);
    setFlag(Qt::WindowCloseButtonHint, on);
}

bool MainWindowAdapter::maxButton() const
{
    return window()->windowFlags().testFlag(Qt::WindowMaximizeButtonHint)
        || !window()->windowFlags().testFlag(Qt::CustomizeWindowHint);
}
void MainWindowAdapter::setMaxButton(bool on)
{
    setFlag(Qt::WindowMaximizeButtonHint, on);
}

bool MainWindowAdapter::minButton() const
{
    return window()->windowFlags().testFlag(Qt::WindowMinimizeButtonHint)
        || !window()->windowFlags().testFlag(Qt::CustomizeWindowHint);
}
void MainWindowAdapter::setMinButton(bool on)
{
    setFlag(Qt::WindowMinimizeButtonHint, on);
}

bool MainWindowAdapter::showInTaskbar() const
{
    return (window()->windowFlags() & Qt::WindowType_Mask) != Qt::Tool;
}
void MainWindowAdapter::setShowInTaskbar(bool on)
{
    setFlag(Qt::Tool, !on);
}

qint32 MainWindowAdapter::windowState() const
{
    const Qt::WindowStates state = window()->windowState();
    return state & Qt::WindowMinimized ? 1 : state & Qt::WindowMaximized ? 2 : 0;
}

void MainWindowAdapter::setWindowState(qint32 state)
{
    window()->setWindowState(state == 2 ? Qt::WindowMaximized
            : state == 1                ? Qt::WindowMinimized
                                        : Qt::WindowNoState);
}

QString MainWindowAdapter::caption() const
{
    return window()->windowTitle();
}
void MainWindowAdapter::setCaption(const QString &caption)
{
    window()->setWindowTitle(caption);
}

float MainWindowAdapter::left() const
{
    return WidgetAdapter::twips(window()->x(), true);
}
float MainWindowAdapter::top() const
{
    return WidgetAdapter::twips(window()->y(), false);
}
float MainWindowAdapter::width() const
{
    return WidgetAdapter::twips(window()->width(), true);
}
float MainWindowAdapter::height() const
{
    return WidgetAdapter::twips(window()->height(), false);
}

qint32 MainWindowAdapter::hWnd() const
{
    return qint32(window()->winId());
}

QObject *MainWindowAdapter::frameMenu() const
{
    return m_frame;
}
QObject *MainWindowAdapter::monthView() const
{
    return m_monthView;
}
QVariantList MainWindowAdapter::shapeMenu() const
{
    return m_shapes;
}
QObject *MainWindowAdapter::labelVersie() const
{
    return m_label;
}

} // namespace qor
