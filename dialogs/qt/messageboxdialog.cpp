#include "dialogs/qt/messageboxdialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace qor {

namespace {

QStyle::StandardPixmap iconOf(int type)
{
    switch (type) {
    case 0: return QStyle::SP_MessageBoxCritical;
    case 1: return QStyle::SP_MessageBoxWarning;
    case 3: return QStyle::SP_MessageBoxQuestion;
    default: return QStyle::SP_MessageBoxInformation;
    }
}

QString keyName(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return QStringLiteral("Enter");
    case Qt::Key_Escape: return QStringLiteral("Escape");
    default: return event->text().toUpper();
    }
}

} // namespace

MessageBoxDialog::MessageBoxDialog(const MessageBoxERequest &request, QWidget *parent)
    : QDialog(parent)
    , m_request(request)
{
    setObjectName(QStringLiteral("frmMsgBoxE"));
    setWindowTitle(request.caption);
    setModal(true);
    auto *icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("Img"));
    icon->setPixmap(style()->standardIcon(iconOf(request.type)).pixmap(32, 32));
    auto *label
        = new QLabel(QString(request.prompt).replace(QLatin1Char('\r'), QLatin1Char('\n')), this);
    label->setObjectName(QStringLiteral("Label"));
    label->setWordWrap(true);
    auto *top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addWidget(label, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const DialogButton &button : request.buttons) {
        auto *push = new QPushButton(button.caption, this);
        push->setObjectName(button.name);
        push->setAutoDefault(false);
        push->setFocusPolicy(Qt::NoFocus);
        const int result = button.result;
        connect(push, &QPushButton::clicked, this, [this, result] { choose(result); });
        buttons->addWidget(push);
    }
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
}

void MessageBoxDialog::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    const int result = m_request.resultForKey ? m_request.resultForKey(keyName(event)) : 0;
    if (result != 0)
        choose(result);
}

void MessageBoxDialog::choose(int result)
{
    m_answer = result;
    accept();
}

} // namespace qor
