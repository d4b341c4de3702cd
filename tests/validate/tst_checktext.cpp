#include "validate/checktext.h"

#include <QTest>

using namespace qor;

// Picking the digits out of a number as typed, eight characters at a time where
// the processor allows it: every length around the eight-character blocks and
// the stack buffer, and characters on either side of '0' and '9'.
class TestCheckText : public QObject
{
    Q_OBJECT

private slots:
    void keepsOnlyTheDigitsZeroToNine_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("digits");
        const QString mixed = QStringLiteral("1/2:3.4-5 6a7b8c9d0e");
        for (int length : { 0, 1, 7, 8, 9, 15, 16, 17, 20, 63, 64, 65, 80 }) {
            QString input;
            for (int i = 0; i < length; ++i)
                input += mixed.at(i % mixed.size());
            QString digits;
            for (QChar c : input) {
                if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
                    digits += c;
            }
            QTest::addRow("%d characters", length) << input << digits;
        }
        // clang-format off
        QTest::newRow("all digits") << "0123456789012345" << "0123456789012345";
        QTest::newRow("no digit") << "+++/---/+++" << "";
        QTest::newRow("full-width and Arabic-Indic digits") << u"\uFF11\u0662 3"_qs << "3";
        QTest::newRow("'0' plus 0x8000 and 0xFFFF") << u"\u8030\uFFFF4"_qs << "4";
        // clang-format on
    }
    void keepsOnlyTheDigitsZeroToNine()
    {
        QFETCH(QString, input);
        QFETCH(QString, digits);
        const QString before(input.constData(), input.size()); // a copy of its own
        QString text = input;
        keepDigits(text);
        QCOMPARE(text, digits);
        QCOMPARE(input, before); // shared until written
        QCOMPARE(text.constData()[text.size()], QChar(0));
    }

    // Whole numbers of up to fifteen digits, eight at a time and the rest.
    void digitsNumberOfEveryLength_data()
    {
        QTest::addColumn<QString>("digits");
        const QString pattern = QStringLiteral("908172635445362");
        for (int length = 0; length <= 15; ++length)
            QTest::addRow("%d digits", length) << pattern.left(length);
        QTest::newRow("fifteen nines") << QString(15, QLatin1Char('9'));
        QTest::newRow("eight zeros then a one") << QStringLiteral("000000001");
    }
    void digitsNumberOfEveryLength()
    {
        QFETCH(QString, digits);
        QCOMPARE(digitsNumber(digits), digits.isEmpty() ? 0 : digits.toLongLong());
        // Read from the middle of a longer text, as the checks read their parts.
        const QString within = QStringLiteral("7") + digits + QStringLiteral("7");
        QCOMPARE(digitsNumber(QStringView(within).mid(1, digits.size())),
            digits.isEmpty() ? 0 : digits.toLongLong());
    }

    // The display the checks write into never writes into a text it shares with another.
    void displayStorageIsNeverShared_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("written");
        // clang-format off
        QTest::newRow("longer into shorter") << "0123" << "0123.456.749";
        QTest::newRow("shorter into longer") << "0123.456.749" << "0123";
        QTest::newRow("same length") << "0000.000.000" << "0123.456.749";
        QTest::newRow("into a null text") << QString() << "0123";
        QTest::newRow("empty") << "0123" << "";
        // clang-format on
    }
    void displayStorageIsNeverShared()
    {
        QFETCH(QString, start);
        QFETCH(QString, written);
        const QString before(start.constData(), start.size());
        QString shared = start;
        assignText(shared, written);
        QCOMPARE(shared, written);
        QCOMPARE(start, before);
        QCOMPARE(shared.constData()[shared.size()], QChar(0));
    }
};

QTEST_APPLESS_MAIN(TestCheckText)
#include "tst_checktext.moc"
