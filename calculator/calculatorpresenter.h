#pragma once

#include "qorgenlib_export.h"

#include "calculator/calculatorsession.h"

#include <memory>

namespace qor {

/// How a calculator window ended.
struct QORGENLIB_EXPORT CalculatorAnswer
{
    bool cancelled = false;
    double result = 0; // the result register when the calculator closed
};

/// Shows a calculator session to the user and hands it the keys until it
/// closes. A platform with a screen offers it by implementing this interface
/// beside its dialog role; `present` finds the presenter of the calling thread.
class QORGENLIB_EXPORT CalculatorPresenter
{
public:
    virtual ~CalculatorPresenter();

    /// Runs the session, which started on start, until it closes.
    virtual CalculatorAnswer presentCalculator(
        double start, const std::shared_ptr<CalculatorSession> &session)
        = 0;

    /// Runs the session with the presenter the thread's dialogs offer, or with
    /// the recording platform's script; without either the calculator closes
    /// at once, its register unchanged.
    static CalculatorAnswer present(
        double start, const std::shared_ptr<CalculatorSession> &session);
};

} // namespace qor
