#include "calculator/calculatorhelp.h"
#include "lib/frame/catalogue.h"

#include <QTest>

using namespace qor;

namespace {

QString catalogueText(qint32 id)
{
    return Catalogue::text(id).value_or(QStringLiteral(" [LL %1 ?] ").arg(id));
}

} // namespace

class TestCalculatorHelp : public QObject
{
    Q_OBJECT

private slots:
    // Dutch (and any offset below it) shows the card's own title, call line and
    // heading; other languages take them from the catalogue, which holds the
    // card in Dutch and French only. The key names and the VAT line are never
    // re-labelled: the same in every language.
    void cardTexts_data()
    {
        QTest::addColumn<qint32>("offset");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("callLine");
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("firstKey");
        QTest::addColumn<QString>("movingLine");
        const QString title = QStringLiteral("  Help bij Velantis Calculator");
        const QString callLine = QStringLiteral(
            "U kan de Calculator vanuit eender welk numeriek invulkvak aanroepen door      te "
            "drukken !");
        const QString heading
            = QStringLiteral("U kan de Calculator volledig bedienen via het toetsenbord :");
        // clang-format off
        QTest::newRow("Dutch: the card's own texts") << 0 << title << callLine << heading << catalogueText(1208) << catalogueText(1219);
        QTest::newRow("negative offset: Dutch as well") << -10000 << title << callLine << heading << catalogueText(1208) << catalogueText(1219);
        QTest::newRow("a language without the texts shows markers") << 20000 << " [LL 21205 ?] " << " [LL 21214 ?] " << " [LL 21207 ?] " << " [LL 21208 ?] " << " [LL 21219 ?] ";
        // clang-format on
    }
    void cardTexts()
    {
        QFETCH(qint32, offset);
        const CalculatorHelpCard card = calculatorHelpCard(offset);
        QTEST(card.title, "title");
        QTEST(card.callLine, "callLine");
        QTEST(card.heading, "heading");
        QTEST(card.keys.at(0).second, "firstKey");
        QTEST(card.movingLine, "movingLine");
        QCOMPARE(card.vatLine, catalogueText(1220));
    }
};

QTEST_GUILESS_MAIN(TestCalculatorHelp)
#include "tst_calculatorhelp.moc"
