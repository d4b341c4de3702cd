#include "runtime/format.h"
#include "validate/displaymask.h"

#include <QTest>

using namespace qor;

class TestDisplayMask : public QObject
{
    Q_OBJECT

private slots:
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
