#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"

#include <QTest>

using namespace qor;

namespace {

const TypeLibrary &library()
{
    return clsqorGenLib::typeLibrary();
}

QStringList memberNames(const QString &enumName)
{
    QStringList names;
    if (const EnumInfo *info = library().findEnumeration(enumName)) {
        for (const auto &member : info->members)
            names << member.name;
    }
    return names;
}

} // namespace

class TestTypeLibrary : public QObject
{
    Q_OBJECT

private slots:
    void enumerationsInDeclarationOrder_data()
    {
        QTest::addColumn<QString>("enumName");
        QTest::addColumn<QStringList>("members");
        // clang-format off
        QTest::newRow("sort order") << "OstSortOrder" << QStringList { "soNumeric", "soNumericRev", "soAlphabetic", "soAlphabeticRev", "soLength", "soLengthRev" };
        QTest::newRow("symbol with the euro sign") << "OstSymbolType" << QStringList { "vbSymbolNone", "vbSymbolEUR", QStringLiteral("vbSymbol\u20AC") };
        QTest::newRow("duplicate value zero") << "OstSpecificIcon" << QStringList { "spiDefault", "spiDis", "spiGrey", "spiMove", "spiDisMini", "spiGreyMini", "spiMoveMini" };
        QTest::newRow("negative first") << "NotFoundIndexType" << QStringList { "SetListIndexMinusOne", "SetListIndexLineZero", "SetListIndexUnchanged" };
        QTest::newRow("spin keys") << "SpinUpDown" << QStringList { "SpinUp", "SpinDown" };
        // clang-format on
    }
    void enumerationsInDeclarationOrder()
    {
        QFETCH(QString, enumName);
        QFETCH(QStringList, members);
        QCOMPARE(memberNames(enumName), members);
    }

    void memberValues_data()
    {
        QTest::addColumn<QString>("member");
        QTest::addColumn<int>("value");
        // clang-format off
        QTest::newRow("system grey") << "vbGrey" << -2147483633;
        QTest::newRow("system blue") << "vbBlueWin" << -2147483635;
        QTest::newRow("cyan") << "vbCyan" << 12632064;
        QTest::newRow("cyan4 shares it") << "vbCyan4" << 12632064;
        QTest::newRow("minus one") << "SetListIndexMinusOne" << -1;
        QTest::newRow("unchanged is 99") << "SetListIndexUnchanged" << 99;
        QTest::newRow("open item credit") << "btOpenStaandCredit" << 199;
        QTest::newRow("direct debit with diaeresis") << QStringLiteral("btDomicili\u00EBring") << 10;
        QTest::newRow("direct debit credit") << QStringLiteral("btDomicili\u00EBringCredit") << 110;
        QTest::newRow("euro symbol") << QStringLiteral("vbSymbol\u20AC") << 2;
        QTest::newRow("last icon") << "iccMapQOR" << 254;
        QTest::newRow("icon after the gap") << "iccTelefoonGroen" << 218;
        QTest::newRow("module column") << "mocArtikelTypeNr" << 17;
        QTest::newRow("label euro format") << "posPrEur4DN" << 42;
        // clang-format on
    }
    void memberValues()
    {
        QFETCH(QString, member);
        QFETCH(int, value);
        QCOMPARE(library().enumValue(member), std::optional<qint32>(value));
    }

    void everyEnumerationIsPublished()
    {
        const QStringList expected { "OstEenheid", "TranslateEnum", "NotFoundIndexType",
            "OstSortOrder", "OstBetalingswijze", "OstSpecificIcon", "OstPrintStyles", "OstPrFormat",
            "OstLogoLayout", "OstLabelForm", "OstLabelOrient", "OstLabelStyle", "OstLabelFontSize",
            "OstLabelFormat", "OstDisplayLine", "OstDisplayClose", "FactGroupMode", "ModuleCol",
            "OstSymbolType", "OstColors", "SpinUpDown", "IconList" };
        QStringList names;
        for (const auto &info : library().enumerations())
            names << info.name;
        QCOMPARE(names, expected);
        QCOMPARE(library().findEnumeration("OstBetalingswijze")->members.size(), 36);
        QCOMPARE(library().findEnumeration("OstColors")->members.size(), 34);
    }

    void iconListHas253NamesWithoutValue217()
    {
        const EnumInfo *icons = library().findEnumeration("IconList");
        QVERIFY(icons);
        QCOMPARE(icons->members.size(), 253);
        QSet<int> values;
        for (const auto &member : icons->members) {
            QVERIFY(member.name.startsWith(QLatin1String("icc")));
            values.insert(member.value);
        }
        QCOMPARE(values.size(), 253);
        QVERIFY(!values.contains(217));
        QVERIFY(values.contains(1) && values.contains(254));
    }

