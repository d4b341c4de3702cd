// The calculator engine: any key sequence from any starting value, rates and
// regional settings; the display, the help card and the register read after
// every key, and keys by name as the scripted calculator types them.
#include "calculator/calculatorengine.h"
#include "calculator/scriptedcalculator.h"
#include "fuzz/fuzzinput.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    const qor::RegionalSettings rs = qor::fuzz::fuzzMachine().regionalSettings();
    qor::CalculatorEngine::Setup setup;
    uint8_t start[8];
    for (uint8_t &b : start)
        b = input.byte();
    std::memcpy(&setup.start, start, sizeof setup.start);
    setup.rate1 = qint32(input.byte()) * 100;
    setup.rate2 = qint32(int8_t(input.byte())) * 37;
    setup.digitTyped = input.flag();
    setup.regional = input.flag() ? rs : qor::RegionalSettings();
    const bool byName = input.flag();
    qor::CalculatorEngine engine(setup);
    engine.setBeep([] {});
    constexpr int keyCount = int(qor::CalculatorEngine::Key::Conversion) + 1;
    if (byName) {
        for (const QString &key : qor::ScriptedCalculator::calculatorKeys(input.rest())) {
            engine.press(key);
            engine.view();
        }
    } else {
        while (uint8_t b = input.byte()) {
            engine.press(qor::CalculatorEngine::Key(b % keyCount));
            engine.view();
            engine.displayValue();
        }
    }
    engine.helpCard();
    engine.resultRegister();
    return 0;
}
