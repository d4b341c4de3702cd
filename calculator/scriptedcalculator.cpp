#include "calculator/scriptedcalculator.h"

#include "platform/recordingplatform.h"

namespace qor {

ScriptedCalculator::ScriptedCalculator(RecordingPlatform &machine)
    : m_machine(machine)
{ }

// The keys of a scripted text: one character each, or a name in braces.
QStringList ScriptedCalculator::calculatorKeys(const QString &text)
{
    QStringList keys;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype close
            = text.at(i) == QLatin1Char('{') ? text.indexOf(QLatin1Char('}'), i) : -1;
        if (close > i + 1) {
            keys.append(text.mid(i + 1, close - i - 1));
            i = close;
        } else {
            keys.append(text.at(i));
        }
    }
    return keys;
}

void ScriptedCalculator::typeInto(CalculatorSession &session, const QString &text)
{
    bool helpShown = false;
    for (const QString &key : calculatorKeys(text)) {
        if (session.view().closed)
            return;
        // The help card takes the next key for itself and closes.
        if (helpShown) {
            helpShown = false;
            continue;
        }
        if (key.compare(QLatin1String("Help"), Qt::CaseInsensitive) == 0) {
            const CalculatorHelpCard card = session.helpCard();
            m_machine.record(CalculatorHelpShown { card.title, card.lines() });
            helpShown = true;
            continue;
        }
        session.press(key);
    }
    if (!session.view().closed)
        session.press(QStringLiteral("Esc"));
}

CalculatorAnswer ScriptedCalculator::presentCalculator(
    double start, const std::shared_ptr<CalculatorSession> &session)
{
    CalculatorAnswer answer { false, start };
    const auto scripted = m_machine.takeAnswer();
    const QVariantMap map = scripted ? scripted->toMap() : QVariantMap();
    if (scripted && RecordingPlatform::isCancel(*scripted)) {
        answer.cancelled = true;
    } else if (scripted && RecordingPlatform::isNumber(*scripted)) {
        answer.result = scripted->toDouble();
    } else if (session && map.contains(QStringLiteral("keys"))) {
        typeInto(*session, map.value(QStringLiteral("keys")).toString());
        answer.result = session->resultRegister();
    }
    m_machine.record(CalculatorShown { start, answer.cancelled, answer.result });
    return answer;
}

} // namespace qor
