#include "demofill.h"

#include <QCoreApplication>
#include <QDate>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

void sendKey(QWidget *field, int key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(field, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(field, &release);
}

int keyOf(QChar c)
{
    const QChar upper = c.toUpper();
    return upper.unicode() < 128 ? int(upper.unicode()) : int(Qt::Key_unknown);
}

} // namespace

DemoFill::DemoFill(QWidget *invoice)
    : m_invoice(invoice)
{ }

void DemoFill::fill()
{
    type("txtNaam", QStringLiteral("bakkerij janssens-de smet"));
    type("txtBtwNr", QStringLiteral("0123456749"));
    type("txtBankNr", QStringLiteral("BE53539007510153"));
    type("txtNatNr", QStringLiteral("85031512369"));
    type("txtFactuurNr", QStringLiteral("20260117"));
    type("txtDatum", QDate::currentDate().toString(QStringLiteral("ddMMyy")));
    type("txtUur", QStringLiteral("830"));
    scan(QStringLiteral("5410000100017"), QStringLiteral("2"));
    scan(QStringLiteral("5410000100031"), QStringLiteral("350"));
    scan(QStringLiteral("5410000100062"), QStringLiteral("1"));
}

void DemoFill::type(const char *field, const QString &text, bool enter)
{
    auto *edit = m_invoice->findChild<QLineEdit *>(QLatin1String(field));
    if (!edit)
        return;
    edit->setFocus();
    edit->selectAll();
    for (QChar c : text)
        sendKey(edit, keyOf(c), QString(c));
    if (enter)
        sendKey(edit, Qt::Key_Return, QStringLiteral("\r"));
}

void DemoFill::scan(const QString &code, const QString &quantity)
{
    type("txtArtikel", QStringLiteral("%[") + code + QLatin1Char(']'), false);
    type("txtAantal", quantity, false);
    click("cmdToevoegen");
}

void DemoFill::click(const char *button)
{
    if (auto *push = m_invoice->findChild<QPushButton *>(QLatin1String(button)))
        push->click();
}
