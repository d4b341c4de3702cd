#pragma once

#include "calculator/calculatorsession.h"

#include <QDialog>
#include <QPoint>

class QLabel;
class QPushButton;

namespace qor {

// The pop-up calculator: a borderless modal window over a calculator session.
// Every key goes to the session (digits, both decimal separators, + - * x / =,
// Enter, Insert, Esc, BackSpace, Delete, %; F1 the help card, F2 and F3 the
// VAT keys, F4 the euro/franc switch), and so does every button; the window
// closes when the session does. Dragging the display moves the window.
class CalculatorForm : public QDialog
{
    Q_OBJECT

public:
    explicit CalculatorForm(std::shared_ptr<CalculatorSession> session, QWidget *parent = nullptr);

    // The session's key for a key event; empty for a key it does not take.
    static QString keyName(const QKeyEvent *event);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPushButton *addButton(const QString &name, const QString &key);
    void press(const QString &key);
    void showHelp();
    void refresh();

    std::shared_ptr<CalculatorSession> m_session;
    QLabel *m_display = nullptr;
    QLabel *m_operator = nullptr;
    QLabel *m_currency = nullptr;
    QPoint m_dragOffset;
    bool m_dragging = false;
};

} // namespace qor
