#include "dialogs/qt/frmmsgboxe.h"

#include "dialogs/qt/boxgeometry.h"
#include "dialogs/qt/scannerfield.h"
#include "input/scanbm.h"
#include "lib/frame/modgenlib.h"
#include "runtime/codepage.h"
#include "runtime/runtimeerror.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace qor {

namespace {

const char *const buttonNames[] = { "cmdOK", "cmdCancel", "cmdYes", "cmdNo" };
constexpr int iconCount = 5;

// The key code the classic key-press event would have seen (-1: none).
int keyAsciiOf(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return ScanKey::Enter;
    case Qt::Key_Escape: return ScanKey::Escape;
    case Qt::Key_Backspace: return ScanKey::Backspace;
    default: return event->text().size() == 1 ? asc(event->text().at(0)) : -1;
    }
}

QString keyNameOf(int keyAscii)
{
    switch (keyAscii) {
    case ScanKey::Enter: return QStringLiteral("Enter");
    case ScanKey::Escape: return QStringLiteral("Escape");
    default: return QString(chr(keyAscii));
    }
}

} // namespace

frmMsgBoxE::frmMsgBoxE(const MessageBoxERequest &request, QWidget *parent)
    : QDialog(parent)
    , m_request(request)
    , m_frame(new QFrame(this))
    , m_label(new QLabel(m_frame))
    , m_scanner(new ScannerField(this))
{
    setObjectName(QStringLiteral("frmMsgBoxE"));
    setModal(true);
    setWindowTitle(request.caption);
    setTag(this, QString::number(request.style));
    createWidgets();
    layOut();
    connect(m_scanner, &QLineEdit::textChanged, this, &frmMsgBoxE::scannerTextChanged);
}

void frmMsgBoxE::createWidgets()
{
    m_frame->setObjectName(QStringLiteral("Frame"));
    m_label->setObjectName(QStringLiteral("Label"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTag(m_label, m_request.text);
    for (int type = 0; type < iconCount; ++type) {
        auto *icon = new QLabel(m_frame);
        icon->setObjectName(QStringLiteral("Img"));
        icon->setProperty("Index", type);
        icon->setPixmap(BoxGeometry::iconOf(this, type));
        icon->setVisible(false);
        m_icons.append(icon);
    }
    for (const char *name : buttonNames) {
        auto *push = new QPushButton(m_frame);
        push->setObjectName(QLatin1String(name));
        push->setAutoDefault(false);
        push->setFocusPolicy(Qt::NoFocus);
        push->setVisible(false);
        m_buttons.append(push);
    }
    for (const DialogButton &shown : m_request.buttons) {
        if (QPushButton *push = button(shown.name)) {
            const int result = shown.result;
            connect(push, &QPushButton::clicked, this, [this, result] { choose(result); });
        }
    }
}

QPushButton *frmMsgBoxE::button(const QString &name) const
{
    for (QPushButton *push : m_buttons) {
        if (push->objectName() == name)
            return push;
    }
    return nullptr;
}

void frmMsgBoxE::layOut()
{
    const BoxGeometry geometry(m_label);
    QStringList captions;
    for (const DialogButton &shown : m_request.buttons)
        captions.append(shown.caption);
    const BoxLayout layout = layoutBox(geometry.input(m_request.text, captions));
    m_label->setText(QString(layout.caption).replace(QLatin1Char('\r'), QLatin1Char('\n')));
    m_label->setGeometry(geometry.toPixels(layout.label));
    m_frame->setGeometry(geometry.toPixels(layout.frame));
    const int type = std::clamp(m_request.type, 0, iconCount - 1);
    m_icons.at(type)->setGeometry(geometry.toPixels(layout.icon));
    m_icons.at(type)->setVisible(true);
    for (qsizetype i = 0; i < m_request.buttons.size() && i < layout.buttons.size(); ++i) {
        QPushButton *push = button(m_request.buttons.at(i).name);
        if (!push)
            continue;
        push->setText(m_request.buttons.at(i).caption);
        push->setGeometry(geometry.toPixels(layout.buttons.at(i)));
        push->setVisible(true);
    }
    const QRect form = geometry.toPixels(layout.form);
    setFixedSize(std::max(1, form.width()), std::max(1, form.height()));
    move(form.topLeft());
}

void frmMsgBoxE::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (m_shown)
        return;
    m_shown = true;
    firstShown();
}

void frmMsgBoxE::firstShown()
{
    m_scanner->clear();
    modGenLib().scannerBuffer.clear();
    Desktop::current().setMousePointer(0);
    if (m_request.firstShown)
        m_request.firstShown();
}

void frmMsgBoxE::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    int keyAscii = keyAsciiOf(event);
    if (keyAscii < 0)
        return;
    try {
        QString format = QStringLiteral("%[@]");
        keyAscii
            = scanBM(m_scanner, qint16(keyAscii), format, false, true, modGenLib().languageOffset);
    } catch (const RuntimeError &) {
        keyAscii = 0;
    }
    if (keyAscii == 0 || m_answer != 0 || !m_request.resultForKey)
        return;
    const int result = m_request.resultForKey(keyNameOf(keyAscii));
    if (result != 0)
        choose(result);
}

void frmMsgBoxE::scannerTextChanged(const QString &text)
{
    if (m_answer != 0 || !m_request.resultForScan)
        return;
    if (text != QLatin1String("OK") && text != QLatin1String("ANN"))
        return;
    const int result = m_request.resultForScan(text);
    if (result != 0)
        choose(result);
}

void frmMsgBoxE::choose(int result)
{
    if (m_answer == 0)
        m_answer = result;
    accept();
}

// However the window closes (its close button too), an unanswered box
// answers as Escape would, never with an earlier box's result.
void frmMsgBoxE::done(int code)
{
    if (m_answer == 0 && m_request.resultForKey)
        m_answer = m_request.resultForKey(QStringLiteral("Escape"));
    if (m_answer == 0 && !m_request.buttons.isEmpty())
        m_answer = m_request.buttons.first().result;
    QDialog::done(code);
}

} // namespace qor
