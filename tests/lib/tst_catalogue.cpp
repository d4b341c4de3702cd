#include "lib/catalogue.h"
#include "lib/clsqorgenlib.h"
#include "lib/modgenlib.h"

#include <QTest>

using namespace qor;

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void init() { ModGenLib::reset(); }

    void hostLookUp_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("dutch yes") << 1028 << "Ja";
        QTest::newRow("french yes") << 11028 << "Oui";
        QTest::newRow("english yes") << 21028 << "Yes";
        QTest::newRow("leading and trailing blanks kept") << 1016 << " is ongeldig gecodeerd !";
        QTest::newRow("trailing blank kept") << 1005 << "Formaat : ";
        QTest::newRow("dictionary word") << 9534 << "Datum";
        QTest::newRow("no such text") << 1023 << " [LLGenLib 1023 ?] ";
        QTest::newRow("absent dictionary id") << 9018 << " [LLGenLib 9018 ?] ";
        QTest::newRow("no fallback to dutch") << 31054 << " [LLGenLib 31054 ?] ";
        QTest::newRow("negative id") << -5 << " [LLGenLib -5 ?] ";
        QTest::newRow("largest id") << 2147483647 << " [LLGenLib 2147483647 ?] ";
        // clang-format on
    }
    void hostLookUp()
    {
        QFETCH(int, id);
        QFETCH(QString, expected);
        QCOMPARE(Catalogue::llGenLib(id), expected);
        clsqorGenLib lib;
        QCOMPARE(lib.LLGenLib(id), expected);
    }

    void libraryLookUpFollowsModuleLanguage_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("baseId");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("dutch title") << 0 << 1031 << "Fout !";
        QTest::newRow("german message missing") << 30000 << 1054 << " [LL 31054 ?] ";
        QTest::newRow("german dictionary present") << 30000 << 9534 << "Datum";
        QTest::newRow("english cancel") << 20000 << 9500 << "Cancel";
        QTest::newRow("italian message missing") << 50000 << 1002 << " [LL 51002 ?] ";
        QTest::newRow("french lacks 1006") << 10000 << 1006 << " [LL 11006 ?] ";
        QTest::newRow("sum beyond the long range") << 50000 << 2147483647 << " [LL 2147533647 ?] ";
        // clang-format on
    }
    void libraryLookUpFollowsModuleLanguage()
    {
        QFETCH(int, offset);
        QFETCH(int, baseId);
        QFETCH(QString, expected);
        modGenLib().languageOffset = offset;
        QCOMPARE(loadCatalogueText(baseId), expected);
    }

    void countsPerLanguage_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("messages");
        QTest::addColumn<int>("dictionary");
        // clang-format off
        QTest::newRow("dutch") << 0 << 140 << 286;
        QTest::newRow("french") << 10000 << 136 << 285;
        QTest::newRow("english") << 20000 << 57 << 81;
        QTest::newRow("german") << 30000 << 0 << 61;
        QTest::newRow("spanish") << 40000 << 0 << 61;
        QTest::newRow("italian") << 50000 << 0 << 61;
        // clang-format on
    }
    void countsPerLanguage()
    {
        QFETCH(int, offset);
        QFETCH(int, messages);
        QFETCH(int, dictionary);
        QCOMPARE(Catalogue::count(offset + 1000, offset + 1239), messages);
        QCOMPARE(Catalogue::count(offset + 9500, offset + 9999), dictionary);
        QCOMPARE(Catalogue::count(offset, offset + 9999), messages + dictionary);
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
