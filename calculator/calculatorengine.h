#pragma once

#include "calculator/calculatorsession.h"
#include "runtime/regionalsettings.h"

#include <QString>

#include <functional>
#include <optional>

namespace qor {

// A desk calculator without a window: keys in, the display, the result
// register and the state out. It chains operations left to right
// (2 + 3 x 4 = 20), adds VAT once per showing with its two VAT keys, switches
// the display between euro and Belgian francs, and closes on Esc, Insert or a
// second = / Enter. Closing with Esc leaves the starting value in the
// register; the other two leave the result. A division by zero or a result
// beyond the range of a Double shows an error until the next digit or Delete.
class CalculatorEngine : public CalculatorSession
{
public:
    enum class Key {
        Digit0,
        Digit1,
        Digit2,
        Digit3,
        Digit4,
        Digit5,
        Digit6,
        Digit7,
        Digit8,
        Digit9,
        Decimal,
        Add,
        Subtract,
        Multiply,
        Divide,
        Percent,
        Equals,
        Insert,
        Escape,
        BackSpace,
        Clear,
        Vat1,
        Vat2,
        Conversion,
    };

    struct Setup
    {
        double start = 0;
        qint32 rate1 = 0; // VAT rates in hundredths of a percent
        qint32 rate2 = 0;
        bool digitTyped = false; // the module's digit-typed flag when shown
        RegionalSettings regional;
    };

    explicit CalculatorEngine(const Setup &setup);

    // The key a name stands for: "0".."9", "," ".", "+", "-", "*" "x" "X",
    // "/" ":", "%", "=", "Enter", "Esc", "Insert", "BackSpace", "Delete",
    // "VAT1", "VAT2", "Euro" (names in any case).
    static std::optional<Key> keyNamed(const QString &name);

    void press(Key key);
    bool press(const QString &key) override;
    CalculatorView view() const override;
    CalculatorHelpCard helpCard() const override;
    double resultRegister() const override { return m_register; }

    // The number the display shows (0 in the error state).
    double displayValue() const;
    QString displayText() const;
    bool isClosed() const { return m_closed; }
    bool showsFrancs() const { return m_francs; }
    bool digitTyped() const { return m_digitTyped; }

    // Called for every refused key; the standard beep by default.
    void setBeep(std::function<void()> beep) { m_beep = std::move(beep); }

private:
    enum class Operator { None, Add, Subtract, Multiply, Divide };

    void typeDigit(int digit);
    void typeDecimal();
    void backSpace();
    void chooseOperator(Operator op);
    void percent();
    void equals();
    void insert();
    void escape();
    void clear();
    void addVat(int index);
    void convert();

    // Ends the entry: the display shows value (or the error for a value out of range).
    void showValue(double value);
    bool finishPendingOperation();
    void refuse();

    RegionalSettings m_rs;
    double m_start = 0;
    double m_register = 0;
    QString m_entry; // digits as typed, empty when the display shows a value
    double m_value = 0;
    double m_accumulator = 0;
    Operator m_operator = Operator::None;
    bool m_operandTyped = false; // a new operand since the operator was chosen
    bool m_afterEquals = false;
    bool m_error = false;
    bool m_closed = false;
    bool m_francs = false;
    qint32 m_rates[2] = { 0, 0 };
    bool m_vatEnabled = true;
    bool m_digitTyped = false;
    std::function<void()> m_beep;
};

} // namespace qor
