#pragma once

#include "articlelist.h"
#include "invoiceline.h"

#include <QGroupBox>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class clsqorGenLib;

namespace qor {
class ComboBoxAdapter;
}

// The entry row of a new invoice line. The article code takes a scanned
// barcode; a known code fills in the rest. Quantity and price go through the
// library's keystroke handlers: "*" opens the calculator, "%" adds VAT to the
// price. "Toevoegen" hands the line to whoever listens.
class LineEntry : public QGroupBox
{
    Q_OBJECT

public:
    explicit LineEntry(clsqorGenLib &lib, QWidget *parent = nullptr);
    void retranslate();
    // The line as typed; a missing description or quantity is told the user.
    std::optional<InvoiceLine> line();

signals:
    void lineEntered(const InvoiceLine &line);

private:
    QLineEdit *addField(const char *objectName, int column);
    QComboBox *addCombo(const char *objectName, int column);
    void fillUnits();
    void fillPayments();
    void showArticle(const QString &code);
    void enter();
    void clear();

    clsqorGenLib &m_lib;
    ArticleList m_articles;
    QGridLayout *m_grid;
    QLineEdit *m_code;
    QLineEdit *m_description;
    QLineEdit *m_quantity;
    QComboBox *m_unit;
    QLineEdit *m_price;
    QComboBox *m_vat;
    qor::ComboBoxAdapter *m_vatAdapter;
    QComboBox *m_payment;
    QPushButton *m_add;
    QList<std::pair<QLabel *, int>> m_captions;
};
