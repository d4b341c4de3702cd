#include "calculator/calculatorpresenter.h"

#include "calculator/scriptedcalculator.h"
#include "platform/recordingplatform.h"

namespace qor {

CalculatorPresenter::~CalculatorPresenter() = default;

CalculatorAnswer CalculatorPresenter::present(
    double start, const std::shared_ptr<CalculatorSession> &session)
{
    DialogPresenter &dialogs = DialogPresenter::current();
    if (auto *own = dynamic_cast<CalculatorPresenter *>(&dialogs))
        return own->presentCalculator(start, session);
    if (auto *recording = dynamic_cast<RecordingPlatform *>(&dialogs))
        return ScriptedCalculator(*recording).presentCalculator(start, session);
    return { false, start };
}

} // namespace qor
