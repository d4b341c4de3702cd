#include "grid/gridpicture.h"
#include "gridfixture.h"
#include "lib/clsqorgenlib.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QtTest>

using namespace qor;
using namespace qor::test;

namespace {

// SetDBGridCol calls written as "index:width", "index:width:hidden", ...
void defineColumns(clsqorGenLib &lib, Grid &grid, const QString &columnList)
{
    for (const QString &call : columnList.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QStringList parts = call.split(QLatin1Char(':'));
        const short index = short(parts.at(0).toInt());
        lib.SetDBGridCol(&grid, index, QStringLiteral("F%1").arg(index),
            QStringLiteral("C%1").arg(index), 0, parts.at(1).toInt(), parts.size() < 3);
    }
}

// A grid already set up in a 6045 x 3130 frame: 6000 wide.
void setUp(clsqorGenLib &lib, Grid &grid, Frame &frame)
{
    frame.assign(QStringLiteral("Width"), 6045);
    frame.assign(QStringLiteral("Height"), 3130);
    lib.SetDBGridSize(&grid, &frame);
}

qint32 pictureOf(QObject *column)
{
    const QVariant picture = getProperty(child(column, "HeadingStyle"), "ForegroundPicture");
    return picture.isValid() ? picture.value<GridPicture>().resourceId : 0;
}

} // namespace

class TestGridSetup : public QObject
{
    Q_OBJECT

private slots:
    void init() { installRecordingPlatform(); }

    void gridFitsTheFrameInWholeRows_data()
    {
        QTest::addColumn<double>("frameWidth");
        QTest::addColumn<double>("frameHeight");
        QTest::addColumn<double>("rowHeight");
        QTest::addColumn<double>("gridWidth");
        QTest::addColumn<double>("gridHeight");
        QTest::addColumn<double>("newFrameHeight");
        QTest::addColumn<int>("error");

        // clang-format off
        QTest::newRow("rows fit exactly") << 6045.0 << 2220.0 << 225.0 << 6000.0 << 2100.0 << 2220.0 << 0;
        QTest::newRow("one twip more than whole rows") << 6045.0 << 2221.0 << 225.0 << 6000.0 << 2100.0 << 2220.0 << 0;
        QTest::newRow("grid lower than the heading band") << 1000.0 << 300.0 << 225.0 << 955.0 << 300.0 << 420.0 << 0;
        QTest::newRow("row height rounded half to even") << 6045.0 << 2130.0 << 224.5 << 6000.0 << 1868.0 << 1988.0 << 0;
        QTest::newRow("fractional grid height rounded for Mod") << 6045.0 << 2130.4 << 225.0 << 6000.0 << 1875.4 << 1995.4 << 0;
        QTest::newRow("empty frame") << 0.0 << 0.0 << 225.0 << -45.0 << 75.0 << 195.0 << 0;
        QTest::newRow("row height below a half") << 6045.0 << 2130.0 << 0.4 << 6000.0 << 2000.0 << 2130.0 << int(RuntimeError::DivisionByZero);
        // clang-format on
    }

    void gridFitsTheFrameInWholeRows()
    {
        QFETCH(double, frameWidth);
        QFETCH(double, frameHeight);
        QFETCH(double, rowHeight);
        QFETCH(double, gridHeight);
        QFETCH(double, newFrameHeight);
        clsqorGenLib lib;
        Grid grid;
        Frame frame;
        frame.assign(QStringLiteral("Width"), frameWidth);
        frame.assign(QStringLiteral("Height"), frameHeight);
        grid.assign(QStringLiteral("RowHeight"), rowHeight);
        QTEST(errorNumber([&] { lib.SetDBGridSize(&grid, &frame); }), "error");
        QCOMPARE(grid.value("Left").toDouble(), 20.0);
        QCOMPARE(grid.value("Top").toDouble(), 100.0);
        QTEST(grid.value("Width").toDouble(), "gridWidth");
        QCOMPARE(grid.value("Height").toFloat(), float(gridHeight));
        QCOMPARE(frame.value("Height").toFloat(), float(newFrameHeight));
    }

