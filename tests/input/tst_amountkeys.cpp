#include "host/grideditor.h"
#include "host/textbox.h"
#include "lib/clsqorgenlib.h"
#include "runtime/conversion.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"
#include "tests/common/keysequence.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

namespace {

const QString negativeRefused = QStringLiteral("Het resultaat kan niet worden ingevoegd, omdat het "
                                               "invulvak geen negatieve waarde aanvaardt...");

QString tooLong(int maxLength)
{
    return QStringLiteral("Het resultaat kan niet worden ingevoegd, omdat het invulvak maximaal %1 "
                          "tekens aanvaardt...")
        .arg(maxLength);
}

// An amount field of a host form beside its library object: a text box, or a
// grid's cell editor. Each key typed goes through a handler and the code it
// returns is applied as a host applies it; the caret starts at the end.
class AmountField
{
public:
    explicit AmountField(const QString &text = QString(),
        const QString &locale = QStringLiteral("nl_BE"), bool grid = false)
        : machine(test::installRecordingPlatform(locale))
        , m_grid(grid)
        , m_control(grid ? static_cast<QObject *>(&m_editor) : &m_box)
    {
        lib.setProperty("NbrDec", 1);
        set(m_grid ? "EditText" : "Text", text);
        select(int(text.size()), 0);
    }

    void select(int start, int length)
    {
        set(m_grid ? "EditSelStart" : "SelStart", start);
        set(m_grid ? "EditSelLength" : "SelLength", length);
    }
    void setMaxLength(int maxLength) { set(m_grid ? "editMaxLength" : "MaxLength", maxLength); }

    int keyGetal(short &ka, QVariant &decimals, bool negNumber = true)
    {
        bool flexgrid = m_grid;
        return lib.KeyGetal(m_control, ka, decimals, negNumber, flexgrid).toInt();
    }
    // Types the keys through KeyGetal or KeyEuro; gives back the decimals
    // argument as the handler left it.
    QVariant type(const QString &keys, QVariant decimals, bool negNumber, bool euro = false)
    {
        for (int code : test::keyCodes(keys)) {
            short ka = short(code);
            const int result = euro ? lib.KeyEuro(m_control, ka, decimals, negNumber).toInt()
                                    : keyGetal(ka, decimals, negNumber);
            test::typeIntoModel(m_control, result, m_grid);
        }
        return decimals;
    }

    QString text() const { return getProperty(m_control, m_grid ? "EditText" : "Text").toString(); }
    int caret() const
    {
        return getProperty(m_control, m_grid ? "EditSelStart" : "SelStart").toInt();
    }
    // What the user saw and heard: "beep", the prompt of a refusal of the
    // calculator's result, the text of a VAT note.
    QStringList shown() const
    {
        QStringList seen;
        for (const ShownEvent &event : machine->shown()) {
            if (const auto *box = std::get_if<MessageBoxEShown>(&event))
                seen.append(box->title == QLatin1String("qorSoft Calculator") && box->buttons == 48
                        ? box->prompt
                        : QStringLiteral("another box"));
            else if (const auto *note = std::get_if<NoteShown>(&event))
                seen.append(note->text);
            else
                seen.append(kindOf(event));
        }
        return seen;
    }

    std::shared_ptr<RecordingPlatform> machine;
    clsqorGenLib lib;

private:
    void set(const char *name, const QVariant &value)
    {
        qor::setProperty(m_control, name, value, RegionalSettings());
    }

    TextBox m_box;
    GridEditor m_editor;
    bool m_grid;
    QObject *m_control;
};

QStringList beeps(int count)
{
    return QStringList(count, QStringLiteral("beep"));
}

} // namespace

