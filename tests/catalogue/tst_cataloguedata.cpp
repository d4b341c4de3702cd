// Checks the catalogue data files themselves: which ids each language holds and a sample of
// exact texts. The files are read from the source tree, independently of the loader.

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

namespace {

using Catalogue = QMap<int, QString>;

const QStringList languages = { "nl", "fr", "en", "de", "es", "it" };

QString cataloguePath(const QString &language)
{
    return QStringLiteral(QOR_CATALOGUE_DIR "/%1.json").arg(language);
}

QList<int> range(int first, int last)
{
    QList<int> ids;
    for (int id = first; id <= last; ++id)
        ids.append(id);
    return ids;
}

// Present in every language: date, contact and invoice labels, totals, VAT and payment methods.
QList<int> commonIds()
{
    QList<int> ids = { 9534, 9535 };
    ids += range(9548, 9561);
    ids += { 9566, 9567 };
    ids += range(9574, 9577);
    ids += range(9580, 9583);
    ids += range(9588, 9599);
    ids += { 9604, 9605 };
    ids += range(9900, 9919);
    ids += 9999;
    return ids;
}

QList<int> idsIn(const Catalogue &catalogue, int first, int last)
{
    QList<int> ids;
    for (auto it = catalogue.lowerBound(first); it != catalogue.end() && it.key() <= last; ++it)
        ids.append(it.key());
    return ids;
}

QList<int> without(QList<int> ids, const QList<int> &removed)
{
    for (int id : removed)
        ids.removeAll(id);
    return ids;
}

bool containsAll(const Catalogue &catalogue, const QList<int> &ids)
{
    return std::all_of(ids.begin(), ids.end(), [&](int id) { return catalogue.contains(id); });
}

} // namespace

class TestCatalogueData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void fileIsOneSortedEntryPerLine_data();
    void fileIsOneSortedEntryPerLine();

    void countsPerRange_data();
    void countsPerRange();
    void commonEntriesInEveryLanguage_data();
    void commonEntriesInEveryLanguage();
    void smallLanguagesHoldExactlyTheirBlocks_data();
    void smallLanguagesHoldExactlyTheirBlocks();
    void translationsHaveADutchSource_data();
    void translationsHaveADutchSource();
    void houseNumberWordIsAbsent_data();
    void houseNumberWordIsAbsent();

    void frenchMessagesAreDutchWithoutTheBlanks();
    void englishMessagesAreTheDutchFirstSixty();
    void frenchDictionaryLacksOneDutchEntry();

    void exactTexts_data();
    void exactTexts();
    void noEmptyTextsAndBlanksOnlyWhereIntended_data();
    void noEmptyTextsAndBlanksOnlyWhereIntended();
    void labelIsBareWordWithColon_data();
    void labelIsBareWordWithColon();
    void weekdayInitialsKeepTheirShape_data();
    void weekdayInitialsKeepTheirShape();
    void listBlocksAreTitledAndComplete_data();
    void listBlocksAreTitledAndComplete();

private:
    static void addLanguageRows();
    QHash<QString, Catalogue> m_catalogues;
};

void TestCatalogueData::initTestCase()
{
    for (const QString &language : languages) {
        QFile file(cataloguePath(language));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
        QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
        QVERIFY(document.isObject());
        Catalogue catalogue;
        const QJsonObject object = document.object();
        for (auto it = object.begin(); it != object.end(); ++it) {
            bool isNumber = false;
            const int id = it.key().toInt(&isNumber);
            QVERIFY2(isNumber && QString::number(id) == it.key(), qPrintable(it.key()));
            QVERIFY2(it.value().isString(), qPrintable(it.key()));
            catalogue.insert(id, it.value().toString());
        }
        m_catalogues.insert(language, catalogue);
    }
}

void TestCatalogueData::addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages)
        // clang-format off
        QTest::newRow(qPrintable(language)) << language;
    // clang-format on
}

void TestCatalogueData::fileIsOneSortedEntryPerLine_data()
{
    addLanguageRows();
}

void TestCatalogueData::fileIsOneSortedEntryPerLine()
{
    QFETCH(QString, language);
    QFile file(cataloguePath(language));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    static const QRegularExpression entry(QStringLiteral("^\\s*\"(\\d+)\"\\s*:\\s*\".*\",?$"));
    QList<int> idsByLine;
    while (!file.atEnd()) {
        const auto match = entry.match(QString::fromUtf8(file.readLine()).chopped(1));
        if (match.hasMatch())
            idsByLine.append(match.captured(1).toInt());
    }
    QCOMPARE(idsByLine, m_catalogues.value(language).keys());
}

