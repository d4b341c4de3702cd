#include "grid/translationtables.h"

#include "grid/gridmessages.h"
#include "grid/hostcollection.h"
#include "grid/valueitemfactory.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/modgenlib.h"
#include "lib/frame/qorenums.h"
#include "platform/clock.h"
#include "runtime/callbyname.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

namespace qor {

namespace {

using qorGenLib::TranslateEnum;

QVariant integer(qint16 v)
{
    return integerVariant(v);
}

QString cross()
{
    return QStringLiteral("X");
}

TranslationTable booleanTable(qint32 crossValue)
{
    return { { integer(0), integer(1), integer(-1), nullVariant(), longVariant(crossValue) },
        { QString(), cross(), cross(), QString(), cross() } };
}

TranslationTable dfmTable()
{
    TranslationTable table;
    const QStringList names { QStringLiteral("?"), QStringLiteral("CPK"), QStringLiteral("HHO"),
        QStringLiteral("VZK"), QStringLiteral("OGC"), QString(), QString(), QString(), QString() };
    for (qint16 code = 0; code < names.size(); ++code) {
        table.values.append(integer(code));
        table.texts.append(names.at(code));
    }
    return table;
}

TranslationTable documentTable()
{
    TranslationTable table { { integer(0), integer(1), integer(2), integer(3) },
        { QStringLiteral("Blanco"), QStringLiteral("Waarborg Container"),
            QStringLiteral("Waarborg Badge"), QString() } };
    constexpr qint16 firstInvitation = 101;
    constexpr qint16 lastInvitation = 109;
    for (qint16 code = firstInvitation; code <= lastInvitation; ++code) {
        table.values.append(integer(code));
        table.texts.append(QStringLiteral("Betalingsuitnodiging"));
    }
    return table;
}

// Payment methods 0 to 19 from the catalogue, then the open amount (99).
TranslationTable paymentTable(qint32 firstId, const QVariant &openText)
{
    constexpr qint16 lastCode = 19;
    TranslationTable table;
    for (qint16 code = 0; code <= lastCode; ++code) {
        table.values.append(integer(code));
        table.texts.append(loadCatalogueText(firstId + code));
    }
    table.values.append(integer(qorGenLib::btOpenStaand));
    table.texts.append(openText);
    return table;
}

TranslationTable languageTable(const QStringList &names)
{
    // The offsets above the Integer range are stored as Long.
    const QVariantList offsets { integer(0), integer(10000), integer(20000), integer(30000),
        longVariant(40000), longVariant(50000) };
    TranslationTable table;
    for (qsizetype i = 0; i < offsets.size(); ++i) {
        table.values.append(offsets.at(i));
        table.texts.append(names.at(i));
    }
    return table;
}

TranslationTable houseNumberTable()
{
    return { { nullVariant(), integer(0) },
        { loadCatalogueText(gridtext::NoHouseNumber),
            loadCatalogueText(gridtext::NoHouseNumber) } };
}

TranslationTable unitTable()
{
    TranslationTable table { { integer(0) }, { QString() } };
    for (qint16 code = qorGenLib::ehKubiekeMeter; code <= qorGenLib::ehKeer; ++code) {
        table.values.append(integer(code));
        table.texts.append(loadCatalogueText(gridtext::UnitFirst + code - 1));
    }
    return table;
}

QObject *valueItemsOf(QObject *column)
{
    const QVariant items = getProperty(column, "ValueItems");
    if (!isObject(items))
        throw RuntimeError::objectRequired();
    if (!items.value<QObject *>())
        throw RuntimeError::objectNotSet();
    return items.value<QObject *>();
}

void addItems(QObject *column, QObject *item, const TranslationTable &table)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    for (qsizetype i = 0; i < table.texts.size(); ++i) {
        setProperty(item, "DisplayValue", table.texts.at(i), rs);
        setProperty(item, "Value", table.values.at(i), rs);
        callOperation(valueItemsOf(column), "Add", { QVariant::fromValue<QObject *>(item) });
    }
}

} // namespace

std::optional<TranslationTable> translationTable(qint32 translateType, qint32 crossValue)
{
    switch (translateType) {
    case qorGenLib::ttlBoolean: return booleanTable(crossValue);
    case qorGenLib::ttlDFM: return dfmTable();
    case qorGenLib::ttlDocument: return documentTable();
    case qorGenLib::ttlBetalingKort: return paymentTable(gridtext::PaymentShortFirst, QString());
    case qorGenLib::ttlBetalingLang:
        // The open amount shows the number 9999, not the catalogue's text 9999.
        return paymentTable(gridtext::PaymentLongFirst, integer(9999));
    case qorGenLib::ttlTaalKort:
        return languageTable({ QStringLiteral("NL"), QStringLiteral("FR"), QStringLiteral("EN"),
            QStringLiteral("DE"), QStringLiteral("ES"), QStringLiteral("IT") });
    case qorGenLib::ttlTaalLang:
        return languageTable(
            { QStringLiteral("Nederlands"), QStringLiteral("Français"), QStringLiteral("English"),
                QStringLiteral("Deutsch"), QStringLiteral("Espanol"), QStringLiteral("Italiano") });
    case qorGenLib::ttlHuisNr: return houseNumberTable();
    case qorGenLib::ttlEenheid: return unitTable();
    default: return std::nullopt;
    }
}

void setDBGridTranslation(
    QObject *grid, qint32 translateType, qint16 col, qint32 crossValue, bool typeADO, qint32 offset)
{
    useLanguage(offset);
    const std::unique_ptr<QObject> item = ValueItemFactory::current().create(typeADO);
    const std::optional<TranslationTable> table = translationTable(translateType, crossValue);
    QObject *column = hostcollection::item(hostcollection::of(grid, "Columns"), col);
    if (!table)
        throw RuntimeError::subscriptOutOfRange();
    addItems(column, item.get(), *table);
    setProperty(valueItemsOf(column), "Translate", true, Clock::current().regionalSettings());
}

} // namespace qor
