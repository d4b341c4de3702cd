#include "host/textbox.h"
#include "lib/clsqorgenlib.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QDateTime>
#include <QTest>

using namespace qor;

namespace {

QVariant date(int y, int m, int d)
{
    return QDateTime(QDate(y, m, d), QTime(0, 0), Qt::UTC);
}

} // namespace

class TestKeySpin : public QObject
{
    Q_OBJECT

private slots:
    void keySpin_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<int>("direction");
        QTest::addColumn<QVariant>("maxValue");
        QTest::addColumn<QVariant>("minValue");
        QTest::addColumn<bool>("changed");
        QTest::addColumn<QString>("expectedText");
        QTest::addColumn<int>("beeps");
        QTest::addColumn<QVariant>("maxAfter");
        QTest::addColumn<QVariant>("minAfter");
        QTest::addColumn<int>("error");
        const QVariant missing = missingVariant();
        // Today is 22 November 2026.
        // clang-format off
        QTest::newRow("number down") << "nl_BE" << "2" << true << 40 << missing << missing << true << "1" << 0 << missing << QVariant::fromValue<short>(1) << 0;
        QTest::newRow("number down stops at one") << "nl_BE" << "1" << true << 40 << missing << missing << false << "1" << 1 << missing << QVariant::fromValue<short>(1) << 0;
        QTest::newRow("a step is one whatever the decimals") << "nl_BE" << "2,75" << true << 38 << missing << missing << true << "3,75" << 0 << QVariant(1e12) << missing << 0;
        QTest::newRow("number up stops below the maximum") << "nl_BE" << "10" << true << 38 << QVariant(10) << missing << false << "10" << 1 << QVariant(10) << missing << 0;
        QTest::newRow("numeric text as maximum") << "nl_BE" << "9" << true << 38 << QVariant("10") << missing << true << "10" << 0 << QVariant("10") << missing << 0;
        QTest::newRow("minimum given with the maximum") << "nl_BE" << "5" << true << 40 << QVariant(10) << QVariant(5) << false << "5" << 1 << QVariant(10) << QVariant(5) << 0;
        QTest::newRow("given minimum replaced when the maximum is missing") << "nl_BE" << "5" << true << 40 << missing << QVariant(5) << true << "4" << 0 << missing << QVariant::fromValue<short>(1) << 0;
        QTest::newRow("maximum without minimum fails going down") << "nl_BE" << "5" << true << 40 << QVariant(10) << missing << false << "5" << 0 << QVariant(10) << missing << 13;
        QTest::newRow("null bound never moves") << "nl_BE" << "5" << true << 38 << nullVariant() << missing << false << "5" << 1 << nullVariant() << missing << 0;
        QTest::newRow("word bound is a type mismatch") << "nl_BE" << "5" << true << 38 << QVariant("abc") << missing << false << "5" << 0 << QVariant("abc") << missing << 13;
        QTest::newRow("a word counts as 0") << "nl_BE" << "abc" << true << 38 << missing << missing << true << "1" << 0 << QVariant(1e12) << missing << 0;
        QTest::newRow("blank field beeps first") << "nl_BE" << "   " << false << 38 << missing << missing << false << "   " << 1 << missing << missing << 0;
        QTest::newRow("disabled field does nothing") << "nl_BE" << "2" << false << 38 << missing << missing << false << "2" << 0 << missing << missing << 0;
        QTest::newRow("other direction does nothing") << "nl_BE" << "" << true << 37 << missing << missing << false << "" << 0 << missing << missing << 0;
        QTest::newRow("date up to today") << "nl_BE" << "21/11/2026" << true << 38 << missing << missing << true << "22/11/2026" << 0 << date(2026, 11, 22) << missing << 0;
        QTest::newRow("today is the default maximum") << "nl_BE" << "22/11/2026" << true << 38 << missing << missing << false << "22/11/2026" << 1 << date(2026, 11, 22) << missing << 0;
        QTest::newRow("a maximum that is no date becomes 2100") << "nl_BE" << "22/11/2026" << true << 38 << QVariant(5) << missing << true << "23/11/2026" << 0 << date(2100, 1, 1) << missing << 0;
        QTest::newRow("date text as maximum") << "nl_BE" << "30/12/2026" << true << 38 << QVariant("31/12/2026") << missing << true << "31/12/2026" << 0 << QVariant("31/12/2026") << missing << 0;
        QTest::newRow("date down") << "nl_BE" << "1/3/2024" << true << 40 << missing << missing << true << "29/02/2024" << 0 << missing << date(1800, 1, 1) << 0;
        QTest::newRow("date down stops at 1800") << "nl_BE" << "1/1/1800" << true << 40 << missing << missing << false << "1/1/1800" << 1 << missing << date(1800, 1, 1) << 0;
        QTest::newRow("date and time keep the time") << "nl_BE" << "20/11/2026 10:30:00" << true << 38 << missing << missing << true << "21/11/2026 10:30:00" << 0 << date(2026, 11, 22) << missing << 0;
        QTest::newRow("month and day order of the system") << "en_US" << "2/28/2025" << true << 38 << missing << missing << true << "3/1/2025" << 0 << date(2026, 11, 22) << missing << 0;
        // clang-format on
    }
    void keySpin()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(bool, enabled);
        QFETCH(int, direction);
        QFETCH(QVariant, maxValue);
        QFETCH(QVariant, minValue);
        auto machine = test::installRecordingPlatform(locale);
        machine->setNow(QDateTime(QDate(2026, 11, 22), QTime(15, 0)));
        clsqorGenLib lib;
        TextBox box;
        box.setText(text);
        box.setProperty("Enabled", enabled);
        bool changed = false;
        auto upDown = qorGenLib::SpinUpDown(direction);
        QTEST(test::errorNumber([&] { changed = lib.KeySpin(upDown, &box, maxValue, minValue); }),
            "error");
        QTEST(changed, "changed");
        QTEST(box.text(), "expectedText");
        QTEST(int(machine->shown().size()), "beeps");
        QTEST(maxValue, "maxAfter");
        QTEST(minValue, "minAfter");
        if (changed) {
            QCOMPARE(box.selStart(), 0);
            QCOMPARE(box.selLength(), int(box.text().size()));
            QCOMPARE(box.calls().size(), 1);
        }
    }
};

QTEST_GUILESS_MAIN(TestKeySpin)
#include "tst_keyspin.moc"
