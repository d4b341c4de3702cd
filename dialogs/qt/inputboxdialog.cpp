#include "dialogs/qt/inputboxdialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qor {

InputBoxDialog::InputBoxDialog(const InputBoxERequest &request, QWidget *parent)
    : QDialog(parent)
    , m_text(new QLineEdit(this))
{
    setObjectName(QStringLiteral("frmInputBoxE"));
    setWindowTitle(request.caption);
    setModal(true);
    auto *label
        = new QLabel(QString(request.prompt).replace(QLatin1Char('\r'), QLatin1Char('\n')), this);
    label->setObjectName(QStringLiteral("Label"));
    label->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("Text"));
    if (request.maxLength > 0)
        m_text->setMaxLength(request.maxLength);
    m_text->setText(request.defaultValue);
    auto *ok = new QPushButton(
        request.okCaption.isEmpty() ? QStringLiteral("OK") : request.okCaption, this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto *cancel = new QPushButton(request.cancelCaption, this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton *button : { ok, cancel }) {
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::NoFocus);
    }
    connect(ok, &QPushButton::clicked, this, [this] {
        m_cancelled = false;
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_text);
    layout->addLayout(buttons);
    m_text->setFocus();
}

InputBoxEAnswer InputBoxDialog::answer() const
{
    if (m_cancelled)
        return { true, QString() };
    return { false, m_text->text() };
}

void InputBoxDialog::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_cancelled = false;
        accept();
        break;
    case Qt::Key_Escape: reject(); break;
    default: QDialog::keyPressEvent(event);
    }
}

} // namespace qor
