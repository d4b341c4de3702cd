#pragma once

#include "invoiceline.h"

#include <QGroupBox>

class QStandardItemModel;
class QTableView;
class clsqorGenLib;

namespace qor {
class FrameAdapter;
class TableViewAdapter;
} // namespace qor

// The invoice lines in a data grid set up by the library's grid calls: the
// house style, the column widths, unit and payment-method codes shown in the
// user's language, and a click on a heading that sorts by that column with the
// direction shown in the heading.
class LineGrid : public QGroupBox
{
    Q_OBJECT

public:
    enum Column { Code, Description, Quantity, Unit, Price, Vat, Payment, Amount, ColumnCount };

    explicit LineGrid(clsqorGenLib &lib, QWidget *parent = nullptr);
    // Sets the grid up again in the current language.
    void retranslate();
    const QList<InvoiceLine> &lines() const { return m_lines; }
    void append(const InvoiceLine &line);
    void setLines(const QList<InvoiceLine> &lines);
    // " ASC", " DESC" or "" for a column, as the library keeps it.
    QString direction(int column) const;

signals:
    void linesChanged();

private:
    void setUp();
    void sortBy(int column);
    void sortLines();
    void showLines();
    QList<QVariant> cells(const InvoiceLine &line) const;

    clsqorGenLib &m_lib;
    QTableView *m_table;
    QStandardItemModel *m_model;
    qor::TableViewAdapter *m_grid = nullptr;
    qor::FrameAdapter *m_frame;
    QList<InvoiceLine> m_lines;
    int m_sortColumn = -1;
};
