#include "calculator/qt/calculatorform.h"

#include "calculator/qt/calculatorhelpform.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace qor {

namespace {

// The keypad, by index: the digits, the separator, the operations, clear,
// BackSpace, and the two keys that mirror the VAT keys.
struct PadKey
{
    int index;
    const char *caption;
    const char *key;
    int row;
    int column;
};

constexpr PadKey padKeys[] = {
    { 7, "7", "7", 0, 0 },
    { 8, "8", "8", 0, 1 },
    { 9, "9", "9", 0, 2 },
    { 14, "/", "/", 0, 3 },
    { 16, "C", "Delete", 0, 4 },
    { 4, "4", "4", 1, 0 },
    { 5, "5", "5", 1, 1 },
    { 6, "6", "6", 1, 2 },
    { 13, "x", "x", 1, 3 },
    { 17, "<-", "BackSpace", 1, 4 },
    { 1, "1", "1", 2, 0 },
    { 2, "2", "2", 2, 1 },
    { 3, "3", "3", 2, 2 },
    { 12, "-", "-", 2, 3 },
    { 20, "%", "%", 2, 4 },
    { 0, "0", "0", 3, 0 },
    { 10, ",", ",", 3, 1 },
    { 15, "=", "=", 3, 2 },
    { 11, "+", "+", 3, 3 },
    { 18, "", "VAT1", 4, 0 },
    { 19, "", "VAT2", 4, 2 },
};

} // namespace

CalculatorForm::CalculatorForm(std::shared_ptr<CalculatorSession> session, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_session(std::move(session))
{
    setObjectName(QStringLiteral("frmCalculator"));
    setModal(true);
    setFocusPolicy(Qt::StrongFocus);

    auto *title = new QLabel(this);
    title->setObjectName(QStringLiteral("lblTitle"));
    title->setAlignment(Qt::AlignCenter);
    QFont titleFont = title->font();
    titleFont.setBold(true);
    title->setFont(titleFont);

    m_display = new QLabel(this);
    m_display->setObjectName(QStringLiteral("lblDisplay"));
    m_display->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_display->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    m_display->setMinimumHeight(40);
    m_display->setAutoFillBackground(true);
    QPalette palette = m_display->palette();
    palette.setColor(QPalette::Window, QColor(0xE8, 0xF0, 0xD8));
    m_display->setPalette(palette);
    QFont big = m_display->font();
    big.setPointSize(big.pointSize() + 8);
    m_display->setFont(big);
    m_display->setCursor(Qt::SizeAllCursor);
    m_display->installEventFilter(this);
    m_operator = new QLabel(this);
    m_operator->setObjectName(QStringLiteral("lblOperator"));
    m_currency = new QLabel(this);
    m_currency->setObjectName(QStringLiteral("lblCurrency"));
    auto *state = new QHBoxLayout;
    state->addWidget(m_currency);
    state->addStretch();
    state->addWidget(m_operator);

    auto *vat = new QHBoxLayout;
    vat->addWidget(addButton(QStringLiteral("cmdBTW1"), QStringLiteral("VAT1")));
    vat->addWidget(addButton(QStringLiteral("cmdBTW2"), QStringLiteral("VAT2")));
    vat->addWidget(addButton(QStringLiteral("cmdEuro"), QStringLiteral("Euro")));

    auto *pad = new QGridLayout;
    for (const PadKey &key : padKeys) {
        QPushButton *button
            = addButton(QStringLiteral("cmdKey%1").arg(key.index), QString::fromLatin1(key.key));
        button->setText(QString::fromLatin1(key.caption));
        const int span = key.index >= 18 ? 2 : 1;
        pad->addWidget(button, key.row, key.column, 1, span);
    }

    auto *bottom = new QHBoxLayout;
    QPushButton *help = addButton(QStringLiteral("cmdHelp"), QString());
    connect(help, &QPushButton::clicked, this, &CalculatorForm::showHelp);
    bottom->addWidget(help);
    bottom->addStretch();
    QPushButton *escape = addButton(QStringLiteral("cmdEsc"), QStringLiteral("Esc"));
    escape->setText(QStringLiteral("Esc"));
    bottom->addWidget(escape);
    bottom->addWidget(addButton(QStringLiteral("cmdInsert"), QStringLiteral("Insert")));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(m_display);
    layout->addLayout(state);
    layout->addLayout(vat);
    layout->addLayout(pad);
    layout->addLayout(bottom);
    setStyleSheet(QStringLiteral("QDialog#frmCalculator { border: 2px outset palette(mid); }"));
    refresh();
}

QPushButton *CalculatorForm::addButton(const QString &name, const QString &key)
{
    auto *button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    if (!key.isEmpty())
        connect(button, &QPushButton::clicked, this, [this, key] { press(key); });
    return button;
}

QString CalculatorForm::keyName(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return QStringLiteral("Enter");
    case Qt::Key_Escape: return QStringLiteral("Esc");
    case Qt::Key_Insert: return QStringLiteral("Insert");
    case Qt::Key_Backspace: return QStringLiteral("BackSpace");
    case Qt::Key_Delete: return QStringLiteral("Delete");
    case Qt::Key_F1: return QStringLiteral("Help");
    case Qt::Key_F2: return QStringLiteral("VAT1");
    case Qt::Key_F3: return QStringLiteral("VAT2");
    case Qt::Key_F4: return QStringLiteral("Euro");
    default: break;
    }
    const QString text = event->text();
    if (text.size() != 1)
        return QString();
    static const QString typed = QStringLiteral("0123456789,.+-*xX/:=%");
    return typed.contains(text.at(0)) ? text : QString();
}

