#include "input/textfilters.h"
#include "lib/clsqorgenlib.h"

#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

class TestTextFilters : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test::installRecordingPlatform(QStringLiteral("nl_BE")); }

    void filterNumeric_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("amount with separators") << "12.345,67" << "1234567";
        QTest::newRow("letters only") << "abc" << "";
        QTest::newRow("arabic-indic digits dropped") << QStringLiteral("\u0661\u0662\u0663") << "";
        QTest::newRow("control characters dropped") << QStringLiteral("1\t2\n3") + QChar(0) + "4" << "1234";
        QTest::newRow("superscript two dropped") << QStringLiteral("5\u00B2") << "5";
        // clang-format on
    }
    void filterNumeric()
    {
        QFETCH(QString, input);
        QTEST(qor::filterNumeric(input), "expected");
    }

    void filterAccenten_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("onlyThese");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("all accents") << QStringLiteral("Cr\u00E8me Br\u00FBl\u00E9e") << "" << "Creme Brulee";
        QTest::newRow("only e grave") << QStringLiteral("Cr\u00E8me Br\u00FBl\u00E9e") << QStringLiteral("\u00E8") << QStringLiteral("Creme Br\u00FBl\u00E9e");
        QTest::newRow("sharp s becomes two letters") << QStringLiteral("Stra\u00DFe") << "" << "Strasse";
        QTest::newRow("apostrophe becomes acute") << "O'Brien" << "" << QStringLiteral("O\u00B4Brien");
        QTest::newRow("double quote becomes acute") << "\"x\"" << "" << QStringLiteral("\u00B4x\u00B4");
        QTest::newRow("ae ligatures follow their range") << QStringLiteral("\u00C6\u00E6") << "" << "Aa";
        QTest::newRow("y diaeresis both cases") << QStringLiteral("\u0178\u00FF") << "" << "Yy";
        QTest::newRow("range edges kept") << QStringLiteral("\u00D7\u00F7\u00D0\u00F0\u00D8\u00F8") << "" << QStringLiteral("\u00D7\u00F7\u00D0\u00F0\u00D8\u00F8");
        QTest::newRow("non-latin kept") << QStringLiteral("\u0416\u4E2D") << "" << QStringLiteral("\u0416\u4E2D");
        // clang-format on
    }
    void filterAccenten()
    {
        QFETCH(QString, input);
        QFETCH(QString, onlyThese);
        QTEST(qor::filterAccenten(input, onlyThese), "expected");
    }

    void filterText_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("filterAccent");
        QTest::addColumn<QString>("doNotRemove");
        QTest::addColumn<QString>("expected");
        const QString cafe = QStringLiteral("Caf\u00E9 2000");
        // clang-format off
        QTest::newRow("unaccented") << cafe << true << "" << "Cafe";
        QTest::newRow("digits and blank kept") << cafe << true << "0123456789 " << "Cafe 2000";
        QTest::newRow("accents kept") << cafe << false << "" << QStringLiteral("Caf\u00E9");
        QTest::newRow("apostrophe removed when filtering") << "O'Neil" << true << "" << "ONeil";
        QTest::newRow("apostrophe to acute otherwise") << "O'Neil" << false << "" << QStringLiteral("O\u00B4Neil");
        QTest::newRow("double quote to acute when filtering") << "a\"b" << true << "" << QStringLiteral("a\u00B4b");
        QTest::newRow("double quote kept otherwise") << "a\"b" << false << "" << "a\"b";
        QTest::newRow("punctuation listed") << "a-b.c" << true << "-" << "a-bc";
        // clang-format on
    }
    void filterText()
    {
        QFETCH(QString, input);
        QFETCH(bool, filterAccent);
        QFETCH(QString, doNotRemove);
        QTEST(qor::filterText(input, filterAccent, doNotRemove), "expected");
    }

    void sCase_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("lowered");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("names") << "jean-pierre o'neil de smet" << "jean-pierre o'neil de smet" << "Jean-Pierre O'Neil De Smet";
        QTest::newRow("upper case first lowered") << "VAN DEN BERG" << "van den berg" << "Van Den Berg";
        QTest::newRow("point starts no word") << "st.jan" << "st.jan" << "St.jan";
        QTest::newRow("comma underscore quote acute") << "a,b_c\"d\u00B4e" << "a,b_c\"d\u00B4e" << "A,B_C\"D\u00B4E";
        QTest::newRow("accented capitals") << QStringLiteral("\u00C9LISE") << QStringLiteral("\u00E9lise") << QStringLiteral("\u00C9lise");
        QTest::newRow("sharp s keeps its length") << QStringLiteral("\u00DFen") << QStringLiteral("\u00DFen") << QStringLiteral("\u00DFen");
        QTest::newRow("empty") << "" << "" << "";
        // clang-format on
    }
    void sCase()
    {
        QFETCH(QString, input);
        QTEST(clsqorGenLib().SCase(input), "expected");
        QTEST(input, "lowered");
    }

    void hugeTextsStayLinear()
    {
        const QString huge(1 << 20, QLatin1Char('7'));
        QCOMPARE(qor::filterNumeric(huge).size(), huge.size());
        QCOMPARE(qor::filterAccenten(huge).size(), huge.size());
        QCOMPARE(qor::filterText(huge, true, QString()).size(), 0);
        QCOMPARE(qor::sCase(huge).size(), huge.size());
    }
};

QTEST_GUILESS_MAIN(TestTextFilters)
#include "tst_textfilters.moc"
