#include "calculator/showcalculator.h"

#include "calculator/calculatorengine.h"
#include "calculator/calculatorpresenter.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"

#include <cmath>

namespace qor {

double showCalculator(double value, qint32 rate1, qint32 rate2, qint32 offset)
{
    useLanguage(offset);
    const double start = std::isfinite(value) ? value : 0.0;
    modGenLib().calculatorRegister = start;
    modGenLib().calculatorMode = 0;
    CalculatorEngine::Setup setup;
    setup.start = start;
    setup.rate1 = rate1;
    setup.rate2 = rate2;
    setup.digitTyped = modGenLib().calculatorFlag;
    setup.regional = Clock::current().regionalSettings();
    auto engine = std::make_shared<CalculatorEngine>(setup);
    const CalculatorAnswer answer = CalculatorPresenter::present(start, engine);
    ModGenLib &state = modGenLib();
    state.calculatorRegister = answer.cancelled ? start : answer.result;
    state.calculatorFlag = engine->digitTyped();
    state.calculatorMode = engine->showsFrancs() ? 1 : 0;
    return state.calculatorRegister;
}

} // namespace qor
