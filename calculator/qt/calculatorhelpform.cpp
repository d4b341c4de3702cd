#include "calculator/qt/calculatorhelpform.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace qor {

namespace {

QLabel *plainLabel(const QString &name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

CalculatorHelpForm::CalculatorHelpForm(const CalculatorHelpCard &card, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCalculatorHelp"));
    setModal(true);
    setWindowTitle(card.title);
    auto *layout = new QVBoxLayout(this);
    QLabel *title = plainLabel(QStringLiteral("lblTitle"), card.title, this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    layout->addWidget(title);
    // The calling key's picture sits in the gap the line leaves for it.
    auto *call = new QHBoxLayout;
    call->addWidget(plainLabel(QStringLiteral("lblCall"), card.callLine, this), 1);
    QLabel *keyPicture = plainLabel(QStringLiteral("imgCallKey"), QStringLiteral("*"), this);
    keyPicture->setFrameStyle(QFrame::Box | QFrame::Raised);
    keyPicture->setAlignment(Qt::AlignCenter);
    keyPicture->setFixedSize(22, 22);
    keyPicture->setFont(bold);
    call->addWidget(keyPicture);
    layout->addLayout(call);
    QLabel *heading = plainLabel(QStringLiteral("lblHeading"), card.heading, this);
    heading->setFont(bold);
    layout->addWidget(heading);
    auto *keys = new QGridLayout;
    for (int i = 0; i < card.keys.size(); ++i) {
        keys->addWidget(plainLabel(QStringLiteral("lblKey%1").arg(i), card.keys[i].first, this), i,
            0, Qt::AlignTop);
        QLabel *explanation
            = plainLabel(QStringLiteral("lblExplain%1").arg(i), card.keys[i].second, this);
        explanation->setMinimumWidth(380);
        keys->addWidget(explanation, i, 1);
    }
    layout->addLayout(keys);
    layout->addWidget(plainLabel(QStringLiteral("lblMoving"), card.movingLine, this));
    layout->addWidget(plainLabel(QStringLiteral("lblVat"), card.vatLine, this));
}

void CalculatorHelpForm::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    accept();
}

void CalculatorHelpForm::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    accept();
}

} // namespace qor
