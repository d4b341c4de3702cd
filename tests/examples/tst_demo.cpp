#include "demoapp.h"
#include "invoiceform.h"
#include "menuwindow.h"

#include <qorgenlib/platform/qt/qtplatform.h>

#include "../common/userinput.h"
#include "../einvoice/officialrules.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
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

// Answers the next message box with a button.
void answerMessageBox(const char *button)
{
    whenModalIsActive(QStringLiteral("frmMsgBoxE"), [button](QWidget *box) {
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

    void fieldsAreCheckedOnLeaving_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("shown");
        // clang-format off
        QTest::newRow("name in proper case") << "txtNaam" << "bakkerij janssens-de smet" << 0 << "Bakkerij Janssens-De Smet";
        QTest::newRow("VAT number") << "txtBtwNr" << "BE 0123 456 749" << 0 << "0123.456.749";
        QTest::newRow("national number") << "txtNatNr" << "85031512369" << 0 << "850315.123.69";
        QTest::newRow("date a day up") << "txtDatum" << "201126" << int(Qt::Key_Up) << "21/11/2026";
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

    void invoiceNumberGivesTheReference()
    {
        typeAndLeave("txtFactuurNr", QStringLiteral("20x260117"));
        QCOMPARE(field("txtFactuurNr")->text(), QStringLiteral("20260117"));
        QCOMPARE(child<QLabel>("lblOGM")->text(), QStringLiteral("+++002/0260/11718+++"));
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

    // The invoice as a Peppol e-invoice: its lines at 21 % and 6 %, the
    // structured communication, the shop's IBAN and BIC; valid by the
    // official rules.
    void eInvoiceOfTheCurrentInvoice()
    {
        QTest::mouseClick(child<QPushButton>("cmdEFactuur"), Qt::LeftButton);
        QFile written(folder.filePath(QStringLiteral("factuur-20260117.xml")));
        QVERIFY2(written.open(QIODevice::ReadOnly), qPrintable(caption("lblStatus")));
        const QByteArray ubl = written.readAll();
        for (const char *part : { "<cbc:Percent>21</cbc:Percent>", "<cbc:Percent>6</cbc:Percent>",
                 "+++002/0260/11718+++", "BE71096123456769", "GKCCBEBB", "BE0123456749" })
            QVERIFY2(ubl.contains(part), part);
        test::OfficialRules rules;
        QVERIFY2(rules.run({ written.fileName() }), qPrintable(rules.output()));
        QCOMPARE(rules.resultOf(written.fileName()), QStringLiteral("ok"));
    }

    void exportAndImportTheLines()
    {
        QTest::mouseClick(child<QPushButton>("cmdExport"), Qt::LeftButton);
        QFile exported(folder.filePath(QStringLiteral("factuur-20260117.txt")));
        QVERIFY(exported.open(QIODevice::ReadOnly));
        const QList<QByteArray> records = exported.readAll().split('\n');
        QCOMPARE(records.size(), 3); // two records, each ended by CR LF
        QVERIFY(records.at(0).startsWith("000001 5410000100017 Container 1,1 m3 huur"));
        whenModalIsActive(QStringLiteral("frmInputBoxE"), [](QWidget *box) {
            QTest::mouseClick(
                box->findChild<QPushButton *>(QStringLiteral("cmdOK")), Qt::LeftButton);
        });
        QTest::mouseClick(child<QPushButton>("cmdImport"), Qt::LeftButton);
        QCOMPARE(grid()->model()->rowCount(), 4);
        QCOMPARE(field("txtTotaalIncl")->text(), QStringLiteral("267,92 €"));
        QCOMPARE(caption("lblStatus"), QStringLiteral("Import: 2 OK, 0 NOK"));
    }

    void cleanupTestCase()
    {
        // The lines changed since they were last saved: closing asks, No leaves without saving.
        answerMessageBox("cmdNo");
        invoice->close();
        QVERIFY(!invoice->isVisible());
        demo.reset();
    }
};

QTEST_MAIN(TestDemo)
#include "tst_demo.moc"