void TestCatalogueData::countsPerRange_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("messages");
    QTest::addColumn<int>("dictionary");
    // clang-format off
    QTest::newRow("Dutch") << "nl" << 140 << 286;
    QTest::newRow("French") << "fr" << 136 << 285;
    QTest::newRow("English") << "en" << 57 << 81;
    QTest::newRow("German") << "de" << 0 << 61;
    QTest::newRow("Spanish") << "es" << 0 << 61;
    QTest::newRow("Italian") << "it" << 0 << 61;
    // clang-format on
}

void TestCatalogueData::countsPerRange()
{
    QFETCH(QString, language);
    QFETCH(int, messages);
    QFETCH(int, dictionary);
    const Catalogue &catalogue = m_catalogues[language];
    QCOMPARE(idsIn(catalogue, 1000, 1239).size(), messages);
    QCOMPARE(idsIn(catalogue, 9500, 9999).size(), dictionary);
    QCOMPARE(catalogue.size(), messages + dictionary);
}

void TestCatalogueData::commonEntriesInEveryLanguage_data()
{
    addLanguageRows();
}

void TestCatalogueData::commonEntriesInEveryLanguage()
{
    QFETCH(QString, language);
    QVERIFY(containsAll(m_catalogues[language], commonIds()));
}

void TestCatalogueData::smallLanguagesHoldExactlyTheirBlocks_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QList<int>>("dictionary");
    QList<int> english = range(9500, 9519) + commonIds();
    std::sort(english.begin(), english.end());
    // clang-format off
    QTest::newRow("English adds the button words") << "en" << english;
    QTest::newRow("German") << "de" << commonIds();
    QTest::newRow("Spanish") << "es" << commonIds();
    QTest::newRow("Italian") << "it" << commonIds();
    // clang-format on
}

void TestCatalogueData::smallLanguagesHoldExactlyTheirBlocks()
{
    QFETCH(QString, language);
    QFETCH(QList<int>, dictionary);
    QCOMPARE(idsIn(m_catalogues[language], 9500, 9999), dictionary);
}

void TestCatalogueData::translationsHaveADutchSource_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages.mid(1))
        // clang-format off
        QTest::newRow(qPrintable(language)) << language;
    // clang-format on
}

void TestCatalogueData::translationsHaveADutchSource()
{
    QFETCH(QString, language);
    const QList<int> ids = m_catalogues[language].keys();
    QVERIFY(containsAll(m_catalogues["nl"], ids));
}

void TestCatalogueData::houseNumberWordIsAbsent_data()
{
    addLanguageRows();
}

void TestCatalogueData::houseNumberWordIsAbsent()
{
    QFETCH(QString, language);
    QVERIFY(!m_catalogues[language].contains(9018));
}

void TestCatalogueData::frenchMessagesAreDutchWithoutTheBlanks()
{
    const QList<int> dutch = idsIn(m_catalogues["nl"], 1000, 1239);
    QCOMPARE(idsIn(m_catalogues["fr"], 1000, 1239), without(dutch, range(1006, 1009)));
}

void TestCatalogueData::englishMessagesAreTheDutchFirstSixty()
{
    QCOMPARE(idsIn(m_catalogues["en"], 1000, 1239), idsIn(m_catalogues["nl"], 1000, 1059));
}

void TestCatalogueData::frenchDictionaryLacksOneDutchEntry()
{
    const QList<int> dutch = idsIn(m_catalogues["nl"], 9500, 9999);
    const QList<int> french = idsIn(m_catalogues["fr"], 9500, 9999);
    QVERIFY(containsAll(m_catalogues["nl"], french));
    QCOMPARE(dutch.size() - french.size(), 1);
}

