#include "calculator/calculatorengine.h"
#include "calculator/calculatorpresenter.h"
#include "calculator/scriptedcalculator.h"
#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"

#include "tests/common/recordingmachine.h"

#include <QTest>

#include <limits>

using namespace qor;

namespace {

// Dialogs that also show calculators: every calculator closes on 42.
class WindowedDialogs : public CorePlatform, public CalculatorPresenter
{
public:
    CalculatorAnswer presentCalculator(double, const std::shared_ptr<CalculatorSession> &) override
    {
        return { false, 42 };
    }
};

} // namespace

Q_DECLARE_METATYPE(std::shared_ptr<qor::DialogPresenter>)

class TestCalculatorEngine : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { DialogPresenter::install(nullptr); }

    void keys_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<double>("start");
        QTest::addColumn<int>("rate1");
        QTest::addColumn<int>("rate2");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("display");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<double>("result");
        QTest::addColumn<int>("beeps");
        // clang-format off
        QTest::newRow("typing replaces the start") << "nl_BE" << 12.5 << 0 << 0 << "7" << "7" << false << 12.5 << 0;
        QTest::newRow("second equals closes and inserts") << "nl_BE" << 100.0 << 0 << 0 << "+5==" << "105" << true << 105.0 << 0;
        QTest::newRow("enter after equals closes") << "nl_BE" << 0.0 << 0 << 0 << "2+3{Enter}{Enter}" << "5" << true << 5.0 << 0;
        QTest::newRow("chaining runs left to right") << "nl_BE" << 0.0 << 0 << 0 << "2+3x4=" << "20" << false << 0.0 << 0;
        QTest::newRow("a second operator replaces the first") << "nl_BE" << 0.0 << 0 << 0 << "8+-x2=" << "16" << false << 0.0 << 0;
        QTest::newRow("star and x both multiply") << "nl_BE" << 0.0 << 0 << 0 << "3*4x2=" << "24" << false << 0.0 << 0;
        QTest::newRow("comma and point both separate") << "nl_BE" << 0.0 << 0 << 0 << "1,5+1.25=" << "2,75" << false << 0.0 << 0;
        QTest::newRow("point system shows a point") << "en_US" << 0.0 << 0 << 0 << "1,5+1.25=" << "2.75" << false << 0.0 << 0;
        QTest::newRow("a second separator beeps") << "nl_BE" << 0.0 << 0 << 0 << "1,2,3" << "1,23" << false << 0.0 << 1;
        QTest::newRow("separator first gives a zero") << "nl_BE" << 0.0 << 0 << 0 << ",5" << "0,5" << false << 0.0 << 0;
        QTest::newRow("backspace drops the last digit") << "nl_BE" << 0.0 << 0 << 0 << "123{BackSpace}" << "12" << false << 0.0 << 0;
        QTest::newRow("backspace to nothing shows zero") << "nl_BE" << 0.0 << 0 << 0 << "1{BackSpace}{BackSpace}" << "0" << false << 0.0 << 0;
        QTest::newRow("backspace leaves a result alone") << "nl_BE" << 0.0 << 0 << 0 << "12+3={BackSpace}" << "15" << false << 0.0 << 0;
        QTest::newRow("fifteen digits at most") << "nl_BE" << 0.0 << 0 << 0 << "1234567890123456" << "123456789012345" << false << 0.0 << 1;
        QTest::newRow("delete clears everything") << "nl_BE" << 5.0 << 0 << 0 << "+3{Delete}2=" << "2" << false << 5.0 << 0;
        QTest::newRow("percent of the first operand") << "nl_BE" << 0.0 << 0 << 0 << "200+5%=" << "210" << false << 0.0 << 0;
        QTest::newRow("percent of a product") << "nl_BE" << 0.0 << 0 << 0 << "200x5%=" << "10" << false << 0.0 << 0;
        QTest::newRow("percent alone") << "nl_BE" << 0.0 << 0 << 0 << "50%" << "0,5" << false << 0.0 << 0;
        QTest::newRow("insert finishes the operation") << "nl_BE" << 10.0 << 0 << 0 << "x3{Insert}" << "30" << true << 30.0 << 0;
        QTest::newRow("escape gives the start back") << "nl_BE" << 10.0 << 0 << 0 << "x3={Esc}" << "30" << true << 10.0 << 0;
        QTest::newRow("keys after closing are ignored") << "nl_BE" << 10.0 << 0 << 0 << "{Esc}5{Insert}" << "10" << true << 10.0 << 0;
        QTest::newRow("the error refuses operators and insert") << "nl_BE" << 0.0 << 0 << 0 << "5/0=+{Insert}" << "-E-" << false << 0.0 << 2;
        QTest::newRow("a digit after the error starts afresh") << "nl_BE" << 0.0 << 0 << 0 << "5/0=7+1=" << "8" << false << 0.0 << 0;
        QTest::newRow("escape closes from the error") << "nl_BE" << 4.0 << 0 << 0 << "5/0={Esc}" << "-E-" << true << 4.0 << 0;
        QTest::newRow("overflow shows the error") << "nl_BE" << 1e200 << 0 << 0 << "x=x==" << "-E-" << false << 1e200 << 3;
        QTest::newRow("huge but in range") << "nl_BE" << 1e200 << 0 << 0 << "x1000=" << "1E+203" << false << 1e200 << 0;
        QTest::newRow("start out of range counts as zero") << "nl_BE" << std::numeric_limits<double>::infinity() << 0 << 0 << "{Esc}" << "0" << true << 0.0 << 0;
        QTest::newRow("VAT once per showing") << "nl_BE" << 100.0 << 2100 << 600 << "{VAT1}{VAT2}" << "121" << false << 100.0 << 0;
        QTest::newRow("VAT is not rounded") << "nl_BE" << 10.01 << 2100 << 0 << "{VAT1}{Insert}" << "12,1121" << true << 12.1121 << 0;
        QTest::newRow("VAT on a typed amount") << "nl_BE" << 0.0 << 0 << 600 << "50{VAT2}+1=" << "54" << false << 0.0 << 0;
        QTest::newRow("VAT on zero beeps and stays") << "nl_BE" << 0.0 << 2100 << 0 << "{VAT1}5{VAT1}" << "6,05" << false << 0.0 << 1;
        QTest::newRow("a hidden VAT key does nothing") << "nl_BE" << 100.0 << 2100 << 0 << "{VAT2}" << "100" << false << 100.0 << 0;
        QTest::newRow("euro to francs") << "nl_BE" << 10.0 << 0 << 0 << "{Euro}" << "403,399" << false << 10.0 << 0;
        QTest::newRow("francs back to euro") << "nl_BE" << 0.0 << 0 << 0 << "1000{Euro}{Euro}" << "1000" << false << 0.0 << 0;
        QTest::newRow("francs typed and inserted as euro") << "nl_BE" << 0.0 << 0 << 0 << "{Euro}{Delete}403,399{Euro}{Insert}" << "10" << true << 10.0 << 0;
        QTest::newRow("unknown keys are ignored") << "nl_BE" << 1.0 << 0 << 0 << "a#{F9}" << "1" << false << 1.0 << 0;
        // clang-format on
    }
    void keys()
    {
        QFETCH(QString, locale);
        QFETCH(double, start);
        QFETCH(int, rate1);
        QFETCH(int, rate2);
        QFETCH(QString, keys);
        test::installRecordingPlatform(locale);
        int beeps = 0;
        CalculatorEngine engine(
            { start, rate1, rate2, true, RegionalSettings::fromLocale(locale) });
        engine.setBeep([&beeps] { ++beeps; });
        for (const QString &key : ScriptedCalculator::calculatorKeys(keys))
            engine.press(key);
        QTEST(engine.view().display, "display");
        QTEST(engine.isClosed(), "closed");
        QTEST(engine.resultRegister(), "result");
        QTEST(beeps, "beeps");
    }

    void vatKeys_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("rate1");
        QTest::addColumn<int>("rate2");
        QTest::addColumn<QString>("caption1");
        QTest::addColumn<QString>("caption2");
        QTest::addColumn<bool>("visible1");
        QTest::addColumn<bool>("visible2");
        // clang-format off
        QTest::newRow("two rates") << "nl_BE" << 2100 << 600 << "21,0 %" << "6,0 %" << true << true;
        QTest::newRow("one rate hides the second key") << "nl_BE" << 2100 << 0 << "21,0 %" << "0,0 %" << true << false;
        QTest::newRow("point decimals and a fraction") << "en_US" << 1250 << 1 << "12.5 %" << "0.0 %" << true << true;
        QTest::newRow("negative rate is hidden") << "nl_BE" << -600 << 2147483647 << "-6,0 %" << "21474836,5 %" << false << true;
        // clang-format on
    }
    void vatKeys()
    {
        QFETCH(QString, locale);
        QFETCH(int, rate1);
        QFETCH(int, rate2);
        test::installRecordingPlatform(locale);
        CalculatorEngine engine({ 100, rate1, rate2, true, RegionalSettings::fromLocale(locale) });
        const CalculatorView view = engine.view();
        QTEST(view.vatKeys[0].caption, "caption1");
        QTEST(view.vatKeys[1].caption, "caption2");
        QTEST(view.vatKeys[0].visible, "visible1");
        QTEST(view.vatKeys[1].visible, "visible2");
        QVERIFY(view.vatKeys[0].enabled && view.vatKeys[1].enabled);
    }

    void vatKeyClearsTheDigitFlagAndDisablesBoth()
    {
        test::installRecordingPlatform(QStringLiteral("nl_BE"));
        CalculatorEngine engine({ 100, 2100, 600, true, RegionalSettings::fromLocale("nl_BE") });
        engine.press(QStringLiteral("VAT2"));
        QVERIFY(!engine.digitTyped());
        QVERIFY(!engine.view().vatKeys[0].enabled);
        QVERIFY(!engine.view().vatKeys[1].enabled);
    }

    void conversionCaptionFollowsTheDisplay()
    {
        test::installRecordingPlatform(QStringLiteral("nl_BE"));
        CalculatorEngine engine({ 1, 0, 0, false, RegionalSettings::fromLocale("nl_BE") });
        QCOMPARE(engine.view().conversionCaption, QStringLiteral("EUR  >>  BEF"));
        engine.press(QStringLiteral("Euro"));
        QCOMPARE(engine.view().conversionCaption, QStringLiteral("BEF  >>  EUR"));
        QVERIFY(engine.view().francs);
    }

    // The bridge's scripted answers drive the engine through the recording platform.
    void scriptedSessions_data()
    {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<double>("result");
        QTest::addColumn<QStringList>("kinds");
        QTest::addColumn<int>("mode"); // 1: closed showing francs
        // clang-format off
        QTest::newRow("keys until a second enter") << QVariant(QVariantMap { { "keys", "+1{Enter}{Enter}99" } }) << 11.0 << QStringList { "Calculator" } << 0;
        QTest::newRow("text ending with the calculator open") << QVariant(QVariantMap { { "keys", "x5" } }) << 10.0 << QStringList { "Calculator" } << 0;
        QTest::newRow("help card takes the next key") << QVariant(QVariantMap { { "keys", "{Help}{Esc}+2{Insert}" } }) << 12.0 << QStringList { "CalculatorHelp", "Calculator" } << 0;
        QTest::newRow("a number is the register") << QVariant(42.5) << 42.5 << QStringList { "Calculator" } << 0;
        QTest::newRow("cancel") << QVariant(QVariantMap { { "cancel", true } }) << 10.0 << QStringList { "Calculator" } << 0;
        QTest::newRow("francs inserted as they show") << QVariant(QVariantMap { { "keys", "{Euro}{Insert}" } }) << 403.399 << QStringList { "Calculator" } << 1;
        // clang-format on
    }
    void scriptedSessions()
    {
        QFETCH(QVariant, answer);
        auto machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        machine->setAnswers({ answer });
        clsqorGenLib lib;
        lib.setProperty("BtwTar1", 2100);
        QTEST(lib.ShowCalculator(10), "result");
        QTEST(modGenLib().calculatorRegister, "result");
        QStringList kinds;
        for (const ShownEvent &shown : machine->shown())
            kinds.append(kindOf(shown));
        QTEST(kinds, "kinds");
        QTEST(modGenLib().calculatorMode, "mode");
    }

    // Who shows the calculator: the presenter the thread's dialogs offer (the
    // recording platform's script is the one of scriptedSessions).
    void presenter_data()
    {
        QTest::addColumn<std::shared_ptr<DialogPresenter>>("dialogs");
        QTest::addColumn<double>("result");
        QTest::newRow("dialogs that show calculators")
            << std::shared_ptr<DialogPresenter>(std::make_shared<WindowedDialogs>()) << 42.0;
        QTest::newRow("dialogs without a calculator: closed at once on the start")
            << std::shared_ptr<DialogPresenter>(std::make_shared<CorePlatform>()) << 3.0;
    }
    void presenter()
    {
        QFETCH(std::shared_ptr<DialogPresenter>, dialogs);
        DialogPresenter::install(dialogs);
        const CalculatorAnswer answer = CalculatorPresenter::present(3, nullptr);
        QVERIFY(!answer.cancelled);
        QTEST(answer.result, "result");
    }
};

QTEST_GUILESS_MAIN(TestCalculatorEngine)
#include "tst_calculatorengine.moc"