    void windowSizeRecord()
    {
        QCOMPARE(library().records().size(), 1);
        const RecordInfo &record = library().records().first();
        QCOMPARE(record.name, QStringLiteral("WindowSize"));
        QStringList fields;
        for (const auto &field : record.fields) {
            fields << field.name;
            QCOMPARE(field.type, QStringLiteral("Long"));
        }
        QCOMPARE(fields, (QStringList { "Left", "Top", "Right", "Bottom", "Width", "Height" }));
    }

    void propertiesInInterfaceOrder()
    {
        QStringList names;
        for (const auto &property : library().properties())
            names << property.name + QLatin1Char(':') + property.type;
        QCOMPARE(names,
            (QStringList { "msg:String", "SQL:String", "FlowCTL:Variant", "UserCancel:Boolean",
                "FrmAct:Boolean", "AnEd:Boolean", "HoldSysData:Variant", "HoldErr:Long",
                "HoldErrDes:String", "vbCr2:String", "vbSplit:String", "vbRequery:Boolean",
                "vbSee:Boolean", "Offset:Long", "FieldExt:String", "DataCH:Boolean",
                "KlantPC:Boolean", "BtwTar1:Long", "BtwTar2:Long", "NbrDec:Long",
                "NbrDecFmt:String" }));
    }

    void parametersCarryTypeReferenceAndDefault_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("byRef");
        QTest::addColumn<bool>("optional");
        QTest::addColumn<QVariant>("defaultValue");
        // clang-format off
        QTest::newRow("written back") << "FilterNumeric" << 0 << "Ingave" << "Variant" << true << false << QVariant();
        QTest::newRow("optional text") << "FilterAccenten" << 1 << "OnlyThese" << "String" << false << true << QVariant(QString());
        QTest::newRow("variant default is Integer 0") << "CGetal" << 0 << "Number" << "Variant" << false << true << QVariant::fromValue<short>(0);
        QTest::newRow("enumeration typed") << "SetEuro" << 1 << "AddSymbol" << "OstSymbolType" << false << true << QVariant(0);
        QTest::newRow("object") << "SelEdit" << 0 << "Obj" << "Object" << false << false << QVariant();
        QTest::newRow("boolean default") << "SelEdit" << 2 << "Flexgrid" << "Boolean" << false << true << QVariant(false);
        QTest::newRow("integer key") << "SendAKey" << 0 << "KeyAscii" << "Integer" << false << false << QVariant();
        // clang-format on
    }
    void parametersCarryTypeReferenceAndDefault()
    {
        QFETCH(QString, method);
        QFETCH(int, index);
        const MethodInfo *info = library().findMethod(method);
        QVERIFY(info);
        const ParameterInfo &param = info->parameters.at(index);
        QTEST(param.name, "name");
        QTEST(param.type, "type");
        QTEST(param.byRef, "byRef");
        QTEST(param.optional, "optional");
        QFETCH(QVariant, defaultValue);
        QCOMPARE(param.defaultValue.metaType(), defaultValue.metaType());
        QCOMPARE(param.defaultValue, defaultValue);
    }

    // Every method is published once, and its C++ defaults match the published optional ones.
    void optionalArgumentsMatchTheCppDefaults()
    {
        const QMetaObject &meta = clsqorGenLib::staticMetaObject;
        QSet<QString> seen;
        for (const MethodInfo &method : library().methods()) {
            QVERIFY2(!seen.contains(method.name.toLower()), qPrintable(method.name));
            seen.insert(method.name.toLower());
            int clones = 0;
            for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
                if ((meta.method(i).attributes() & QMetaMethod::Cloned)
                    && QString::fromLatin1(meta.method(i).name()) == method.name)
                    ++clones;
            }
            int optional = 0;
            for (const auto &param : method.parameters)
                optional += param.optional ? 1 : 0;
            QVERIFY2(clones <= optional, qPrintable(method.name));
        }
    }

    void lookUpIgnoresCase()
    {
        QVERIFY(library().findMethod("filternumeric"));
        QVERIFY(library().findProperty("OFFSET"));
        QVERIFY(!library().findMethod("Invoke"));
        QVERIFY(!library().findMethod("deleteLater"));
    }
};

QTEST_GUILESS_MAIN(TestTypeLibrary)
#include "tst_typelibrary.moc"