// Key sequences typed into model fields through KeyGetal and KeyEuro, one
// behaviour of the handlers per table.
class TestAmountKeys : public QObject
{
    Q_OBJECT

private slots:
    // KeyGetal lets in digits, Backspace and one regional decimal separator (a
    // point stands for it) with at most the given decimals, whatever the
    // caret, unless all is selected; every other key beeps.
    void typedKeys_data()
    {
        QTest::addColumn<QVariant>("decimals");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selStart");
        QTest::addColumn<int>("selLength");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QStringList>("shown");
        const QVariant two = 2;
        // clang-format off
        QTest::newRow("digits and a comma") << two << "" << 0 << 0 << "12,34" << "12,34" << beeps(0);
        QTest::newRow("point becomes the comma") << two << "" << 0 << 0 << "12.3" << "12,3" << beeps(0);
        QTest::newRow("separator first writes 0 and the separator") << two << "" << 0 << 0 << ".5" << "0,5" << beeps(0);
        QTest::newRow("second separator refused") << two << "1,2" << 3 << 0 << ",." << "1,2" << beeps(2);
        QTest::newRow("letters, quotes and codes outside the code page refused") << two << "" << 0 << 0 << "a'{-1}{0}{256}{32767}{-32768}" << "" << beeps(7);
        QTest::newRow("third decimal refused") << two << "" << 0 << 0 << "1,234" << "1,23" << beeps(1);
        QTest::newRow("full decimals refuse the integer part too") << two << "12,34" << 0 << 0 << "5" << "12,34" << beeps(1);
        QTest::newRow("full decimals take backspace") << two << "12,34" << 5 << 0 << "{BS}5" << "12,35" << beeps(0);
        QTest::newRow("all selected lets a digit in") << two << "12,34" << 0 << 5 << "5" << "5" << beeps(0);
        QTest::newRow("part selected does not") << two << "12,34" << 3 << 2 << "5" << "12,34" << beeps(1);
        // Only exactly full decimals refuse a digit: a longer text takes one more.
        QTest::newRow("more decimals than allowed take one more") << two << "1,999" << 5 << 0 << "5" << "1,9995" << beeps(0);
        QTest::newRow("no decimals take digits and backspace only") << QVariant(0) << "12" << 2 << 0 << "{Enter},.{BS}3" << "13" << beeps(3);
        QTest::newRow("missing decimals take NbrDec 1") << missingVariant() << "" << 0 << 0 << "1,23" << "1,2" << beeps(1);
        // clang-format on
    }
    void typedKeys()
    {
        QFETCH(QVariant, decimals);
        QFETCH(QString, text);
        QFETCH(int, selStart);
        QFETCH(int, selLength);
        QFETCH(QString, keys);
        AmountField field(text);
        field.select(selStart, selLength);
        // A missing count is written back as the object's NbrDec.
        QCOMPARE(field.type(keys, decimals, false), isMissing(decimals) ? QVariant(1) : decimals);
        QTEST(field.text(), "expected");
        QTEST(field.shown(), "shown");
    }

    // "-" toggles the sign of the whole value, where negatives are allowed,
    // the caret at the start.
    void minus_data()
    {
        QTest::addColumn<bool>("negNumber");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selLength");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QStringList>("shown");
        // clang-format off
        QTest::newRow("toggles the sign wherever the caret") << true << "12,50" << 0 << "-12,5" << beeps(0);
        QTest::newRow("refused without negatives") << false << "12,50" << 0 << "12,50" << beeps(1);
        QTest::newRow("over a selection of all") << true << "12" << 2 << "-" << beeps(0);
        QTest::newRow("on a word gives 0") << true << "abc" << 0 << "0" << beeps(0);
        QTest::newRow("drops grouping") << true << "1.234,50" << 0 << "-1234,5" << beeps(0);
        // clang-format on
    }
    void minus()
    {
        QFETCH(bool, negNumber);
        QFETCH(QString, text);
        QFETCH(int, selLength);
        AmountField field(text);
        field.select(0, selLength);
        field.type(QStringLiteral("-"), 2, negNumber);
        QTEST(field.text(), "expected");
        // A toggled sign leaves the caret at the end.
        QCOMPARE(field.caret(), negNumber ? int(field.text().size()) : 0);
        QTEST(field.shown(), "shown");
    }