    void sizeClearsTheGridAndSetsTheHouseStyle()
    {
        clsqorGenLib lib;
        Grid grid;
        Frame frame;
        frame.assign(QStringLiteral("BackColor"), 0x123456);
        grid.assign(QStringLiteral("AllowUpdate"), true);
        for (qint32 i = 0; i < 3; ++i)
            callOperation(child(&grid, "Columns"), "Add", { i });
        lib.SetDBGridSize(&grid, &frame, true);
        QCOMPARE(columnCount(&grid), 0);
        // The rest of the house style is a list of fixed values; the frame's colour is taken over.
        QCOMPARE(grid.value("AllowUpdate"), QVariant(false));
        QCOMPARE(grid.value("DeadAreaBackColor"), QVariant(0x123456));
    }

    void lastVisibleColumnTakesTheRest_data()
    {
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("widths");

        // clang-format off
        QTest::newRow("hidden column keeps the rest at its time") << "0:1000,1:700:h,2:800" << "1000,5760,4760";
        QTest::newRow("width 0 adds nothing") << "0:0,1:1500" << "0,5760";
        QTest::newRow("width 1 counts") << "0:1,1:1500" << "1,5759";
        QTest::newRow("gap adds the columns before") << "3:1000" << "0,0,0,5760";
        QTest::newRow("falling index keeps the later width") << "2:1000,1:500" << "0,5760,5760";
        QTest::newRow("same column twice") << "0:1000,0:2000,1:500" << "2000,3760";
        QTest::newRow("columns wider than the grid") << "0:4000,1:4000,2:100" << "4000,4000,-2240";
        // clang-format on
    }

    void lastVisibleColumnTakesTheRest()
    {
        QFETCH(QString, calls);
        clsqorGenLib lib;
        Grid grid;
        Frame frame;
        setUp(lib, grid, frame);
        defineColumns(lib, grid, calls);
        QTEST(columnWidths(&grid), "widths");
    }

    void widthsCarryOverToTheNextGridUntilSize()
    {
        clsqorGenLib lib;
        Grid first, second;
        Frame frame;
        setUp(lib, first, frame);
        defineColumns(lib, first, "0:1000,1:1500");
        second.assign(QStringLiteral("Width"), 6000);
        defineColumns(lib, second, "2:700,3:100");
        // Column 1 of the first grid was still the last: its width lands on the
        // second grid, and the first grid's 1000 still counts.
        QCOMPARE(columnWidths(&second), QStringLiteral("0,1500,700,2560"));
        Frame other;
        setUp(lib, second, other);
        defineColumns(lib, second, "0:700,1:100");
        QCOMPARE(columnWidths(&second), QStringLiteral("700,5060"));
    }

    void columnProperties_data()
    {
        QTest::addColumn<qint32>("alignment");
        QTest::addColumn<bool>("merge");
        QTest::addColumn<qint32>("headAlignment");

        QTest::newRow("left: heading left") << 0 << false << 0;
        QTest::newRow("right: heading centred, merged") << 1 << true << 2;
    }

    void columnProperties()
    {
        QFETCH(qint32, alignment);
        QFETCH(bool, merge);
        clsqorGenLib lib;
        Grid grid;
        Frame frame;
        setUp(lib, grid, frame);
        lib.SetDBGridCol(
            &grid, 0, "Naam", "Klant", alignment, 1200, false, "#,##0", merge, true, true);
        QObject *column = columnOf(&grid, 0);
        QCOMPARE(getProperty(column, "DataField").toString(), QStringLiteral("Naam"));
        QCOMPARE(getProperty(column, "Caption").toString(), QStringLiteral("Klant"));
        QCOMPARE(getProperty(column, "Alignment").toInt(), alignment);
        QCOMPARE(getProperty(column, "NumberFormat").toString(), QStringLiteral("#,##0"));
        QCOMPARE(getProperty(column, "Visible").toBool(), false);
        QCOMPARE(getProperty(column, "Merge").toBool(), merge);
        QCOMPARE(getProperty(column, "AllowFocus").toBool(), !merge);
        QCOMPARE(getProperty(column, "AllowSizing").toBool(), true);
        QCOMPARE(getProperty(column, "FetchStyle").toBool(), true);
        QTEST(getProperty(column, "HeadAlignment").toInt(), "headAlignment");
    }

