#include "demoapp.h"
#include "invoiceform.h"
#include "menuwindow.h"

#include <qorgenlib/platform/qt/qtplatform.h>

#include "../common/userinput.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using qor::test::whenModalIsActive;

namespace {

// The Qt platform with the clock, the regional settings and a screen of
// 15 twips per pixel pinned; plain notices are counted, not shown.
class DemoTestPlatform : public qor::QtPlatform
{
public:
    QDateTime now() const override { return QDateTime(QDate(2026, 11, 23), QTime(9, 0)); }
    qor::ScreenInfo screen() const override { return qor::ScreenInfo {}; }
    int systemMessageBox(const qor::SystemMessageBoxRequest &) override
    {
        ++notices;
        return 1;
    }
    int notices = 0;
};

// Answers the next message box with a button and keeps its text.
void answerMessageBox(const char *button, QString *prompt = nullptr)
{
    whenModalIsActive(QStringLiteral("frmMsgBoxE"), [button, prompt](QWidget *box) {
        if (prompt)
            *prompt = box->findChild<QLabel *>(QStringLiteral("Label"))->text();
        QTest::mouseClick(box->findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
    });
}

} // namespace

// The invoice window from the first key to the exported file, in the order a
// person at the counter works.
class TestDemo : public QObject
{
    Q_OBJECT

    std::shared_ptr<DemoTestPlatform> machine;
    QTemporaryDir folder;
    std::unique_ptr<DemoApp> demo;
    InvoiceForm *invoice = nullptr;

    template <typename T> T *child(const char *name) const
    {
        T *found = invoice->findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("no %s in the invoice window", name);
        return found;
    }
    QLineEdit *field(const char *name) const { return child<QLineEdit>(name); }
    QString caption(const char *label) const { return child<QLabel>(label)->text(); }

    // Types into a field and leaves it with Tab, as a person does.
    void typeAndLeave(const char *name, const QString &typed)
    {
        activateInvoice();
        QLineEdit *edit = field(name);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, typed);
        QTest::keyClick(edit, Qt::Key_Tab);
    }
    QTableView *grid() const { return child<QTableView>("grdLijnen"); }
    // A cell as the grid draws it, translated where the column translates.
    QString cell(int row, int column) const
    {
        auto *delegate = static_cast<QStyledItemDelegate *>(grid()->itemDelegateForColumn(column));
        return delegate->displayText(grid()->model()->index(row, column).data(), QLocale::c());
    }
    QString heading(int column) const
    {
        return grid()->model()->headerData(column, Qt::Horizontal).toString();
    }
    QString settingsText() const
    {
        QString path;
        demo->library().GetIni(
            QStringLiteral("qorGenLib Demo"), QStringLiteral("Taal"), path, false);
        QFile ini(path.replace(QLatin1Char('\\'), QLatin1Char('/')));
        return ini.open(QIODevice::ReadOnly) ? QString::fromLatin1(ini.readAll()) : QString();
    }
    // The invoice window active again, as after a click on it.
    void activateInvoice()
    {
        QApplication::setActiveWindow(invoice);
        QVERIFY(QTest::qWaitForWindowActive(invoice));
    }

private slots:
    void initTestCase()
    {
        machine = std::make_shared<DemoTestPlatform>();
        machine->setRegionalSettings(qor::RegionalSettings::fromLocale(QStringLiteral("nl_BE")));
        machine->setSystemDirectory(folder.path());
        qor::Platform::install(machine);
        demo = std::make_unique<DemoApp>();
        demo->library().WriteIni(
            QStringLiteral("qorGenLib Demo"), QStringLiteral("ExportMap"), folder.path());
        QVERIFY(demo->start(QCoreApplication::applicationDirPath()));
        demo->show();
        invoice = demo->invoice();
        QApplication::setActiveWindow(invoice);
        QVERIFY(QTest::qWaitForWindowActive(invoice));
    }