    // "%" replaces the text of a field holding "1" by the calculator's result
    // register, "*" by what the calculator closes on (it opens on the field's
    // value); rounded to the decimals, unless the field cannot take it. A
    // grid's cell editor places the caret by the length of the cell's own text.
    void resultInserted_data()
    {
        QTest::addColumn<bool>("grid");
        QTest::addColumn<QVariant>("decimals");
        QTest::addColumn<bool>("negNumber");
        QTest::addColumn<int>("maxLength");
        QTest::addColumn<QVariant>("result"); // the register, or how the calculator closes
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QStringList>("shown");
        const QVariant two = 2;
        const QStringList none;
        // clang-format off
        QTest::newRow("rounded to the decimals") << false << two << false << 0 << QVariant(12.3456) << "%" << "12,35" << 5 << none;
        QTest::newRow("no decimals round to whole") << false << QVariant(0) << false << 0 << QVariant(2.5) << "%" << "3" << 1 << none;
        QTest::newRow("negative result refused") << false << two << false << 0 << QVariant(-5.0) << "%" << "1" << 1 << QStringList { negativeRefused };
        QTest::newRow("negative result taken") << false << two << true << 0 << QVariant(-5.0) << "%" << "-5" << 2 << none;
        QTest::newRow("result longer than the field refused") << false << two << false << 6 << QVariant(1234.56) << "%" << "1" << 1 << QStringList { tooLong(6) };
        QTest::newRow("result as long as the field taken") << false << two << false << 7 << QVariant(1234.56) << "%" << "1234,56" << 7 << none;
        QTest::newRow("huge result in the plain number form") << false << two << false << 0 << QVariant(1e20) << "%" << "1E+20" << 5 << none;
        QTest::newRow("huge decimals do not blow up") << false << QVariant(2147483647) << false << 0 << QVariant(0.5) << "%1" << "0,51" << 4 << none;
        QTest::newRow("calculator left with escape inserts the start") << false << two << false << 0 << QVariant(QVariantMap { { "keys", "99{Esc}" } }) << "*" << "1" << 1 << QStringList { "Calculator" };
        QTest::newRow("grid: typed keys, then the caret by the cell text") << true << two << false << 0 << QVariant(42) << "1.234%" << "42" << 0 << beeps(1);
        QTest::newRow("grid: maximum length") << true << two << false << 1 << QVariant(42) << "%" << "1" << 1 << QStringList { tooLong(1) };
        // clang-format on
    }
    void resultInserted()
    {
        QFETCH(bool, grid);
        QFETCH(QVariant, decimals);
        QFETCH(bool, negNumber);
        QFETCH(int, maxLength);
        QFETCH(QVariant, result);
        QFETCH(QString, keys);
        AmountField field(QStringLiteral("1"), QStringLiteral("nl_BE"), grid);
        field.setMaxLength(maxLength);
        modGenLib().calculatorRegister = result.toDouble();
        field.machine->setAnswers({ result });
        field.type(keys, decimals, negNumber);
        QTEST(field.text(), "expected");
        QTEST(field.caret(), "caret");
        QTEST(field.shown(), "shown");
    }