    void columnIndexAtTheEdges_data()
    {
        QTest::addColumn<QVariant>("colIndex");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("columns");

        // clang-format off
        QTest::newRow("-1: no such column") << QVariant(-1) << int(RuntimeError::SubscriptOutOfRange) << 0;
        QTest::newRow("Integer maximum overflows the count") << QVariant(32767) << int(RuntimeError::Overflow) << 32768;
        // clang-format on
    }

    void columnIndexAtTheEdges()
    {
        QFETCH(QVariant, colIndex);
        clsqorGenLib lib;
        Grid grid;
        const QVariantList args { QVariant::fromValue<QObject *>(&grid), colIndex, "F", "C", 0,
            100 };
        QTEST(errorNumber([&] { lib.Invoke("SetDBGridCol", args); }), "error");
        QTEST(columnCount(&grid), "columns");
    }

    void iconShowsTheSortDirection_data()
    {
        QTest::addColumn<QStringList>("clicks"); // "column" or "column|force|orderColumn"
        QTest::addColumn<QStringList>("tags");
        QTest::addColumn<QList<qint32>>("pictures");
        QTest::addColumn<QString>("gridTag");

        // clang-format off
        QTest::newRow("first click ascending") << QStringList { "1" } << QStringList { "", " ASC", "" } << QList<qint32> { 0, 1000, 0 } << "old";
        QTest::newRow("second click descending") << QStringList { "1", "1" } << QStringList { "", " DESC", "" } << QList<qint32> { 0, 1001, 0 } << "old";
        QTest::newRow("another column clears the first") << QStringList { "1", "2" } << QStringList { "", "", " ASC" } << QList<qint32> { 0, 0, 1000 } << "old";
        QTest::newRow("forced descending writes the clause") << QStringList { "0|DESC|Naam" } << QStringList { " DESC", "", "" } << QList<qint32> { 1001, 0, 0 } << "Naam DESC";
        QTest::newRow("forced state is trimmed") << QStringList { "0|  DESC |Naam" } << QStringList { " DESC", "", "" } << QList<qint32> { 1001, 0, 0 } << "Naam DESC";
        QTest::newRow("forced state is case-sensitive") << QStringList { "0|desc|Naam" } << QStringList { " ASC", "", "" } << QList<qint32> { 1000, 0, 0 } << "Naam ASC";
        QTest::newRow("no such column clears all") << QStringList { "1", "7" } << QStringList { "", "", "" } << QList<qint32> { 0, 0, 0 } << "old";
        // clang-format on
    }

    void iconShowsTheSortDirection()
    {
        QFETCH(QStringList, clicks);
        QFETCH(QStringList, tags);
        QFETCH(QList<qint32>, pictures);
        clsqorGenLib lib;
        Grid grid;
        Frame frame;
        setUp(lib, grid, frame);
        defineColumns(lib, grid, "0:1000,1:1000,2:1000");
        grid.assign(QStringLiteral("Tag"), QStringLiteral("old"));
        for (const QString &click : clicks) {
            const QStringList parts = click.split(QLatin1Char('|'));
            lib.SetDBGridIcon(&grid, short(parts.at(0).toInt()), parts.value(1), parts.value(2));
        }
        for (qint32 i = 0; i < 3; ++i) {
            QCOMPARE(getProperty(columnOf(&grid, i), "Tag").toString(), tags.at(i));
            QCOMPARE(pictureOf(columnOf(&grid, i)), pictures.at(i));
        }
        QTEST(grid.value("Tag").toString(), "gridTag");
    }

    void wrongObjectsRaiseTheHostError()
    {
        clsqorGenLib lib;
        Frame frame;
        HostObject bag;
        QCOMPARE(errorNumber([&] { lib.SetDBGridSize(nullptr, &frame); }),
            int(RuntimeError::ObjectNotSet));
        QCOMPARE(errorNumber([&] { lib.SetDBGridSize(&bag, &frame); }),
            int(RuntimeError::NotSupportedByObject));
        QCOMPARE(errorNumber([&] { lib.SetDBGridIcon(&frame, 0); }),
            int(RuntimeError::NotSupportedByObject));
    }
};

QTEST_GUILESS_MAIN(TestGridSetup)
#include "tst_gridsetup.moc"
