#include "lib/clsqorgenlib.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/modgenlib.h"

#include <QTest>

using namespace qor;

namespace {

QList<int> range(int first, int last)
{
    QList<int> ids;
    for (int id = first; id <= last; ++id)
        ids.append(id);
    return ids;
}

// The base ids from first to last that the language at this offset holds.
QList<int> idsIn(int offset, int first, int last)
{
    QList<int> ids;
    for (int id = first; id <= last; ++id) {
        if (Catalogue::text(offset + id))
            ids.append(id);
    }
    return ids;
}

bool containsAll(const QList<int> &ids, const QList<int> &wanted)
{
    return std::all_of(wanted.begin(), wanted.end(), [&](int id) { return ids.contains(id); });
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void init() { ModGenLib::reset(); }

    // The host's LLGenLib takes a whole id whatever the language (offset -1 here); the
    // library's own look-up adds the language of the module.
    void lookUp_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("LLGenLib: dutch yes") << -1 << 1028 << "Ja";
        QTest::newRow("LLGenLib: french yes") << -1 << 11028 << "Oui";
        QTest::newRow("LLGenLib: leading and trailing blanks kept") << -1 << 1016 << " is ongeldig gecodeerd !";
        QTest::newRow("LLGenLib: diaeresis") << -1 << 9910 << QStringLiteral("Domicili\u00EBring");
        QTest::newRow("LLGenLib: no such text") << -1 << 1023 << " [LLGenLib 1023 ?] ";
        QTest::newRow("LLGenLib: no fallback to dutch") << -1 << 31054 << " [LLGenLib 31054 ?] ";
        QTest::newRow("LLGenLib: negative id") << -1 << -5 << " [LLGenLib -5 ?] ";
        QTest::newRow("LL: german message missing") << 30000 << 1054 << " [LL 31054 ?] ";
        QTest::newRow("LL: german dictionary present") << 30000 << 9534 << "Datum";
        QTest::newRow("LL: sum beyond the long range") << 50000 << 2147483647 << " [LL 2147533647 ?] ";
        // clang-format on
    }
    void lookUp()
    {
        QFETCH(int, offset);
        QFETCH(int, id);
        if (offset >= 0) {
            modGenLib().languageOffset = offset;
            QTEST(loadCatalogueText(id), "expected");
            return;
        }
        QTEST(Catalogue::llGenLib(id), "expected");
        clsqorGenLib lib;
        QTEST(lib.LLGenLib(id), "expected");
    }

    // Each translation holds Dutch ids: French all but the reserved blank messages
    // and one word; English the first sixty messages and the payment messages after
    // them, the button words and the words that German, Spanish and Italian hold alike.
    void translationsFollowTheDutchIds()
    {
        const auto messages = [](int offset) { return idsIn(offset, 1000, 1239); };
        const auto words = [](int offset) { return idsIn(offset, 9500, 9999); };
        QList<int> french = messages(0);
        for (int reserved : range(1006, 1009))
            french.removeAll(reserved);
        QCOMPARE(messages(10000), french);
        QCOMPARE(messages(20000), idsIn(0, 1000, 1065));
        QVERIFY(containsAll(words(0), words(10000)));
        QVERIFY(containsAll(words(10000), words(30000)));
        QCOMPARE(words(20000), range(9500, 9519) + words(30000));
        QCOMPARE(words(40000), words(30000));
        QCOMPARE(words(50000), words(30000));
    }

    void textsKeepTheirShape_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("messages");
        QTest::addColumn<int>("dictionary");
        QTest::addColumn<int>("einvoice"); // the e-invoice rule messages
        QTest::addColumn<QString>("listTitle"); // empty: no list blocks
        // clang-format off
        QTest::newRow("dutch") << 0 << 146 << 286 << 50 << "Lijst ";
        QTest::newRow("french") << 10000 << 142 << 285 << 50 << "Liste ";
        QTest::newRow("english") << 20000 << 63 << 81 << 50 << "";
        QTest::newRow("german") << 30000 << 0 << 61 << 0 << "";
        QTest::newRow("spanish") << 40000 << 0 << 61 << 0 << "";
        QTest::newRow("italian") << 50000 << 0 << 61 << 0 << "";
        // clang-format on
    }
    // How many texts each language holds, none outside its messages and its dictionary,
    // and their shape.
    void textsKeepTheirShape()
    {
        QFETCH(int, offset);
        QFETCH(int, messages);
        QFETCH(int, dictionary);
        QFETCH(int, einvoice);
        QFETCH(QString, listTitle);
        QCOMPARE(Catalogue::count(offset + 1000, offset + 1239), messages);
        QCOMPARE(Catalogue::count(offset + 9500, offset + 9999), dictionary);
        QCOMPARE(Catalogue::count(offset + 4000, offset + 4099), einvoice);
        QCOMPARE(Catalogue::count(offset, offset + 9999), messages + einvoice + dictionary);
        const auto text = [&](int id) { return Catalogue::text(offset + id).value_or(QString()); };
        // Reserved messages and the "nothing" rows of the code and payment lists are one blank.
        const QList<int> blanks = range(1006, 1009) + QList<int> { 9810, 9900 };
        for (int id : idsIn(offset, 0, 9999)) {
            const bool shaped = blanks.contains(id) ? text(id) == QLatin1String(" ")
                                                    : !text(id).trimmed().isEmpty();
            QVERIFY2(shaped, qPrintable(QString::number(id)));
        }
        // A label is its bare word followed by " :".
        for (int bare = 9518; bare <= 9624; bare += 2) {
            QCOMPARE(text(bare + 1).isEmpty(), text(bare).isEmpty());
            if (!text(bare).isEmpty())
                QCOMPARE(text(bare + 1), text(bare) + QStringLiteral(" :"));
        }
        // Calendar controls take 1000 as seven comma-separated titles starting on Sunday.
        if (!text(1000).isEmpty()) {
            const QStringList days = text(1000).split(QLatin1Char(','));
            QCOMPARE(days.size(), 7);
            QVERIFY(std::all_of(days.begin(), days.end(), [](auto &d) { return d.size() == 2; }));
        }
        // Hosts fill a list by loading its title's id + 1, + 2, ... up to the block's last id.
        const QList<std::pair<int, int>> blocks = { { 9800, 9807 }, { 9830, 9843 }, { 9850, 9862 },
            { 9870, 9882 }, { 9890, 9895 }, { 9898, 9919 } };
        for (const auto &[title, last] : listTitle.isEmpty() ? decltype(blocks)() : blocks) {
            QVERIFY(containsAll(idsIn(offset, title, last), range(title, last)));
            QVERIFY2(text(title).startsWith(listTitle), qPrintable(text(title)));
        }
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
