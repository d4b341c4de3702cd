#include "platform/qt/qtplatform.h"

#include "calculator/qt/calculatorform.h"
#include "calculator/qt/vatnoteform.h"
#include "dialogs/qt/frminputboxe.h"
#include "dialogs/qt/frmmsgboxe.h"
#include "dialogs/qt/soundplayer.h"
#include "platform/keyboardlayout.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QWidget>

namespace qor {

struct QtPlatform::Private
{
    bool overrideCursor = false;
};

namespace {

QMessageBox::Icon iconOf(int style)
{
    switch (style & 0x70) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    case 64: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

// The standard button sets of the system message box and their result values.
QList<QPair<QMessageBox::StandardButton, int>> buttonsOf(int style)
{
    switch (style & 7) {
    case 1: return { { QMessageBox::Ok, 1 }, { QMessageBox::Cancel, 2 } };
    case 2:
        return { { QMessageBox::Abort, 3 }, { QMessageBox::Retry, 4 }, { QMessageBox::Ignore, 5 } };
    case 3: return { { QMessageBox::Yes, 6 }, { QMessageBox::No, 7 }, { QMessageBox::Cancel, 2 } };
    case 4: return { { QMessageBox::Yes, 6 }, { QMessageBox::No, 7 } };
    case 5: return { { QMessageBox::Retry, 4 }, { QMessageBox::Cancel, 2 } };
    default: return { { QMessageBox::Ok, 1 } };
    }
}

// The character a virtual key types without Shift.
QString plainTextOf(int virtualKey)
{
    for (int c = 0; c < 128; ++c) {
        if (virtualKeyScan(c) == virtualKey)
            return QString(QChar(c));
    }
    return QString();
}

int qtKeyOf(int virtualKey, const QString &text)
{
    switch (virtualKey) {
    case 0x0D: return Qt::Key_Return;
    case 0x08: return Qt::Key_Backspace;
    case 0x09: return Qt::Key_Tab;
    case 0x1B: return Qt::Key_Escape;
    default: return text.isEmpty() ? Qt::Key_unknown : QKeySequence(text.toUpper())[0].key();
    }
}

} // namespace

QtPlatform::QtPlatform()
    : d(std::make_unique<Private>())
{ }

QtPlatform::~QtPlatform() = default;

int QtPlatform::messageBoxE(const MessageBoxERequest &request)
{
    // Dialogs: the box answers Escape when closed from its title bar.
    frmMsgBoxE dialog(request, QApplication::activeWindow());
    dialog.exec();
    return dialog.answer() != 0 ? dialog.answer() : defaultAnswer(request);
}

int QtPlatform::systemMessageBox(const SystemMessageBoxRequest &request)
{
    QMessageBox box(iconOf(request.style), request.title,
        QString(request.prompt).replace(QLatin1Char('\r'), QLatin1Char('\n')),
        QMessageBox::NoButton, QApplication::activeWindow());
    const auto buttons = buttonsOf(request.style);
    for (const auto &button : buttons)
        box.addButton(button.first);
    const auto chosen = QMessageBox::StandardButton(box.exec());
    for (const auto &button : buttons) {
        if (button.first == chosen)
            return button.second;
    }
    return buttons.size() > 1 ? 2 : 1;
}

InputBoxEAnswer QtPlatform::inputBoxE(const InputBoxERequest &request)
{
    frmInputBoxE dialog(request, QApplication::activeWindow());
    dialog.exec();
    return dialog.answer();
}

CalculatorAnswer QtPlatform::presentCalculator(
    double start, const std::shared_ptr<CalculatorSession> &session)
{
    if (!session)
        return { false, start };
    CalculatorForm form(session, QApplication::activeWindow());
    form.exec();
    return { false, session->resultRegister() };
}

// The widget of a host control: the control itself, or the widget an adapter belongs to.
static QWidget *widgetOf(QObject *control)
{
    for (QObject *object = control; object; object = object->parent()) {
        if (auto *widget = qobject_cast<QWidget *>(object))
            return widget;
    }
    return nullptr;
}

void QtPlatform::showNote(const NoteRequest &note)
{
    VatNoteForm::flash(note.text, widgetOf(note.field));
}

void QtPlatform::beep()
{
    QApplication::beep();
}

void QtPlatform::processEvents()
{
    QApplication::processEvents();
}

void QtPlatform::playSound(const QString &file, bool continuous)
{
    // Sound: the library's one player.
    SoundPlayer::play(localPath(file), continuous);
}

void QtPlatform::stopSound()
{
    SoundPlayer::stop();
}

// What the desktop keeps for itself beside the available area: the widest of
// the four strips between the screen's geometry and its available geometry.
std::optional<QRect> QtPlatform::taskbarOf(const QRect &full, const QRect &available)
{
    if (available == full || !full.contains(available))
        return std::nullopt;
    const QRect strips[] = {
        QRect(full.left(), full.top(), full.width(), available.top() - full.top()),
        QRect(
            full.left(), available.bottom() + 1, full.width(), full.bottom() - available.bottom()),
        QRect(full.left(), full.top(), available.left() - full.left(), full.height()),
        QRect(available.right() + 1, full.top(), full.right() - available.right(), full.height()),
    };
    const QRect *largest = nullptr;
    for (const QRect &strip : strips) {
        const qint64 area = qint64(strip.width()) * strip.height();
        if (area > 0 && (!largest || area > qint64(largest->width()) * largest->height()))
            largest = &strip;
    }
    return largest ? std::optional<QRect>(*largest) : std::nullopt;
}

ScreenInfo QtPlatform::screen() const
{
    ScreenInfo info;
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return info;
    const QRect full = screen->geometry();
    info.origin = full.topLeft();
    info.width = full.width();
    info.height = full.height();
    info.twipsPerPixelX = qMax(1, qRound(1440.0 / screen->logicalDotsPerInchX()));
    info.twipsPerPixelY = qMax(1, qRound(1440.0 / screen->logicalDotsPerInchY()));
    info.taskbar = taskbarOf(full, screen->availableGeometry());
    info.cursor = QCursor::pos(const_cast<QScreen *>(screen));
    return info;
}

// The request goes to logind over the system bus, not interactive and not
// forced; whether it is granted is not awaited.
void QtPlatform::shutDown()
{
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.login1"),
        QStringLiteral("/org/freedesktop/login1"), QStringLiteral("org.freedesktop.login1.Manager"),
        QStringLiteral("PowerOff"));
    call << false;
    QDBusConnection::systemBus().send(call);
}

// A window system that decides stacking itself (Wayland) may ignore the flag.
void QtPlatform::keepOnTop(QObject *form, qint64 windowHandle)
{
    QWidget *widget = qobject_cast<QWidget *>(form);
    if (!widget && windowHandle != 0)
        widget = QWidget::find(WId(windowHandle));
    if (!widget)
        return;
    QWidget *window = widget->window();
    const bool visible = window->isVisible();
    window->setWindowFlag(Qt::WindowStaysOnTopHint, true);
    if (visible)
        window->show();
}

void QtPlatform::setMousePointer(int pointer)
{
    if (d->overrideCursor) {
        QGuiApplication::restoreOverrideCursor();
        d->overrideCursor = false;
    }
    // 11 is the hourglass; 0 and 1 the default arrow.
    if (pointer == 11) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        d->overrideCursor = true;
    }
}

void QtPlatform::keyEvent(int virtualKey, int scanCode, int flags)
{
    QWidget *target = QApplication::focusWidget();
    if (!target)
        return;
    const QString text = plainTextOf(virtualKey);
    const bool up = flags & 2;
    auto *event = new QKeyEvent(up ? QEvent::KeyRelease : QEvent::KeyPress,
        qtKeyOf(virtualKey, text), Qt::NoModifier, quint32(scanCode), quint32(virtualKey), 0, text);
    QCoreApplication::postEvent(target, event);
}

} // namespace qor