    void menuIsDressedWithTheHolidays()
    {
        MenuWindow *menu = demo->menu();
        QCOMPARE(menu->windowState() & Qt::WindowMaximized, Qt::WindowMaximized);
        QCOMPARE(menu->findChild<QLabel *>(QStringLiteral("LabelVersie"))->text(),
            QStringLiteral("Versie 0.2 Rev. 0"));
        auto *calendar = menu->findChild<QCalendarWidget *>(QStringLiteral("MonthView"));
        QCOMPARE(calendar->selectedDate(), QDate(2026, 11, 23));
        // Armistice Day is marked, the day before is not.
        QVERIFY(calendar->dateTextFormat(QDate(2026, 11, 11)) != QTextCharFormat());
        QCOMPARE(calendar->dateTextFormat(QDate(2026, 11, 10)), QTextCharFormat());
    }

    void fieldsAreCheckedOnLeaving_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("shown");
        // clang-format off
        QTest::newRow("name in proper case") << "txtNaam" << "bakkerij janssens-de smet" << 0 << "Bakkerij Janssens-De Smet";
        QTest::newRow("VAT number") << "txtBtwNr" << "BE 0123 456 749" << 0 << "0123.456.749";
        QTest::newRow("IBAN in groups of four") << "txtBankNr" << "be53539007510153" << 0 << "BE53 5390 0751 0153";
        QTest::newRow("national number") << "txtNatNr" << "85031512369" << 0 << "850315.123.69";
        QTest::newRow("date a day up") << "txtDatum" << "201126" << int(Qt::Key_Up) << "21/11/2026";
        QTest::newRow("letters never reach the date") << "txtDatum" << "2x01y126" << 0 << "20/11/2026";
        QTest::newRow("time 8h30") << "txtUur" << "8h30" << 0 << "08:30";
        // clang-format on
    }
    void fieldsAreCheckedOnLeaving()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(int, key);
        QLineEdit *edit = this->field(field.toLatin1().constData());
        typeAndLeave(field.toLatin1().constData(), typed);
        if (key) {
            activateInvoice();
            edit->setFocus();
            QTest::keyClick(edit, Qt::Key(key));
        }
        QTEST(edit->text(), "shown");
    }

    void wrongBankAccountIsReported()
    {
        QString prompt;
        answerMessageBox("cmdOK", &prompt);
        typeAndLeave("txtBankNr", QStringLiteral("BE54 5390 0751 0153"));
        QTRY_VERIFY(!prompt.isEmpty());
        QVERIFY2(prompt.contains(QStringLiteral("BE00 0000 0000 0000")), qPrintable(prompt));
        // The IBAN stays in electronic form for the user to correct.
        QCOMPARE(field("txtBankNr")->text(), QStringLiteral("BE54539007510153"));
    }

    void invoiceNumberGivesTheReference()
    {
        typeAndLeave("txtFactuurNr", QStringLiteral("20x260117"));
        QCOMPARE(field("txtFactuurNr")->text(), QStringLiteral("20260117"));
        QCOMPARE(child<QLabel>("lblOGM")->text(), QStringLiteral("+++002/0260/11718+++"));
    }

    void vatOnPercent()
    {
        activateInvoice();
        field("txtOmschrijving")->setFocus();
        QTest::keyClicks(field("txtOmschrijving"), QStringLiteral("Herstelling"));
        field("txtAantal")->setFocus();
        QTest::keyClicks(field("txtAantal"), QStringLiteral("1"));
        QLineEdit *price = field("txtPrijs");
        price->setFocus();
        QTest::keyClicks(price, QStringLiteral("200"));
        // Two rates in force: "%" opens the calculator to choose the rate.
        QString withVat;
        whenModalIsActive(QStringLiteral("frmCalculator"), [&](QWidget *calculator) {
            QTest::mouseClick(
                calculator->findChild<QPushButton *>(QStringLiteral("cmdBTW1")), Qt::LeftButton);
            withVat = calculator->findChild<QLabel *>(QStringLiteral("lblDisplay"))->text();
            QTest::mouseClick(
                calculator->findChild<QPushButton *>(QStringLiteral("cmdInsert")), Qt::LeftButton);
        });
        QTest::keyClick(price, '%');
        QCOMPARE(withVat.trimmed(), QStringLiteral("242"));
        QCOMPARE(price->text(), QStringLiteral("242"));
        QTest::mouseClick(child<QPushButton>("cmdToevoegen"), Qt::LeftButton);
        QCOMPARE(grid()->model()->rowCount(), 1);
        QCOMPARE(field("txtTotaalIncl")->text(), QStringLiteral("242,00 €"));
    }

    void scannedArticlesFillTheLine_data()
    {
        QTest::addColumn<QString>("scanned");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("unit");
        // clang-format off
        QTest::newRow("container") << "%[5410000100017]" << "2" << "Container 1,1 m3 huur" << "container";
        QTest::newRow("garden waste by the kilo") << "%[5410000100031]" << "350" << "Groenafval" << "kg";
        // clang-format on
    }
    void scannedArticlesFillTheLine()
    {
        QFETCH(QString, scanned);
        activateInvoice();
        QLineEdit *code = field("txtArtikel");
        code->setFocus();
        QTest::keyClicks(code, scanned);
        QCOMPARE(code->text(), scanned.mid(2, scanned.size() - 3));
        QTEST(field("txtOmschrijving")->text(), "description");
        QTEST(child<QComboBox>("cboEenheid")->currentText(), "unit");
        field("txtAantal")->setFocus();
        field("txtAantal")->selectAll();
        QFETCH(QString, quantity);
        QTest::keyClicks(field("txtAantal"), quantity);
        const int before = grid()->model()->rowCount();
        QTest::mouseClick(child<QPushButton>("cmdToevoegen"), Qt::LeftButton);
        QCOMPARE(grid()->model()->rowCount(), before + 1);
        QCOMPARE(code->text(), QString());
    }

    void totalsInEuro()
    {
        // 242 at 21 %, 2 x 45,98 at 21 %, 350 x 0,12 at 6 %.
        QCOMPARE(field("txtTotaalIncl")->text(), QStringLiteral("375,96 €"));
        QCOMPARE(field("txtTotaalExcl")->text(), QStringLiteral("315,62 €"));
        QCOMPARE(field("txtTotaalBtw")->text(), QStringLiteral("60,34 €"));
    }

    void headingSortsTheGrid()
    {
        QHeaderView *header = grid()->horizontalHeader();
        auto clickHeading = [header](int column) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                QPoint(header->sectionViewportPosition(column) + 5, header->height() / 2));
        };
        clickHeading(7);
        QCOMPARE(cell(0, 1), QStringLiteral("Groenafval"));
        QCOMPARE(cell(2, 1), QStringLiteral("Herstelling"));
        const QVariant ascending
            = grid()->model()->headerData(7, Qt::Horizontal, Qt::DecorationRole);
        QVERIFY(!ascending.isNull());
        clickHeading(7);
        QCOMPARE(cell(0, 1), QStringLiteral("Herstelling"));
        QVERIFY(grid()->model()->headerData(7, Qt::Horizontal, Qt::DecorationRole) != ascending);
        clickHeading(1);
        QCOMPARE(cell(0, 1), QStringLiteral("Container 1,1 m3 huur"));
        QVERIFY(grid()->model()->headerData(7, Qt::Horizontal, Qt::DecorationRole).isNull());
        QCOMPARE(cell(0, 3), QStringLiteral("container"));
        QCOMPARE(cell(0, 6), QStringLiteral("Factuur"));
    }

    void languageSwitchRelabels()
    {
        activateInvoice();
        auto *language = child<QComboBox>("cboTaal");
        language->setFocus();
        QTest::keyClick(language, Qt::Key_Down);
        QCOMPARE(language->currentIndex(), 1);
        QCOMPARE(caption("lblNaam"), QStringLiteral("Nom :"));
        QCOMPARE(caption("lblBtwNr"), QStringLiteral("N° TVA :"));
        QCOMPARE(heading(2), QStringLiteral("Quantité"));
        QCOMPARE(cell(0, 6), QStringLiteral("Facture"));
        // The sort the user chose survives the new set-up.
        QCOMPARE(cell(0, 1), QStringLiteral("Container 1,1 m3 huur"));
        QVERIFY(settingsText().contains(QStringLiteral("Taal=10000")));
    }

    void saveAsksWhetherAmountsIncludeVat()
    {
        activateInvoice();
        QLineEdit *quantity = field("txtAantal");
        quantity->setFocus();
        QTest::keyClicks(quantity, QStringLiteral("3"));
        QString question;
        answerMessageBox("cmdYes", &question);
        QTest::mouseClick(child<QPushButton>("cmdOpslaan"), Qt::LeftButton);
        QVERIFY2(question.contains(QStringLiteral("TVA")), qPrintable(question));
        const QString saved = caption("lblStatus");
        QVERIFY(settingsText().contains(
            QStringLiteral("Factuur20260117=20/11/2026 +++002/0260/11718+++ BTW incl.")));
        QVERIFY(settingsText().contains(QStringLiteral("VolgendeFactuur=20260118")));
        // Nothing changed since: nothing to save, and no question.
        QTest::mouseClick(child<QPushButton>("cmdOpslaan"), Qt::LeftButton);
        QVERIFY(caption("lblStatus") != saved);
    }

    void exportAndImportTheLines()
    {
        QTest::mouseClick(child<QPushButton>("cmdExport"), Qt::LeftButton);
        QFile exported(folder.filePath(QStringLiteral("factuur-20260117.txt")));
        QVERIFY(exported.open(QIODevice::ReadOnly));
        const QList<QByteArray> records = exported.readAll().split('\n');
        QCOMPARE(records.size(), 4); // three records, each ended by CR LF
        QVERIFY(records.at(0).startsWith("000001 5410000100017 Container 1,1 m3 huur"));
        QVERIFY(records.at(0).endsWith('\r'));
        whenModalIsActive(QStringLiteral("frmInputBoxE"), [](QWidget *box) {
            QTest::mouseClick(
                box->findChild<QPushButton *>(QStringLiteral("cmdOK")), Qt::LeftButton);
        });
        QTest::mouseClick(child<QPushButton>("cmdImport"), Qt::LeftButton);
        QCOMPARE(grid()->model()->rowCount(), 6);
        QCOMPARE(field("txtTotaalIncl")->text(), QStringLiteral("751,92 €"));
        QCOMPARE(caption("lblStatus"), QStringLiteral("Import: 3 OK, 0 NOK"));
    }

    // The invoice as a Peppol e-invoice: its lines at 21 % and 6 %, the
    // structured communication, the shop's IBAN and BIC.
    void eInvoiceOfTheCurrentInvoice()
    {
        QTest::mouseClick(child<QPushButton>("cmdEFactuur"), Qt::LeftButton);
        QFile written(folder.filePath(QStringLiteral("factuur-20260117.xml")));
        QVERIFY2(written.open(QIODevice::ReadOnly), qPrintable(caption("lblStatus")));
        const QByteArray ubl = written.readAll();
        for (const char *part : { "<cbc:Percent>21</cbc:Percent>", "<cbc:Percent>6</cbc:Percent>",
                 "+++002/0260/11718+++", "BE71096123456769", "GKCCBEBB", "BE0123456749" })
            QVERIFY2(ubl.contains(part), part);
    }

    void importReportsBadLines()
    {
        // The second record's checksum no longer matches its text.
        QFile exported(folder.filePath(QStringLiteral("factuur-20260117.txt")));
        QVERIFY(exported.open(QIODevice::ReadOnly));
        QByteArray records = exported.readAll();
        exported.close();
        records.replace("Groenafval", "GroenafvaL");
        const QString bad = folder.filePath(QStringLiteral("bad.txt"));
        QFile file(bad);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(records);
        file.close();
        QString reported;
        whenModalIsActive(QStringLiteral("frmInputBoxE"), [&](QWidget *box) {
            auto *path = box->findChild<QLineEdit *>(QStringLiteral("Text"));
            path->selectAll();
            QTest::keyClicks(path, bad);
            answerMessageBox("cmdOK", &reported);
            QTest::mouseClick(
                box->findChild<QPushButton *>(QStringLiteral("cmdOK")), Qt::LeftButton);
        });
        QTest::mouseClick(child<QPushButton>("cmdImport"), Qt::LeftButton);
        QVERIFY2(reported.contains(QStringLiteral("000002")), qPrintable(reported));
        QCOMPARE(grid()->model()->rowCount(), 8);
        QCOMPARE(caption("lblStatus"), QStringLiteral("Import: 2 OK, 1 NOK"));
    }

    void cleanupTestCase()
    {
        // The lines changed since the save: closing asks, No leaves without saving.
        answerMessageBox("cmdNo");
        invoice->close();
        QVERIFY(!invoice->isVisible());
        demo.reset();
    }
};

QTEST_MAIN(TestDemo)
#include "tst_demo.moc"
