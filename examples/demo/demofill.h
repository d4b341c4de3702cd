#pragma once

#include <QString>

class QWidget;

// Fills the invoice window as a person at the counter would, key by key, so
// that every key goes through the same handlers as typing: a customer, the
// invoice number, date and time, and three scanned articles.
class DemoFill
{
public:
    explicit DemoFill(QWidget *invoice);
    void fill();

private:
    // Types the text into the field, then Enter when asked.
    void type(const char *field, const QString &text, bool enter = true);
    void scan(const QString &code, const QString &quantity);
    void click(const char *button);

    QWidget *m_invoice;
};
