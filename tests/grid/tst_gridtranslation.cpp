#include "grid/valueitemfactory.h"
#include "gridfixture.h"
#include "lib/clsqorgenlib.h"
#include "runtime/variant.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QtTest>

using namespace qor;
using namespace qor::test;

namespace {

// The items of a column as "value=text" with the value's subtype, e.g.
// "Integer 1=X", "Null=", "Long 40000=Espanol".
QStringList itemsOf(QObject *column)
{
    QStringList items;
    for (const QVariant &item :
        qobject_cast<HostObject *>(child(column, "ValueItems"))->elements()) {
        QObject *object = item.value<QObject *>();
        const QVariant value = getProperty(object, "Value");
        const QVariant shown = getProperty(object, "DisplayValue");
        const QString valueText
            = isNull(value) ? QString() : QStringLiteral(" ") + value.toString();
        const QString shownText = varType(shown) == VarType::String
            ? shown.toString()
            : varTypeName(shown) + QStringLiteral(" ") + shown.toString();
        items.append(varTypeName(value) + valueText + QStringLiteral("=") + shownText);
    }
    return items;
}

} // namespace

class TestGridTranslation : public QObject
{
    Q_OBJECT

private slots:
    void init() { installRecordingPlatform(); }

    void tables_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<qint32>("offset");
        QTest::addColumn<qint32>("crossValue");
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("someItems"); // "index:item"

