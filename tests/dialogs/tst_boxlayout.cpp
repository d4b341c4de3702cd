#include "dialogs/boxlayout.h"

#include <QTest>

using namespace qor;

namespace {

// A font of 100 twips per character and lines of 200 twips.
BoxLayoutInput input(const QString &prompt, int screenWidth, int screenHeight)
{
    BoxLayoutInput in;
    in.prompt = prompt;
    in.screenWidth = screenWidth;
    in.screenHeight = screenHeight;
    in.textWidth = [](const QString &line) { return int(line.size()) * 100; };
    in.lineHeight = 200;
    in.buttonWidths = { 1215, 1215 };
    return in;
}

QString repeated(const QString &part, int count, const QString &separator)
{
    QStringList parts;
    for (int i = 0; i < count; ++i)
        parts << part;
    return parts.join(separator);
}

} // namespace

class TestBoxLayout : public QObject
{
    Q_OBJECT

private slots:
    void layout_data()
    {
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<int>("screenWidth");
        QTest::addColumn<int>("screenHeight");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QRect>("form");
        QTest::addColumn<bool>("clipped");
        const QString nine = repeated("abcd", 9, " ");
        // clang-format off
        QTest::newRow("short prompt, narrowest form") << "Hallo" << 15360 << 11520 << "Hallo" << QRect(5380, 5010, 4600, 1500) << false;
        QTest::newRow("empty prompt") << "" << 15360 << 11520 << "" << QRect(5380, 5010, 4600, 1500) << false;
        QTest::newRow("wrapped at blanks") << repeated("abcd", 20, " ") << 15360 << 11520 << nine + "\r" + nine + "\rabcd abcd" << QRect(4730, 4810, 5900, 1900) << false;
        QTest::newRow("paragraphs trimmed") << "  een  \r  twee" << 15360 << 11520 << "een\rtwee" << QRect(5380, 4910, 4600, 1700) << false;
        QTest::newRow("line feeds as breaks") << "een\r\ntwee\ndrie" << 15360 << 11520 << "een\rtwee\rdrie" << QRect(5380, 4810, 4600, 1900) << false;
        QTest::newRow("only carriage returns") << "\r\r" << 15360 << 11520 << "\r\r" << QRect(5380, 4810, 4600, 1900) << false;
        QTest::newRow("word wider than the label is broken") << QString(100, 'x') << 15360 << 11520 << QString(45, 'x') + "\r" + QString(45, 'x') + "\r" + QString(10, 'x') << QRect(4680, 4810, 6000, 1900) << false;
        QTest::newRow("widened until it fits") << repeated("abcd", 40, " ") << 15360 << 3000 << repeated("abcd", 18, " ") + "\r" + repeated("abcd", 18, " ") + "\r" + repeated("abcd", 4, " ") << QRect(2480, 550, 10400, 1900) << false;
        QTest::newRow("too high: cut at the screen") << repeated("abcd", 50, "\r") << 15360 << 3000 << "abcd\rabcd\rabcd" << QRect(5380, 500, 4600, 2000) << true;
        QTest::newRow("screen narrower than the form") << "Hallo" << 3000 << 11520 << "Hallo" << QRect(0, 5010, 3000, 1500) << false;
        QTest::newRow("screen too small for a line") << "Hallo" << 3000 << 1500 << "" << QRect(0, 500, 3000, 500) << true;
        QTest::newRow("no screen") << "Hallo" << -10 << 0 << "" << QRect(0, 0, 0, 0) << true;
        // clang-format on
    }
    void layout()
    {
        QFETCH(QString, prompt);
        QFETCH(int, screenWidth);
        QFETCH(int, screenHeight);
        const BoxLayout result = layoutBox(input(prompt, screenWidth, screenHeight));
        QTEST(result.caption, "caption");
        QTEST(result.form, "form");
        QTEST(result.clipped, "clipped");
        QVERIFY(result.form.width() <= std::max(0, screenWidth));
        QVERIFY(result.form.height() <= std::max(0, screenHeight));
    }

    void framePartsInTwips()
    {
        const BoxLayout result = layoutBox(input(QStringLiteral("Hallo"), 15360, 11520));
        QCOMPARE(result.frame, QRect(0, 0, 4360, 1500));
        QCOMPARE(result.icon, QRect(200, 200, 480, 480));
        QCOMPARE(result.label, QRect(1100, 200, 500, 200));
        // Right-aligned in the frame, 120 apart, 855 above the frame's bottom.
        QCOMPARE(result.buttons,
            (QList<QRect> { QRect(1810, 645, 1215, 375), QRect(3145, 645, 1215, 375) }));
    }

    void roomForAField()
    {
        BoxLayoutInput in = input(QStringLiteral("Naam ?"), 15360, 11520);
        in.extraHeight = 555;
        QCOMPARE(layoutBox(in).form.height(), 200 + 1300 + 555);
    }

    // Huge prompts are laid out at once and stay on the screen.
    void hugePrompts_data()
    {
        QTest::addColumn<QString>("prompt");
        QTest::newRow("no blanks") << QString(100000, 'x');
        QTest::newRow("only carriage returns") << QString(100000, '\r');
        QTest::newRow("control characters") << QString(100000, QChar(7));
    }
    void hugePrompts()
    {
        QFETCH(QString, prompt);
        const BoxLayout result = layoutBox(input(prompt, 15360, 11520));
        QVERIFY(result.clipped);
        QCOMPARE(result.form.height(), 10520);
        QVERIFY(result.form.width() <= 15360);
        QVERIFY(result.caption.count(QLatin1Char('\r')) < 60);
    }
};

QTEST_APPLESS_MAIN(TestBoxLayout)
#include "tst_boxlayout.moc"
