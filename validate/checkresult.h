#pragma once

#include <QString>

namespace qor {

// What an identifier check decided.
enum class Verdict {
    // Blank input: nothing checked, nothing to report.
    Skipped,
    Accepted,
    // The number was checked and found wrong: the case a user is told about.
    Refused,
};

// The outcome of an identifier check. The checked text itself is cleaned in the
// caller's variable, as the library's methods do.
struct CheckResult
{
    // The number in its display notation; empty when it was refused.
    QString display;
    // The number was checked and found wrong: the case a user is told about.
    bool refused = false;

    static CheckResult accepted(const QString &display) { return { display, false }; }
    static CheckResult wrong() { return { QString(), true }; }
    // Blank input: nothing checked, nothing to report.
    static CheckResult skipped() { return {}; }
};

// The result of a check that writes its display text into storage the caller
// keeps from one check to the next.
template <typename Check> CheckResult checkResultOf(Check check)
{
    CheckResult result;
    result.refused = check(result.display) == Verdict::Refused;
    return result;
}

} // namespace qor
