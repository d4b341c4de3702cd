#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class clsqorGenLib;
class CustomerBlock;
class DemoSettings;
class InvoiceHeader;
class LineEntry;
class LineGrid;
class TotalsBlock;

namespace qor {
class FormAdapter;
}

// The invoice-entry window: customer, invoice header, the entry row and the
// grid of lines, the totals, the language of every caption, and Save, Export
// and Import. Every check, key, text and dialog is the library's.
class InvoiceForm : public QWidget
{
    Q_OBJECT

public:
    InvoiceForm(clsqorGenLib &lib, DemoSettings &settings, QWidget *parent = nullptr);

    // Switches every caption to a language: 0, 10000 ... 50000.
    void setLanguage(int offset);
    void save();
    void exportLines();
    void importLines();
    void writeEInvoice();
    // The file Export writes for the current invoice.
    QString exportPath() const;

signals:
    void languageChanged(int offset);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createButtons();
    void layOut();
    void retranslate();
    void showTotals();
    void showStatus(const QString &text);
    void startInvoice();

    clsqorGenLib &m_lib;
    DemoSettings &m_settings;
    CustomerBlock *m_customer;
    InvoiceHeader *m_header;
    LineEntry *m_entry;
    LineGrid *m_grid;
    TotalsBlock *m_totals;
    QComboBox *m_language;
    QLabel *m_languageCaption;
    QPushButton *m_save;
    QPushButton *m_export;
    QPushButton *m_import;
    QPushButton *m_einvoice;
    QLabel *m_status;
    qor::FormAdapter *m_form;
};