        // clang-format off
        QTest::newRow("yes/no with cross value 2") << 0 << 0 << 2 << 5 << QStringList { "0:Integer 0=", "1:Integer 1=X", "2:Integer -1=X", "3:Null=", "4:Long 2=X" };
        QTest::newRow("yes/no repeats -1 by default") << 0 << 0 << -1 << 5 << QStringList { "4:Long -1=X" };
        QTest::newRow("DFM codes") << 1 << 0 << -1 << 9 << QStringList { "0:Integer 0=?", "1:Integer 1=CPK", "4:Integer 4=OGC", "5:Integer 5=", "8:Integer 8=" };
        QTest::newRow("documents") << 2 << 10000 << -1 << 13 << QStringList { "0:Integer 0=Blanco", "2:Integer 2=Waarborg Badge", "3:Integer 3=", "4:Integer 101=Betalingsuitnodiging", "12:Integer 109=Betalingsuitnodiging" };
        QTest::newRow("payment short, Dutch") << 3 << 0 << -1 << 21 << QStringList { "0:Integer 0= ", "1:Integer 1=CO", "19:Integer 19=OG", "20:Integer 99=" };
        QTest::newRow("payment long, Dutch") << 4 << 0 << -1 << 21 << QStringList { "1:Integer 1=Contant", "10:Integer 10=Domiciliëring", "18:Integer 18=PAYPAL Visa-Mastercard-AmEx-Discover-eCheck", "20:Integer 99=Integer 9999" };
        QTest::newRow("payment long, French") << 4 << 10000 << -1 << 21 << QStringList { "1:Integer 1=Comptant", "20:Integer 99=Integer 9999" };
        QTest::newRow("language short") << 5 << 0 << -1 << 6 << QStringList { "0:Integer 0=NL", "3:Integer 30000=DE", "4:Long 40000=ES", "5:Long 50000=IT" };
        QTest::newRow("language long ignores the language") << 6 << 10000 << -1 << 6 << QStringList { "1:Integer 10000=Français", "4:Long 40000=Espanol", "5:Long 50000=Italiano" };
        QTest::newRow("house number: missing-text marker") << 7 << 0 << -1 << 2 << QStringList { "0:Null= [LL 9018 ?] ", "1:Integer 0= [LL 9018 ?] " };
        QTest::newRow("units") << 8 << 0 << -1 << 14 << QStringList { "0:Integer 0=", "1:Integer 1=m3", "2:Integer 2=kg", "13:Integer 13=keer" };
        // clang-format on
    }

    void tables()
    {
        QFETCH(int, type);
        QFETCH(qint32, offset);
        QFETCH(qint32, crossValue);
        QFETCH(QStringList, someItems);
        clsqorGenLib lib;
        lib.setProperty("Offset", offset);
        Grid grid;
        callOperation(child(&grid, "Columns"), "Add", { 0 });
        callOperation(child(&grid, "Columns"), "Add", { 1 });
        lib.SetDBGridTranslation(&grid, qorGenLib::TranslateEnum(type), 1, crossValue);
        const QStringList items = itemsOf(columnOf(&grid, 1));
        QTEST(int(items.size()), "count");
        for (const QString &expected : someItems) {
            const qsizetype colon = expected.indexOf(QLatin1Char(':'));
            QCOMPARE(items.value(expected.left(colon).toInt()), expected.mid(colon + 1));
        }
        QCOMPARE(getProperty(columnOf(&grid, 1), "Translate").toBool(), true);
        QCOMPARE(itemsOf(columnOf(&grid, 0)).size(), 0);
        QCOMPARE(getProperty(columnOf(&grid, 0), "Translate").toBool(), false);
    }

    void typeADOChoosesTheItemClass_data()
    {
        QTest::addColumn<bool>("typeADO");
        QTest::addColumn<QString>("itemClass");
        QTest::newRow("classic grid") << false << "ValueItem";
        QTest::newRow("ADO-bound grid") << true << "AdoValueItem";
    }

    void typeADOChoosesTheItemClass()
    {
        QFETCH(bool, typeADO);
        QFETCH(QString, itemClass);
        clsqorGenLib lib;
        Grid grid;
        callOperation(child(&grid, "Columns"), "Add", { 0 });
        lib.SetDBGridTranslation(&grid, qorGenLib::ttlTaalKort, 0, -1, typeADO);
        auto *items = qobject_cast<HostObject *>(child(columnOf(&grid, 0), "ValueItems"));
        QCOMPARE(items->calls().size(), 6);
        for (const QVariant &call : items->calls())
            QCOMPARE(call.toMap().value("args").toList(), QVariantList { itemClass });
    }

    void aSecondCallAppends()
    {
        clsqorGenLib lib;
        Grid grid;
        callOperation(child(&grid, "Columns"), "Add", { 0 });
        lib.SetDBGridTranslation(&grid, qorGenLib::ttlBoolean, 0);
        lib.setProperty("Offset", 10000);
        lib.SetDBGridTranslation(&grid, qorGenLib::ttlBetalingKort, 0);
        const QStringList items = itemsOf(columnOf(&grid, 0));
        QCOMPARE(items.size(), 5 + 21);
        QCOMPARE(items.at(1), QStringLiteral("Integer 1=X"));
        QCOMPARE(items.at(6), QStringLiteral("Integer 1=CT"));
    }

    void wrongTypesAndColumns_data()
    {
        QTest::addColumn<QVariant>("type");
        QTest::addColumn<QVariant>("col");
        QTest::addColumn<int>("error");

        // clang-format off
        QTest::newRow("type 9") << QVariant(9) << QVariant(0) << int(RuntimeError::SubscriptOutOfRange);
        QTest::newRow("type -1") << QVariant(-1) << QVariant(0) << int(RuntimeError::SubscriptOutOfRange);
        QTest::newRow("negative column") << QVariant(0) << QVariant(-1) << int(RuntimeError::SubscriptOutOfRange);
        // clang-format on
    }

    void wrongTypesAndColumns()
    {
        QFETCH(QVariant, type);
        QFETCH(QVariant, col);
        clsqorGenLib lib;
        Grid grid;
        callOperation(child(&grid, "Columns"), "Add", { 0 });
        const QVariantList args { QVariant::fromValue<QObject *>(&grid), type, col };
        QTEST(errorNumber([&] { lib.Invoke("SetDBGridTranslation", args); }), "error");
        QCOMPARE(itemsOf(columnOf(&grid, 0)).size(), 0);
        QCOMPARE(getProperty(columnOf(&grid, 0), "Translate").toBool(), false);
    }

    void objectsWithoutValueItems()
    {
        clsqorGenLib lib;
        HostObject bag;
        QCOMPARE(errorNumber([&] { lib.SetDBGridTranslation(nullptr, qorGenLib::ttlBoolean, 0); }),
            int(RuntimeError::ObjectNotSet));
        QCOMPARE(errorNumber([&] { lib.SetDBGridTranslation(&bag, qorGenLib::ttlBoolean, 0); }),
            int(RuntimeError::NotSupportedByObject));
    }
};

QTEST_GUILESS_MAIN(TestGridTranslation)
#include "tst_gridtranslation.moc"