    // KeyEuro takes two decimals unless its argument reads as a number, and
    // writes the two back.
    void euroDecimals_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QVariant>("decimals");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QVariant>("decimalsAfter");
        const QVariant two = QVariant::fromValue<short>(2);
        // clang-format off
        QTest::newRow("two by default") << "nl_BE" << missingVariant() << "12.345" << "12,34" << two;
        QTest::newRow("a text counts as two") << "nl_BE" << QVariant("abc") << "1,234" << "1,23" << two;
        QTest::newRow("Empty counts as two") << "en_US" << QVariant() << "1.234" << "1.23" << two;
        QTest::newRow("no decimals") << "nl_BE" << QVariant(0) << "1,2" << "12" << QVariant(0);
        // clang-format on
    }
    void euroDecimals()
    {
        QFETCH(QString, locale);
        QFETCH(QVariant, decimals);
        QFETCH(QString, keys);
        AmountField field(QString(), locale);
        QTEST(field.type(keys, decimals, false, true), "decimalsAfter");
        QTEST(field.text(), "expected");
    }

    // "%" in a euro field, after a digit, adds the one VAT rate in force at
    // once with its note, or opens the calculator when both are in force; "*"
    // opens it too. Whole amounts keep no decimals.
    void euroVat_data()
    {
        QTest::addColumn<int>("rate1");
        QTest::addColumn<int>("rate2");
        QTest::addColumn<QString>("calculator"); // the keys that close it
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QStringList>("shown");
        const QString note = QStringLiteral(" + %1 % BTW toevoegen ");
        // clang-format off
        QTest::newRow("one rate applied at once") << 2100 << 0 << "" << "100%" << "121" << QStringList { note.arg("21") };
        QTest::newRow("second percent only beeps") << 2100 << 0 << "" << "100%%" << "121" << QStringList { note.arg("21"), "beep" };
        QTest::newRow("rate rounded with grouping read back") << 2100 << 0 << "" << "1234,5%" << "1493,75" << QStringList { note.arg("21") };
        QTest::newRow("rate with decimals in the note") << 1250 << 0 << "" << "10%" << "11,25" << QStringList { note.arg("12,5") };
        QTest::newRow("only the second rate") << 0 << 600 << "" << "100%" << "106" << QStringList { note.arg("6") };
        QTest::newRow("no rate adds nothing") << 0 << 0 << "" << "100%" << "100" << QStringList { note.arg("0") };
        QTest::newRow("huge rate") << 2147483647 << 0 << "" << "1%" << "214749,36" << QStringList { note.arg("21474836,47") };
        QTest::newRow("both rates open the calculator") << 2100 << 600 << "{VAT2}{Insert}" << "100%" << "106" << QStringList { "Calculator" };
        QTest::newRow("star opens the calculator") << 0 << 0 << "x3,3333={Enter}" << "2*" << "6,67" << QStringList { "Calculator" };
        // clang-format on
    }
    void euroVat()
    {
        QFETCH(int, rate1);
        QFETCH(int, rate2);
        QFETCH(QString, calculator);
        QFETCH(QString, keys);
        AmountField field;
        field.lib.setProperty("BtwTar1", rate1);
        field.lib.setProperty("BtwTar2", rate2);
        field.machine->setAnswers({ QVariantMap { { "keys", calculator } } });
        field.type(keys, missingVariant(), false, true);
        QTEST(field.text(), "expected");
        QTEST(field.shown(), "shown");
    }

    void keyGetalWritesKeyCodes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("ka");
        QTest::addColumn<bool>("digitTyped"); // the calculator's flag afterwards
        // clang-format off
        QTest::newRow("point rewritten to the comma") << "1" << 46 << 44 << 44 << false;
        QTest::newRow("refused digit path clears the key") << "1,23" << 52 << 0 << 0 << false;
        QTest::newRow("minus leaves the key") << "1" << 45 << 0 << 45 << false;
        QTest::newRow("a digit sets the flag") << "" << 55 << 55 << 55 << true;
        // clang-format on
    }
    void keyGetalWritesKeyCodes()
    {
        QFETCH(QString, text);
        QFETCH(int, key);
        AmountField field(text);
        short ka = short(key);
        QVariant decimals = 2;
        QTEST(field.keyGetal(ka, decimals), "result");
        QTEST(int(ka), "ka");
        QTEST(modGenLib().calculatorFlag, "digitTyped");
    }

    void overflowingVatIsAnError()
    {
        AmountField field(QStringLiteral("1E+305"));
        field.lib.setProperty("BtwTar1", 2147483647);
        modGenLib().calculatorFlag = true;
        QCOMPARE(test::errorNumber([&] { field.type(QStringLiteral("%"), 2, false, true); }), 6);
        QCOMPARE(field.text(), QStringLiteral("1E+305"));
    }

    void aControlWithoutTheNamesRaises438()
    {
        AmountField field;
        const auto errorOf = [&](QObject *control, short ka, bool flexgrid) {
            QVariant decimals = 2;
            bool negNumber = true;
            return test::errorNumber(
                [&] { field.lib.KeyGetal(control, ka, decimals, negNumber, flexgrid); });
        };
        QObject plain;
        QCOMPARE(errorOf(&plain, '1', false), 438);
        QCOMPARE(errorOf(nullptr, '1', false), 91);
        // A text box has no cell editor's names.
        TextBox box;
        QCOMPARE(errorOf(&box, '%', true), 438);
    }
};

QTEST_GUILESS_MAIN(TestAmountKeys)
#include "tst_amountkeys.moc"
