#include "runtime/codepage.h"
#include "runtime/runtimeerror.h"

#include "tests/common/errornumber.h"

#include <QTest>

using qor::test::errorNumber;

class TestCodePage : public QObject
{
    Q_OBJECT

private slots:
    void characterOfCode_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("unicode"); // -1: error 5
        // clang-format off
        QTest::newRow("ASCII letter") << 65 << 0x41;
        QTest::newRow("0x80 is the euro sign") << 0x80 << 0x20AC;
        QTest::newRow("0x9F Y with diaeresis") << 0x9F << 0x0178;
        QTest::newRow("0xA0 no-break space") << 0xA0 << 0x00A0;
        QTest::newRow("undefined 0x81 keeps its control character") << 0x81 << 0x0081;
        QTest::newRow("negative code") << -1 << -1;
        QTest::newRow("code above 255") << 256 << -1;
        // clang-format on
    }
    void characterOfCode()
    {
        QFETCH(int, code);
        QFETCH(int, unicode);
        if (unicode < 0) {
            QCOMPARE(errorNumber([&] { qor::chr(code); }), 5);
            return;
        }
        QCOMPARE(qor::chr(code).unicode(), unicode);
        QCOMPARE(qor::asc(qor::chr(code)), code);
    }

    void codeOfCharacter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code"); // -1: error 5

        // clang-format off
        QTest::newRow("empty text") << QString() << -1;
        QTest::newRow("only the first character counts") << QStringLiteral("Ab") << 65;
        QTest::newRow("U+0080 is not 0x80") << QString(QChar(0x0080)) << 63;
        QTest::newRow("a character beyond the basic plane") << QString::fromUcs4(U"\U0001F600") << 63;
        // clang-format on
    }
    void codeOfCharacter()
    {
        QFETCH(QString, text);
        QFETCH(int, code);
        int actual = -1;
        QCOMPARE(errorNumber([&] { actual = qor::asc(text); }), code < 0 ? 5 : 0);
        QCOMPARE(actual, code);
    }

    void everyCodeSurvivesARoundTrip()
    {
        QByteArray all;
        for (int code = 0; code < 256; ++code)
            all.append(char(code));
        QCOMPARE(qor::toCp1252(qor::fromCp1252(all)), all);
        // Each code's character: ASCII and Latin-1 outside 0x80-0x9F; inside it the
        // windows-1252 block, whose five undefined codes keep their control characters.
        QCOMPARE(qor::fromCp1252(all.first(0x80)), QString::fromLatin1(all.first(0x80)));
        QCOMPARE(qor::fromCp1252(all.sliced(0xA0)), QString::fromLatin1(all.sliced(0xA0)));
        QCOMPARE(qor::fromCp1252(all.sliced(0x80, 32)),
            QStringLiteral(u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"));
    }

    // Characters outside the code page become question marks, a surrogate pair one.
    void unknownCharactersBecomeQuestionMarks()
    {
        const QString text
            = QStringLiteral("x\u0100") + QString::fromUcs4(U"\U0001F600") + QStringLiteral("y");
        QCOMPARE(qor::toCp1252(text), QByteArray("x??y"));
    }
};

QTEST_APPLESS_MAIN(TestCodePage)
#include "tst_codepage.moc"
