#include "host/combobox.h"
#include "lib/clsqorgenlib.h"

#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

class TestVatRates : public QObject
{
    Q_OBJECT

private slots:
    void loadComboBTW_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("rate1");
        QTest::addColumn<int>("rate2");
        QTest::addColumn<int>("setValue");
        QTest::addColumn<int>("setListIndex");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QVariantList>("itemData");
        QTest::addColumn<int>("selected");
        QTest::addColumn<int>("error");
        const QStringList three { "  0 %", "21 %", "6 %" };
        const QVariantList threeData { 0, 2100, 600 };
        // clang-format off
        QTest::newRow("no arguments select the zero rate") << "nl_BE" << 2100 << 600 << 0 << 0 << three << threeData << 0 << 0;
        QTest::newRow("first rate by value") << "nl_BE" << 2100 << 600 << 2100 << 0 << three << threeData << 2 << 0;
        QTest::newRow("second rate by value is not selected") << "nl_BE" << 2100 << 600 << 600 << 0 << three << threeData << 0 << 0;
        QTest::newRow("second rate by index") << "nl_BE" << 2100 << 600 << 0 << 2 << three << threeData << 2 << 0;
        QTest::newRow("one rate gives two entries") << "nl_BE" << 2100 << 0 << 2100 << 0 << QStringList { "  0 %", "21 %" } << QVariantList { 0, 2100 } << 1 << 0;
        QTest::newRow("fraction in the regional notation") << "nl_BE" << 1250 << 0 << 0 << 0 << QStringList { "  0 %", "12,5 %" } << QVariantList { 0, 1250 } << 0 << 0;
        QTest::newRow("point notation") << "en_US" << 1250 << 0 << 0 << 0 << QStringList { "  0 %", "12.5 %" } << QVariantList { 0, 1250 } << 0 << 0;
        QTest::newRow("rates not in use") << "nl_BE" << 0 << -600 << 0 << 0 << QStringList { "  0 %" } << QVariantList { 0 } << 0 << 0;
        QTest::newRow("unused first rate lets a zero value pick the second") << "nl_BE" << 0 << 600 << 0 << 0 << QStringList { "  0 %", "6 %" } << QVariantList { 0, 600 } << 1 << 0;
        QTest::newRow("index beyond the list") << "nl_BE" << 2100 << 0 << 0 << 5 << QStringList { "  0 %", "21 %" } << QVariantList { 0, 2100 } << 0 << 380;
        QTest::newRow("negative index is ignored") << "nl_BE" << 2100 << 0 << 0 << -3 << QStringList { "  0 %", "21 %" } << QVariantList { 0, 2100 } << 0 << 0;
        // clang-format on
    }
    void loadComboBTW()
    {
        QFETCH(QString, locale);
        QFETCH(int, rate1);
        QFETCH(int, rate2);
        QFETCH(int, setValue);
        QFETCH(int, setListIndex);
        test::installRecordingPlatform(locale);
        clsqorGenLib lib;
        lib.setProperty("BtwTar1", rate1);
        lib.setProperty("BtwTar2", rate2);
        ComboBox combo;
        combo.AddItem(QStringLiteral("old entry"));
        QTEST(
            test::errorNumber([&] { lib.LoadComboBTW(&combo, setValue, setListIndex); }), "error");
        QStringList entries;
        for (const QVariant &entry : combo.list())
            entries.append(entry.toString());
        QTEST(entries, "entries");
        QTEST(combo.itemData(), "itemData");
        QTEST(combo.listIndex(), "selected");
    }

    void controleerBtwClick_data()
    {
        QTest::addColumn<bool>("flag");
        QTest::addColumn<bool>("reset");
        QTest::addColumn<QVariantList>("answers");
        QTest::addColumn<bool>("result");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("flagAfter");
        // clang-format off
        QTest::newRow("nothing typed asks nothing") << false << false << QVariantList() << false << false << false;
        QTest::newRow("typed amounts confirmed") << true << false << QVariantList { 6 } << true << true << true;
        QTest::newRow("typed amounts denied") << true << false << QVariantList { 7 } << false << true << true;
        QTest::newRow("reset clears without asking") << true << true << QVariantList() << false << false << false;
        // clang-format on
    }
    void controleerBtwClick()
    {
        QFETCH(bool, flag);
        QFETCH(bool, reset);
        QFETCH(QVariantList, answers);
        auto machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        machine->setAnswers(answers);
        clsqorGenLib lib;
        modGenLib().calculatorFlag = flag;
        QTEST(lib.ControleerBtwClick(reset), "result");
        QTEST(modGenLib().calculatorFlag, "flagAfter");
        QFETCH(bool, asked);
        if (asked)
            QCOMPARE(test::onlyMessage(*machine),
                test::messageBox(
                    QStringLiteral("Gelieve te bevestigen dat de bedragen BTW INCLUSIEF zijn."), 36,
                    QStringLiteral("BTW Toevoegen")));
        else
            QVERIFY(machine->shown().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestVatRates)
#include "tst_vatrates.moc"
