#include "lib/clsqorgenlib.h"

#include "tests/common/keysequence.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

class TestKeyPress : public QObject
{
    Q_OBJECT

private slots:
    void keyPress_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("allowed");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("results");
        QTest::addColumn<QString>("rewritten"); // KA after each call
        QTest::addColumn<QString>("allowedAfter");
        // clang-format off
        QTest::newRow("apostrophe with an empty set") << "nl_BE" << "" << "'" << "180" << "180" << "";
        QTest::newRow("double quote always becomes the accent") << "nl_BE" << "L" << "\"" << "0" << "180" << "L";
        QTest::newRow("backspace and enter always pass") << "nl_BE" << "C" << "{8}{13}" << "8 13" << "8 13" << "C";
        QTest::newRow("empty set lets everything through") << "nl_BE" << "" << "a%{300}{-1}" << "97 37 300 -1" << "97 37 300 -1" << "";
        QTest::newRow("digits class") << "nl_BE" << "c" << "19a" << "49 57 0" << "49 57 97" << "C";
        QTest::newRow("capital class letter is a literal too") << "nl_BE" << "c" << "Cc" << "67 0" << "67 99" << "C";
        QTest::newRow("upper-casing letters") << "nl_BE" << "h" << "a\u00E9Z" << "65 201 90" << "65 201 90" << "H";
        // Its capital lies below 192, so the upper-cased key is no longer a letter.
        QTest::newRow("y with diaeresis upper-cased out of the letters") << "nl_BE" << "H" << "\u00FF" << "0" << "159" << "H";
        QTest::newRow("micro sign has no capital in the code page") << "nl_BE" << "H" << "\u00B5" << "0" << "181" << "H";
        QTest::newRow("letters kept as typed") << "nl_BE" << "L" << "a\u00C0\u00FF1" << "97 192 255 0" << "97 192 255 49" << "L";
        QTest::newRow("codes beyond the code page are no letters") << "nl_BE" << "L" << "{300}{-1}{32767}{-32768}" << "0 0 0 0" << "300 -1 32767 -32768" << "L";
        QTest::newRow("date separator of a slash system") << "nl_BE" << "D" << "1/-" << "49 47 0" << "49 47 45" << "D";
        QTest::newRow("slash refused on a dash system") << "nl_NL" << "D" << "1/-" << "49 0 45" << "49 47 45" << "D";
        QTest::newRow("time separator") << "nl_BE" << "U" << "1:." << "49 58 0" << "49 58 46" << "U";
        QTest::newRow("literal characters are case-sensitive") << "nl_BE" << "x-" << "X-x" << "88 45 0" << "88 45 120" << "X-";
        QTest::newRow("sharp s keeps its length in the set") << "nl_BE" << "\u00DF" << "\u00DF" << "223" << "223" << "\u00DF";
        // clang-format on
    }
    void keyPress()
    {
        QFETCH(QString, locale);
        QFETCH(QString, allowed);
        QFETCH(QString, keys);
        auto machine = test::installRecordingPlatform(locale);
        clsqorGenLib lib;
        QList<int> results;
        QList<int> rewritten;
        QString set;
        int refused = 0;
        for (int code : test::keyCodes(keys)) {
            set = allowed;
            short ka = short(code);
            const QVariant result = lib.KeyPress(ka, set);
            QCOMPARE(result.typeId(), QMetaType::Short);
            results.append(result.toInt());
            rewritten.append(ka);
            refused += result.toInt() == 0 ? 1 : 0;
        }
        QTEST(test::codesText(results), "results");
        QTEST(test::codesText(rewritten), "rewritten");
        QTEST(set, "allowedAfter");
        QCOMPARE(machine->shown().size(), refused);
    }
};

QTEST_GUILESS_MAIN(TestKeyPress)
#include "tst_keypress.moc"
