#include "host/checkbox.h"
#include "host/combobox.h"
#include "host/datecontrol.h"
#include "host/form.h"
#include "host/listbox.h"
#include "host/textbox.h"
#include "lib/clsqorgenlib.h"
#include "runtime/variant.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QtTest>

using namespace qor;
using namespace qor::test;

namespace {

const QString split(2, QChar(173));

QVariantList entries(const QString &texts)
{
    QVariantList list;
    for (const QString &text : texts.split(QLatin1Char('|'), Qt::SkipEmptyParts))
        list.append(text == QLatin1String("_") ? QString() : text);
    return list;
}

} // namespace

class TestListSelection : public QObject
{
    Q_OBJECT

private slots:
    void init() { installRecordingPlatform(); }

    void setListIndex_data()
    {
        QTest::addColumn<QString>("texts");
        QTest::addColumn<QString>("numbers");
        QTest::addColumn<qint32>("before");
        QTest::addColumn<qint32>("itemData");
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("notFound");
        QTest::addColumn<bool>("found");
        QTest::addColumn<qint32>("after");

        // clang-format off
        QTest::newRow("by text") << "A|B|C" << "1|2|5" << -1 << -9999 << "B" << -1 << true << 1;
        QTest::newRow("first in list order wins") << "A|B|C" << "1|2|5" << -1 << 5 << "A" << -1 << true << 0;
        QTest::newRow("text is case-sensitive") << "A|B|C" << "1|2|5" << 1 << -9999 << "b" << -1 << false << -1;
        QTest::newRow("nothing given: fallback 0") << "A|B|C" << "1|2|5" << 2 << -9999 << "" << 0 << false << 0;
        QTest::newRow("other fallback leaves it") << "A|B|C" << "1|2|5" << 1 << 8 << "" << 3 << false << 1;
        QTest::newRow("-9999 never matches an entry of -9999") << "A|B" << "-9999|1" << 1 << -9999 << "" << -1 << false << -1;
        QTest::newRow("empty text never matches an empty entry") << "_|B" << "0|1" << 1 << -9999 << "" << 0 << false << 0;
        QTest::newRow("number 0 matches") << "A|B" << "3|0" << -1 << 0 << "" << -1 << true << 1;
        QTest::newRow("empty list: untouched") << "" << "" << -1 << 5 << "A" << 0 << false << -1;
        // clang-format on
    }

    void setListIndex()
    {
        QFETCH(QString, texts);
        QFETCH(QString, numbers);
        QFETCH(qint32, before);
        QFETCH(qint32, itemData);
        QFETCH(QString, text);
        QFETCH(qint32, notFound);
        QFETCH(qint32, after);
        for (bool combo : { false, true }) {
            clsqorGenLib lib;
            ListBox listBox;
            ComboBox comboBox;
            HostObject &list = combo ? static_cast<HostObject &>(comboBox) : listBox;
            list.assign("List", entries(texts));
            list.assign("ItemData", entries(numbers));
            list.assign("ListIndex", before);
            QTEST(lib.SetListIndex(&list, itemData, text, qorGenLib::NotFoundIndexType(notFound)),
                "found");
            QCOMPARE(list.value("ListIndex").toInt(), after);
            if (combo)
                QCOMPARE(list.value("Text").toString(), entries(texts).value(after).toString());
        }
    }

    void listWithoutItemDataRaises()
    {
        clsqorGenLib lib;
        HostObject bag;
        bag.assign("ListCount", 2);
        bag.assign("List", QVariantList { "A", "B" });
        QCOMPARE(errorNumber([&] { lib.SetListIndex(&bag, -9999, "A"); }),
            int(RuntimeError::NotSupportedByObject));
        QCOMPARE(errorNumber([&] { lib.SetListIndex(nullptr); }), int(RuntimeError::ObjectNotSet));
    }

    void dataChange_data()
    {
        QTest::addColumn<QVariantList>("edits"); // control, value typed after the reset, ...
        QTest::addColumn<bool>("changed");

        // clang-format off
        QTest::newRow("nothing typed") << QVariantList {} << false;
        QTest::newRow("text typed") << QVariantList { "name", "Janssens" } << true;
        QTest::newRow("typed and deleted again") << QVariantList { "name", "Peeters", "name", "Jans" } << false;
        QTest::newRow("check box ticked") << QVariantList { "check", 1 } << true;
        QTest::newRow("combo box text") << QVariantList { "combo", "Brugge" } << true;
        QTest::newRow("date changed") << QVariantList { "date", QDate(2004, 5, 21) } << true;
        QTest::newRow("date to Null") << QVariantList { "date", nullVariant() } << true;
        QTest::newRow("text moved to the next field") << QVariantList { "name", "", "city", "JansGent" } << true;
        // clang-format on
    }

    void dataChange()
    {
        QFETCH(QVariantList, edits);
        QFETCH(bool, changed);
        clsqorGenLib lib;
        Form form;
        TextBox name, city;
        CheckBox check;
        ComboBox combo;
        DateControl date;
        HostObject label; // neither Text nor Value
        name.assign("Text", "Jans");
        city.assign("Text", "Gent");
        date.assign("Value", QDate(2004, 5, 20));
        QHash<QString, HostObject *> controls { { "name", &name }, { "city", &city },
            { "check", &check }, { "combo", &combo }, { "date", &date } };
        QVariantList all;
        for (QObject *control :
            std::initializer_list<QObject *> { &name, &label, &check, &combo, &date, &city })
            all.append(QVariant::fromValue(control));
        form.assign("Controls", all);
        QCOMPARE(lib.DataChange(&form, true), false);
        QCOMPARE(lib.property("DataCH").toBool(), false);
        // Text of the box, then Value of the check box (Text and Value of the combo box), ...
        QVERIFY(form.value("Tag").toString().startsWith("Jans" + split + "0" + split + split));
        for (qsizetype i = 0; i + 1 < edits.size(); i += 2) {
            const QString name = edits.at(i).toString();
            const bool byValue = name == QLatin1String("date") || name == QLatin1String("check");
            controls.value(name)->assign(byValue ? "Value" : "Text", edits.at(i + 1));
        }
        QCOMPARE(lib.DataChange(&form), changed);
        QCOMPARE(lib.property("DataCH").toBool(), changed);
        QCOMPARE(lib.DataChange(&form, false), changed);
    }

    void dataChangeOnOddForms()
    {
        clsqorGenLib lib;
        Form form;
        TextBox box;
        box.assign("Text", "x");
        form.assign("Controls", QVariantList { QVariant::fromValue<QObject *>(&box) });
        QCOMPARE(lib.DataChange(&form), true); // no reset: the empty Tag differs
        QCOMPARE(lib.property("DataCH").toBool(), true);
        HostObject noTag; // neither Tag nor Controls
        QCOMPARE(lib.DataChange(&noTag, true), false);
        QCOMPARE(lib.DataChange(&noTag), false);
        QCOMPARE(lib.DataChange(nullptr), false);
        lib.setProperty("vbSplit", "|");
        QCOMPARE(lib.DataChange(&form, true), false);
        QCOMPARE(form.value("Tag").toString(), QStringLiteral("x|"));
    }
};

QTEST_GUILESS_MAIN(TestListSelection)
#include "tst_listselection.moc"