void TestCatalogueData::exactTexts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("trailing blank kept") << "nl" << 1005 << "Formaat : ";
    QTest::newRow("leading blank kept") << "nl" << 1016 << " is ongeldig gecodeerd !";
    QTest::newRow("inner blank runs kept") << "nl" << 1001 << "Schrijfwijze  000000000000  of  000-0000000-00";
    QTest::newRow("yes button") << "nl" << 1028 << "Ja";
    QTest::newRow("error title") << "nl" << 1031 << "Fout !";
    QTest::newRow("cancel button") << "nl" << 9500 << "Annuleren";
    QTest::newRow("help-desk line") << "nl" << 9700 << "Neem contact op met Velantis Help-Desk.";
    QTest::newRow("error code label, two trailing blanks") << "nl" << 9731 << "Fout Code :  ";
    QTest::newRow("payment blank") << "nl" << 9900 << " ";
    QTest::newRow("payment with diaeresis") << "nl" << 9910 << QString::fromUtf8("Domiciliëring");
    QTest::newRow("open item") << "nl" << 9999 << "Openstaand";
    QTest::newRow("French yes") << "fr" << 1028 << "Oui";
    QTest::newRow("French no") << "fr" << 1029 << "Non";
    QTest::newRow("English yes") << "en" << 1028 << "Yes";
    QTest::newRow("German date label") << "de" << 9534 << "Datum";
    QTest::newRow("brand kept in Italian") << "it" << 9904 << "Bancontact";
    // clang-format on
}

void TestCatalogueData::exactTexts()
{
    QFETCH(QString, language);
    QFETCH(int, id);
    QFETCH(QString, text);
    QCOMPARE(m_catalogues[language].value(id), text);
}

void TestCatalogueData::noEmptyTextsAndBlanksOnlyWhereIntended_data()
{
    addLanguageRows();
}

void TestCatalogueData::noEmptyTextsAndBlanksOnlyWhereIntended()
{
    QFETCH(QString, language);
    // Reserved messages and the "nothing" rows of the code and payment lists are one blank.
    const QList<int> blanks = range(1006, 1009) + QList<int> { 9810, 9900 };
    const Catalogue &catalogue = m_catalogues[language];
    for (auto it = catalogue.begin(); it != catalogue.end(); ++it) {
        const QByteArray where = QByteArray::number(it.key());
        QVERIFY2(!it.value().isEmpty(), where.constData());
        if (blanks.contains(it.key()))
            QVERIFY2(it.value() == " ", where.constData());
        else
            QVERIFY2(!it.value().trimmed().isEmpty(), where.constData());
    }
}

void TestCatalogueData::labelIsBareWordWithColon_data()
{
    addLanguageRows();
}

void TestCatalogueData::labelIsBareWordWithColon()
{
    QFETCH(QString, language);
    const Catalogue &catalogue = m_catalogues[language];
    for (int bare = 9518; bare <= 9624; bare += 2) {
        const QByteArray where = QByteArray::number(bare);
        QVERIFY2(catalogue.contains(bare) == catalogue.contains(bare + 1), where.constData());
        if (catalogue.contains(bare))
            QCOMPARE(catalogue.value(bare + 1), catalogue.value(bare) + " :");
    }
}

void TestCatalogueData::weekdayInitialsKeepTheirShape_data()
{
    QTest::addColumn<QString>("language");
    // clang-format off
    QTest::newRow("Dutch") << "nl";
    QTest::newRow("French") << "fr";
    QTest::newRow("English") << "en";
    // clang-format on
}

void TestCatalogueData::weekdayInitialsKeepTheirShape()
{
    QFETCH(QString, language);
    // Calendar controls take this as seven comma-separated titles starting on Sunday.
    const QStringList days = m_catalogues[language].value(1000).split(',');
    QCOMPARE(days.size(), 7);
    for (const QString &day : days)
        QCOMPARE(day.size(), 2);
}

void TestCatalogueData::listBlocksAreTitledAndComplete_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("title");
    QTest::addColumn<int>("last");
    const QList<std::pair<int, int>> blocks = { { 9800, 9807 }, { 9830, 9843 }, { 9850, 9862 },
        { 9870, 9882 }, { 9890, 9895 }, { 9898, 9919 } };
    for (const QString &language : { QStringLiteral("nl"), QStringLiteral("fr") })
        for (const auto &[title, last] : blocks)
            QTest::addRow("%s %d", qPrintable(language), title) << language << title << last;
}

void TestCatalogueData::listBlocksAreTitledAndComplete()
{
    QFETCH(QString, language);
    QFETCH(int, title);
    QFETCH(int, last);
    // Hosts fill a list by loading title + 1, + 2, ... up to the block's last id.
    const Catalogue &catalogue = m_catalogues[language];
    QVERIFY(containsAll(catalogue, range(title, last)));
    const QString prefix = language == "nl" ? "Lijst " : "Liste ";
    QVERIFY2(catalogue.value(title).startsWith(prefix), qPrintable(catalogue.value(title)));
}

QTEST_APPLESS_MAIN(TestCatalogueData)
#include "tst_cataloguedata.moc"
