#include "runtime/format.h"
#include "validate/displaymask.h"

#include <QTest>

using namespace qor;

class TestDisplayMask : public QObject
{
    Q_OBJECT

private slots:
    void examples_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        // clang-format off
        QTest::newRow("bank account") << "&&&\\-&&&&&&&\\-&&" << "123456789002" << "123-4567890-02";
        QTest::newRow("short text leaves the first placeholders empty") << "&&&\\-&&&&&&&\\-&&" << "5" << "--5";
        QTest::newRow("long text puts the surplus in front") << "&&&&\\.&&&\\.&&&" << "040317070101" << "040317.070.101";
        QTest::newRow("empty text shows the literals") << "&&&&&&\\.&&&\\.&&" << "" << "..";
        // clang-format on
    }
    void examples()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QCOMPARE(DisplayMask(pattern).apply(text), shown);
    }

    // The masks are applied outside Format for speed; they must show every length alike.
    void showsWhatFormatShows_data()
    {
        QTest::addColumn<QString>("pattern");
        // clang-format off
        QTest::newRow("bank account") << "&&&\\-&&&&&&&\\-&&";
        QTest::newRow("enterprise number") << "&&&&\\.&&&\\.&&&";
        QTest::newRow("national number") << "&&&&&&\\.&&&\\.&&";
        // clang-format on
    }
    void showsWhatFormatShows()
    {
        QFETCH(QString, pattern);
        const DisplayMask mask(pattern);
        const QString digits = QStringLiteral("12345678901234567890");
        for (qsizetype length = 0; length <= digits.size(); ++length) {
            const QString text = digits.left(length);
            QCOMPARE(mask.apply(text), format(text, pattern, RegionalSettings()));
        }
    }
};

QTEST_APPLESS_MAIN(TestDisplayMask)
#include "tst_displaymask.moc"
