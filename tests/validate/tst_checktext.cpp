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
        QTest::newRow("neighbours of 0 and 9") << "/0:9/:" << "09";
        QTest::newRow("full-width and Arabic-Indic digits") << u"\uFF11\u0662 3"_qs << "3";
        QTest::newRow("'0' plus 0x8000 and 0xFFFF") << u"\u8030\uFFFF4"_qs << "4";
        QTest::newRow("digit last of nine") << "abcdefgh7" << "7";
        QTest::newRow("digit first of nine") << "7abcdefgh" << "7";
        // clang-format on
    }
    void keepsOnlyTheDigitsZeroToNine()
    {
        QFETCH(QString, input);
        QFETCH(QString, digits);
        QString text = input;
        keepDigits(text);
        QCOMPARE(text, digits);
    }

    void allDigitsStayShared()
    {
        const QString original = QStringLiteral("012345678901");
        QString text = original;
        keepDigits(text);
        QCOMPARE(text.constData(), original.constData());
    }
};

QTEST_APPLESS_MAIN(TestCheckText)
#include "tst_checktext.moc"
