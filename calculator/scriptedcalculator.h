#pragma once

#include "calculator/calculatorpresenter.h"

#include <QStringList>

namespace qor {

class RecordingPlatform;

// The calculator of a recorded session, answered from the recording platform's
// dialog script: a number left in its result register, {"keys": text} typed
// into it (one character a key, named keys in braces: "12+3{Enter}{Enter}";
// "{Help}" shows the help card, which takes the next key), or {"cancel": true};
// without an answer it closes at once with the register unchanged.
class ScriptedCalculator : public CalculatorPresenter
{
public:
    explicit ScriptedCalculator(RecordingPlatform &machine);

    CalculatorAnswer presentCalculator(
        double start, const std::shared_ptr<CalculatorSession> &session) override;

    /// The keys of a scripted calculator text, in order.
    static QStringList calculatorKeys(const QString &text);

private:
    void typeInto(CalculatorSession &session, const QString &text);

    RecordingPlatform &m_machine;
};

} // namespace qor
