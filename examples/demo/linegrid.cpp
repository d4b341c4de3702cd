#include "linegrid.h"

#include "catalogueword.h"

#include <qorgenlib/host/qt/frameadapter.h>
#include <qorgenlib/host/qt/tablecolumnadapter.h>
#include <qorgenlib/host/qt/tablecolumnsadapter.h>
#include <qorgenlib/host/qt/tableviewadapter.h>

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>

#include <algorithm>

namespace {

// Caption word, alignment (0 left, 1 right) and width in twips of each column;
// the last one takes what is left.
struct ColumnSetting
{
    const char *dataField;
    int word;
    qint32 alignment;
    qint32 width;
};
constexpr ColumnSetting settings[]
    = { { "ArtikelNr", 9562, 0, 1900 }, { "Omschrijving", 9564, 0, 3200 },
          { "Aantal", 9568, 1, 900 }, { "Eenheid", 9570, 0, 1200 }, { "Prijs", 9572, 1, 1200 },
          { "BTW", 9590, 1, 800 }, { "Betaalwijze", 9612, 0, 1700 }, { "Totaal", 9596, 1, 1200 } };

} // namespace

LineGrid::LineGrid(clsqorGenLib &lib, QWidget *parent)
    : QGroupBox(parent)
    , m_lib(lib)
    , m_table(new QTableView(this))
    , m_model(new QStandardItemModel(this))
    , m_frame(new qor::FrameAdapter(this, this))
{
    setObjectName(QStringLiteral("fraLijnen"));
    m_table->setObjectName(QStringLiteral("grdLijnen"));
    m_table->setModel(m_model);
    m_grid = new qor::TableViewAdapter(m_table, this);
    m_grid->setRowHeight(300);
    connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this, &LineGrid::sortBy);
    retranslate();
}

void LineGrid::retranslate()
{
    // The grid sits where a title would be: the frame has none.
    // The frame's design size; the library fits the grid and the frame to whole rows.
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    resize(920, 230);
    setUp();
    setFixedSize(size());
    showLines();
}

void LineGrid::setUp()
{
    m_lib.SetDBGridSize(m_grid, m_frame);
    for (short index = 0; index < ColumnCount; ++index) {
        const ColumnSetting &column = settings[index];
        m_lib.SetDBGridCol(m_grid, index, QLatin1String(column.dataField),
            catalogueWord(m_lib, column.word), column.alignment, column.width);
    }
    m_lib.SetDBGridTranslation(m_grid, qorGenLib::ttlEenheid, Unit);
    m_lib.SetDBGridTranslation(m_grid, qorGenLib::ttlBetalingLang, Payment);
    m_table->horizontalHeader()->setSectionsClickable(true);
    if (m_sortColumn >= 0) {
        const QString kept = direction(m_sortColumn).trimmed();
        m_lib.SetDBGridIcon(
            m_grid, short(m_sortColumn), kept, QLatin1String(settings[m_sortColumn].dataField));
    }
}

QString LineGrid::direction(int column) const
{
    auto *columns = qobject_cast<qor::TableColumnsAdapter *>(m_grid->columns());
    QObject *item = columns->Item(column);
    return item ? item->property("Tag").toString() : QString();
}

void LineGrid::append(const InvoiceLine &line)
{
    m_lines.append(line);
    sortLines();
    showLines();
    emit linesChanged();
}

void LineGrid::setLines(const QList<InvoiceLine> &lines)
{
    m_lines = lines;
    sortLines();
    showLines();
    emit linesChanged();
}

void LineGrid::sortBy(int column)
{
    m_lib.SetDBGridIcon(m_grid, short(column));
    m_sortColumn = column;
    sortLines();
    showLines();
}

void LineGrid::sortLines()
{
    if (m_sortColumn < 0)
        return;
    const bool descending = direction(m_sortColumn).trimmed() == QLatin1String("DESC");
    const int column = m_sortColumn;
    auto less = [this, column](const InvoiceLine &a, const InvoiceLine &b) {
        const QVariant left = cells(a).at(column);
        const QVariant right = cells(b).at(column);
        if (column == Description || column == Code)
            return QString::localeAwareCompare(left.toString(), right.toString()) < 0;
        return QVariant::compare(left, right) == QPartialOrdering::Less;
    };
    std::stable_sort(m_lines.begin(), m_lines.end(), less);
    if (descending)
        std::reverse(m_lines.begin(), m_lines.end());
}

QList<QVariant> LineGrid::cells(const InvoiceLine &line) const
{
    return { line.code, line.description, line.quantity, line.unit, line.price, line.vatRate,
        line.payment, line.amount() };
}

void LineGrid::showLines()
{
    m_model->setRowCount(int(m_lines.size()));
    for (int row = 0; row < m_lines.size(); ++row) {
        const InvoiceLine &line = m_lines.at(row);
        const QList<QVariant> shown { line.code, line.description,
            m_lib.SetEuro(float(line.quantity)), line.unit, m_lib.SetEuro(float(line.price)),
            QStringLiteral("%1 %").arg(line.vatRate / 100), line.payment,
            m_lib.SetEuro(float(line.amount())) };
        for (int column = 0; column < ColumnCount; ++column)
            m_model->setData(m_model->index(row, column), shown.at(column));
    }
}
