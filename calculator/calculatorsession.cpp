#include "calculator/calculatorsession.h"

namespace qor {

CalculatorSession::~CalculatorSession() = default;

QStringList CalculatorHelpCard::lines() const
{
    QStringList all { callLine, heading };
    for (const auto &key : keys)
        all.append(key.second);
    all.append(movingLine);
    all.append(vatLine);
    return all;
}

} // namespace qor
