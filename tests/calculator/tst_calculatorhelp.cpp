#include "calculator/calculatorhelp.h"
#include "lib/frame/catalogue.h"

#include <QTest>

using namespace qor;

class TestCalculatorHelp : public QObject
{
    Q_OBJECT

private slots:
    void ownDutchTexts_data()
    {
        QTest::addColumn<qint32>("offset");
        QTest::newRow("Dutch") << 0;
        QTest::newRow("negative offset") << -10000;
    }
    void ownDutchTexts()
    {
        QFETCH(qint32, offset);
        const CalculatorHelpCard card = calculatorHelpCard(offset);
        QCOMPARE(card.title, QStringLiteral("  Help bij Velantis Calculator"));
        QCOMPARE(card.callLine,
            QStringLiteral("U kan de Calculator vanuit eender welk numeriek invulkvak aanroepen "
                           "door      te drukken !"));
        QCOMPARE(card.heading,
            QStringLiteral("U kan de Calculator volledig bedienen via het toetsenbord :"));
        QCOMPARE(card.keys.at(0).second, *Catalogue::text(1208));
        QCOMPARE(card.movingLine, *Catalogue::text(1219));
        QCOMPARE(card.vatLine, *Catalogue::text(1220));
    }

    // Other languages take the card from the catalogue, but the VAT line is
    // never re-labelled: the Dutch line in every language.
    void frenchTextsFromTheCatalogue()
    {
        const qint32 offset = 10000;
        const CalculatorHelpCard card = calculatorHelpCard(offset);
        QCOMPARE(card.title, *Catalogue::text(1205 + offset));
        QCOMPARE(card.callLine, *Catalogue::text(1214 + offset));
        QCOMPARE(card.heading, *Catalogue::text(1207 + offset));
        QCOMPARE(card.keys.size(), 8);
        QCOMPARE(card.keys.at(7).second, *Catalogue::text(1218 + offset));
        QCOMPARE(card.vatLine, *Catalogue::text(1220));
        QVERIFY(card.vatLine != *Catalogue::text(1220 + offset));
    }

    void keyNamesAreFixed()
    {
        const QStringList expected { "[0] [1] ... [9]", "[,] [.]", "[+] [-] [x] [/]", "[=] [Enter]",
            "", "[Insert]", "[Esc]", "[BackSpace]" };
        for (qint32 offset : { 0, 10000, 30000 }) {
            QStringList names;
            for (const auto &key : calculatorHelpCard(offset).keys)
                names.append(key.first);
            QCOMPARE(names, expected);
        }
    }

    // The catalogue holds the card's texts in Dutch and French only.
    void aLanguageWithoutTheTextsShowsMarkers()
    {
        const CalculatorHelpCard card = calculatorHelpCard(20000);
        QCOMPARE(card.title, QStringLiteral(" [LL 21205 ?] "));
        QCOMPARE(card.keys.at(0).second, QStringLiteral(" [LL 21208 ?] "));
        QCOMPARE(card.vatLine, *Catalogue::text(1220));
        QCOMPARE(card.lines().size(), 12);
    }
};

QTEST_GUILESS_MAIN(TestCalculatorHelp)
#include "tst_calculatorhelp.moc"
