#include "grid/gridpicture.h"
#include "host/grid.h"
#include "host/qt/comboboxadapter.h"
#include "host/qt/formadapter.h"
#include "host/qt/frameadapter.h"
#include "host/qt/listwidgetadapter.h"
#include "host/qt/tableviewadapter.h"
#include "host/qt/translationdelegate.h"
#include "lib/clsqorgenlib.h"
#include "runtime/callbyname.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <QtTest>

using namespace qor;
using namespace qor::test;

namespace {

// An invoice list: a frame of 6045 x 3135 twips (403 x 209 pixels at 15 twips a
// pixel) around a table of invoices with a number, a customer, a payment code
// and a language.
struct InvoiceList
{
    QGroupBox frame;
    QTableView *table = new QTableView(&frame);
    QStandardItemModel *model = new QStandardItemModel(&frame);
    TableViewAdapter grid { table };
    FrameAdapter frameAdapter { &frame };

    InvoiceList()
    {
        frame.setTitle(QStringLiteral("Facturen"));
        frame.resize(403, 209);
        table->setModel(model);
        fill();
        grid.setRowHeight(225);
    }

    void fill()
    {
        const QList<QList<QVariant>> rows { { 1001, "Janssens", 1, 0 },
            { 1002, "Peeters", 4, 10000 }, { 1003, "Maes", 99, 20000 }, { 1004, "Claes", 10, 0 } };
        model->setRowCount(int(rows.size()));
        model->setColumnCount(4);
        for (int r = 0; r < rows.size(); ++r) {
            for (int c = 0; c < 4; ++c)
                model->setData(model->index(r, c), rows[r][c]);
        }
    }

    // The standard set-up of the list, as a host program makes it.
    void setUp(clsqorGenLib &lib)
    {
        lib.SetDBGridSize(&grid, &frameAdapter);
        lib.SetDBGridCol(&grid, 0, "FactNr", "Nummer", 1, 1000);
        lib.SetDBGridCol(&grid, 1, "Klant", "Klant", 0, 1500);
        lib.SetDBGridCol(&grid, 2, "Betaling", "Betaling", 2, 800);
        lib.SetDBGridCol(&grid, 3, "Taal", "Taal", 0, 700, false);
        fill(); // SetDBGridSize cleared the columns
    }

    QString shown(int row, int column) const
    {
        auto *delegate = qobject_cast<QStyledItemDelegate *>(table->itemDelegateForColumn(column));
        return delegate->displayText(model->index(row, column).data(), QLocale::c());
    }
};

QObject *column(TableViewAdapter &grid, qint32 index)
{
    return callOperation(grid.columns(), "Item", { index }).value<QObject *>();
}

} // namespace

class TestGridWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init() { installRecordingPlatform(QStringLiteral("nl_BE")); }

    void sizeFitsTheTableIntoItsFrameInPixels()
    {
        clsqorGenLib lib;
        InvoiceList list;
        lib.SetDBGridSize(&list.grid, &list.frameAdapter);
        QCOMPARE(list.model->columnCount(), 0);
        QCOMPARE(list.table->geometry(), QRect(1, 7, 400, 200));
        // 3005 twips is 200 pixels (3000); (3000 - 290) Mod 225 = 10 takes it to 2990,
        // 199 pixels; 10 more is 200 pixels again; the frame 3120 twips, 208 pixels.
        QCOMPARE(list.grid.height(), 3000.0f);
        QCOMPARE(list.frame.height(), 208);
        QCOMPARE(list.table->verticalHeader()->isVisible(), false);
        QCOMPARE(list.table->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(list.table->editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(list.table->palette().color(QPalette::Base), QColor(Qt::white));
        QCOMPARE(list.table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        list.grid.setRowHeight(0);
        QCOMPARE(list.grid.rowHeight(), 15.0f); // a row is never less than a pixel
        // A negative width shows as no width.
        lib.SetDBGridCol(&list.grid, 0, "A", "A", 0, -500);
        lib.SetDBGridCol(&list.grid, 1, "B", "B", 0, 100);
        QCOMPARE(list.table->horizontalHeader()->sectionSize(0), 0);
        QCOMPARE(list.table->horizontalHeader()->sectionSize(1), (6000 - 240) / 15);
    }

    void columnsTakeTheirWidthsReadBackInTwips()
    {
        clsqorGenLib lib;
        InvoiceList list;
        list.setUp(lib);
        QHeaderView *header = list.table->horizontalHeader();
        // 1000 twips is 67 pixels, read back as 1005: the last visible column gets the rest.
        QCOMPARE(header->sectionSize(0), 67);
        QCOMPARE(header->sectionSize(1), 100);
        QCOMPARE(header->sectionSize(2), (6000 - 1005 - 1500 - 240) / 15);
        QCOMPARE(getProperty(column(list.grid, 0), "Width").toFloat(), 1005.0f);
        QVERIFY(list.table->isColumnHidden(3));
        QCOMPARE(list.model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Klant"));
        QCOMPARE(list.model->headerData(0, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
            int(Qt::AlignHCenter | Qt::AlignVCenter));
        QCOMPARE(header->sectionResizeMode(0), QHeaderView::Fixed);
        QCOMPARE(
            errorNumber([&] { column(list.grid, 4); }), int(RuntimeError::SubscriptOutOfRange));
    }

    // The translation tables themselves are checked one layer down; here the
    // delegate shows the items' texts (a number as its text) in the language of the object.
    void translatedColumnsShowTheirTexts()
    {
        const QStringList payments { "Comptant", "Bancontact", "9999", "Domiciliation" };
        clsqorGenLib lib;
        lib.setProperty("Offset", 10000);
        InvoiceList list;
        list.setUp(lib);
        lib.SetDBGridTranslation(&list.grid, qorGenLib::ttlBetalingLang, 2);
        for (int row = 0; row < 4; ++row) {
            QCOMPARE(list.shown(row, 2), payments.at(row));
            QCOMPARE(list.shown(row, 1), list.model->index(row, 1).data().toString());
        }
    }

    void sortIconInTheHeading()
    {
        clsqorGenLib lib;
        InvoiceList list;
        list.setUp(lib);
        auto picture = [&](int section) {
            return list.model->headerData(section, Qt::Horizontal, Qt::DecorationRole)
                .value<QPixmap>();
        };
        lib.SetDBGridIcon(&list.grid, 1);
        QCOMPARE(picture(1).size(), QSize(10, 16));
        QVERIFY(picture(1).hasAlphaChannel() || !picture(1).mask().isNull());
        const QImage ascending = picture(1).toImage();
        lib.SetDBGridIcon(&list.grid, 1);
        QVERIFY(picture(1).toImage() != ascending);
        lib.SetDBGridIcon(&list.grid, 0, "ASC", "FactNr");
        QVERIFY(picture(1).isNull());
        QCOMPARE(picture(0).toImage(), ascending);
    }

    void screenshotOfASetUpGrid()
    {
        clsqorGenLib lib;
        InvoiceList list;
        list.setUp(lib);
        lib.SetDBGridTranslation(&list.grid, qorGenLib::ttlBetalingLang, 2);
        lib.SetDBGridIcon(&list.grid, 1, "DESC", "Klant");
        list.frame.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list.frame));
        const QImage shot = list.frame.grab().toImage();
        QCOMPARE(shot.size(), list.frame.size() * list.frame.devicePixelRatio());
        const QString path
            = QCoreApplication::applicationDirPath() + QStringLiteral("/gridwidgets.png");
        QVERIFY(shot.save(path));
        QVERIFY(QFileInfo(path).size() > 0);
    }

    // The selection rules are checked on the model lists; here both real lists take
    // the item found, and show no selection when there is none.
    void listsSelectByNumberOrText()
    {
        clsqorGenLib lib;
        QComboBox combo;
        QListWidget listWidget;
        ComboBoxAdapter comboAdapter(&combo);
        ListWidgetAdapter listAdapter(&listWidget);
        for (QObject *list : std::initializer_list<QObject *> { &comboAdapter, &listAdapter }) {
            for (const char *city : { "Brugge", "Gent", "Antwerpen" })
                callOperation(list, "AddItem", { city });
            qor::setProperty(list, "ItemData", QVariantList { 10, 20, 30 }, RegionalSettings());
            QVERIFY(lib.SetListIndex(list, 30));
        }
        QCOMPARE(combo.currentIndex(), 2);
        QCOMPARE(listWidget.currentRow(), 2);
        QCOMPARE(comboAdapter.text(), QStringLiteral("Antwerpen"));
        QVERIFY(!lib.SetListIndex(&comboAdapter, 99));
        QVERIFY(!lib.SetListIndex(&listAdapter, 99));
        QCOMPARE(combo.currentIndex(), -1);
        QCOMPARE(listWidget.currentRow(), -1);
        QCOMPARE(comboAdapter.text(), QString());
        QCOMPARE(errorNumber([&] { comboAdapter.setListIndex(3); }),
            int(RuntimeError::InvalidPropertyValue));
    }

    // The change rules are checked on the model form; here the form reads every kind
    // of real control into its tag, and a key typed is a change.
    void formChangesAreTracked()
    {
        clsqorGenLib lib;
        QWidget form;
        auto *layout = new QVBoxLayout(&form);
        auto *name = new QLineEdit(QStringLiteral("Jans"), &form);
        auto *city = new QComboBox(&form);
        city->setEditable(true);
        city->addItems({ QStringLiteral("Brugge"), QStringLiteral("Gent") });
        auto *paid = new QCheckBox(QStringLiteral("Betaald"), &form);
        paid->setChecked(true);
        auto *count = new QSpinBox(&form);
        count->setValue(3);
        auto *date = new QDateEdit(QDate(2004, 5, 20), &form);
        for (QWidget *w : std::initializer_list<QWidget *> { name, city, paid, count, date })
            layout->addWidget(w);
        FormAdapter adapter(&form);
        QCOMPARE(lib.DataChange(&adapter, true), false);
        const QString split(2, QChar(173));
        // The edit and combo box give their text, the check box its value, the spin box
        // and the date both.
        const QStringList read { "Jans", "Brugge", "1", "3", "3", "20 mei 2004", "20/05/2004", "" };
        QCOMPARE(form.property("qorTag").toString(), read.join(split));
        name->setFocus();
        name->end(false);
        QTest::keyClicks(name, QStringLiteral("s"));
        QCOMPARE(lib.DataChange(&adapter), true);
        QCOMPARE(lib.property("DataCH").toBool(), true);
    }
};

QTEST_MAIN(TestGridWidgets)
#include "tst_gridwidgets.moc"
