#include "calculator/calculatorpresenter.h"
#include "platform/coreplatform.h"

#include <QTest>

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

// Who shows the calculator: the presenter the thread's dialogs offer.
class TestCalculatorPresenter : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { DialogPresenter::install(nullptr); }

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

QTEST_GUILESS_MAIN(TestCalculatorPresenter)
#include "tst_calculatorpresenter.moc"