void CalculatorForm::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    const QString key = keyName(event);
    if (key == QLatin1String("Help"))
        showHelp();
    else if (!key.isEmpty())
        press(key);
}

void CalculatorForm::closeEvent(QCloseEvent *event)
{
    // Closed from outside: as Esc, so nothing new is inserted.
    if (!m_session->view().closed)
        m_session->press(QStringLiteral("Esc"));
    QDialog::closeEvent(event);
}

bool CalculatorForm::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_display)
        return QDialog::eventFilter(watched, event);
    // The display sees every kind of event; only the mouse events are read as such.
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        m_dragging = mouse->button() == Qt::LeftButton;
        m_dragOffset = mouse->globalPosition().toPoint() - frameGeometry().topLeft();
        return true;
    }
    case QEvent::MouseMove:
        if (m_dragging)
            move(static_cast<QMouseEvent *>(event)->globalPosition().toPoint() - m_dragOffset);
        return true;
    case QEvent::MouseButtonRelease: m_dragging = false; return true;
    default: return QDialog::eventFilter(watched, event);
    }
}

void CalculatorForm::press(const QString &key)
{
    m_session->press(key);
    refresh();
    if (m_session->view().closed)
        accept();
}

void CalculatorForm::showHelp()
{
    CalculatorHelpForm help(m_session->helpCard(), this);
    help.exec();
}

void CalculatorForm::refresh()
{
    const CalculatorView view = m_session->view();
    setWindowTitle(view.title);
    findChild<QLabel *>(QStringLiteral("lblTitle"))->setText(view.title);
    m_display->setText(view.display + QLatin1Char(' '));
    m_operator->setText(view.pendingOperator);
    findChild<QPushButton *>(QStringLiteral("cmdKey10"))->setText(view.decimalSeparator);
    m_currency->setText(view.francs ? QStringLiteral("BEF") : QStringLiteral("EUR"));
    findChild<QPushButton *>(QStringLiteral("cmdInsert"))->setText(view.insertCaption);
    findChild<QPushButton *>(QStringLiteral("cmdHelp"))->setText(view.helpCaption);
    findChild<QPushButton *>(QStringLiteral("cmdEuro"))->setText(view.conversionCaption);
    for (int i = 0; i < 2; ++i) {
        const CalculatorKeyView &vat = view.vatKeys[size_t(i)];
        for (const QString &name :
            { QStringLiteral("cmdBTW%1").arg(i + 1), QStringLiteral("cmdKey%1").arg(18 + i) }) {
            auto *button = findChild<QPushButton *>(name);
            button->setText(vat.caption);
            button->setVisible(vat.visible);
            button->setEnabled(vat.enabled);
        }
    }
}

} // namespace qor
