#include "calculator/calculatorengine.h"

#include "calculator/calculatorhelp.h"
#include "calculator/calculatortexts.h"
#include "calculator/vatrates.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/modgenlib.h"
#include "platform/dialogpresenter.h"
#include "runtime/conversion.h"

#include <QHash>

#include <cmath>

namespace qor {

using namespace catalogue;

namespace {

// A desk calculator's display holds fifteen digits, as many as a Double keeps.
constexpr int maxDigits = 15;

int digitCount(const QString &entry)
{
    int count = 0;
    for (const QChar c : entry)
        count += c.isDigit() ? 1 : 0;
    return count;
}

} // namespace

CalculatorEngine::CalculatorEngine(const Setup &setup)
    : m_rs(setup.regional)
    , m_start(std::isfinite(setup.start) ? setup.start : 0.0)
    , m_register(m_start)
    , m_value(m_start)
    , m_digitTyped(setup.digitTyped)
    , m_beep([] { DialogPresenter::current().beep(); })
{
    m_rates[0] = setup.rate1;
    m_rates[1] = setup.rate2;
}

std::optional<CalculatorEngine::Key> CalculatorEngine::keyNamed(const QString &name)
{
    static const QHash<QString, Key> named {
        { QStringLiteral(","), Key::Decimal },
        { QStringLiteral("."), Key::Decimal },
        { QStringLiteral("+"), Key::Add },
        { QStringLiteral("-"), Key::Subtract },
        { QStringLiteral("*"), Key::Multiply },
        { QStringLiteral("x"), Key::Multiply },
        { QStringLiteral("/"), Key::Divide },
        { QStringLiteral(":"), Key::Divide },
        { QStringLiteral("%"), Key::Percent },
        { QStringLiteral("="), Key::Equals },
        { QStringLiteral("enter"), Key::Equals },
        { QStringLiteral("insert"), Key::Insert },
        { QStringLiteral("esc"), Key::Escape },
        { QStringLiteral("escape"), Key::Escape },
        { QStringLiteral("backspace"), Key::BackSpace },
        { QStringLiteral("delete"), Key::Clear },
        { QStringLiteral("vat1"), Key::Vat1 },
        { QStringLiteral("vat2"), Key::Vat2 },
        { QStringLiteral("euro"), Key::Conversion },
    };
    if (name.size() == 1 && name.at(0) >= QLatin1Char('0') && name.at(0) <= QLatin1Char('9'))
        return Key(int(Key::Digit0) + name.at(0).unicode() - '0');
    const auto found = named.constFind(name.toLower());
    if (found == named.cend())
        return std::nullopt;
    return *found;
}

bool CalculatorEngine::press(const QString &key)
{
    const auto known = keyNamed(key);
    if (known)
        press(*known);
    return known.has_value();
}

void CalculatorEngine::press(Key key)
{
    if (m_closed)
        return;
    const bool afterEquals = m_afterEquals;
    m_afterEquals = false;
    switch (key) {
    case Key::Decimal: typeDecimal(); break;
    case Key::Add: chooseOperator(Operator::Add); break;
    case Key::Subtract: chooseOperator(Operator::Subtract); break;
    case Key::Multiply: chooseOperator(Operator::Multiply); break;
    case Key::Divide: chooseOperator(Operator::Divide); break;
    case Key::Percent: percent(); break;
    case Key::Equals:
        if (afterEquals)
            insert();
        else
            equals();
        break;
    case Key::Insert: insert(); break;
    case Key::Escape: escape(); break;
    case Key::BackSpace: backSpace(); break;
    case Key::Clear: clear(); break;
    case Key::Vat1: addVat(0); break;
    case Key::Vat2: addVat(1); break;
    case Key::Conversion: convert(); break;
    default: typeDigit(int(key) - int(Key::Digit0)); break;
    }
}

double CalculatorEngine::displayValue() const
{
    if (m_error)
        return 0;
    if (m_entry.isEmpty())
        return m_value;
    QString plain = m_entry;
    plain.replace(m_rs.decimalSeparator, QLatin1Char('.'));
    return plain.toDouble();
}

QString CalculatorEngine::displayText() const
{
    if (m_error)
        return QStringLiteral("-E-");
    if (!m_entry.isEmpty())
        return m_entry;
    return numberText(m_value == 0 ? 0.0 : m_value, m_rs);
}

void CalculatorEngine::refuse()
{
    if (m_beep)
        m_beep();
}

void CalculatorEngine::showValue(double value)
{
    m_entry.clear();
    if (!std::isfinite(value) || std::abs(value) > 1e300) {
        m_error = true;
        m_value = 0;
        m_operator = Operator::None;
        return;
    }
    m_value = value;
}

void CalculatorEngine::typeDigit(int digit)
{
    if (m_error)
        clear();
    if (m_entry.isEmpty()) {
        m_entry = QString::number(digit);
    } else if (m_entry == QLatin1String("0")) {
        m_entry = QString::number(digit);
    } else if (digitCount(m_entry) >= maxDigits) {
        refuse();
        return;
    } else {
        m_entry += QChar(u'0' + digit);
    }
    m_operandTyped = true;
}

void CalculatorEngine::typeDecimal()
{
    if (m_error)
        clear();
    if (m_entry.isEmpty()) {
        m_entry = QStringLiteral("0") + m_rs.decimalSeparator;
    } else if (m_entry.contains(m_rs.decimalSeparator)) {
        refuse();
        return;
    } else {
        m_entry += m_rs.decimalSeparator;
    }
    m_operandTyped = true;
}

void CalculatorEngine::backSpace()
{
    if (m_error || m_entry.isEmpty())
        return;
    m_entry.chop(1);
    if (m_entry.isEmpty() || m_entry == QLatin1String("-"))
        m_entry = QStringLiteral("0");
}

bool CalculatorEngine::finishPendingOperation()
{
    if (m_operator == Operator::None)
        return true;
    const double operand = displayValue();
    double result = m_accumulator;
    switch (m_operator) {
    case Operator::Add: result += operand; break;
    case Operator::Subtract: result -= operand; break;
    case Operator::Multiply: result *= operand; break;
    case Operator::Divide:
        if (operand == 0) {
            showValue(std::nan(""));
            return false;
        }
        result /= operand;
        break;
    case Operator::None: break;
    }
    m_operator = Operator::None;
    showValue(result);
    return !m_error;
}

void CalculatorEngine::chooseOperator(Operator op)
{
    if (m_error) {
        refuse();
        return;
    }
    // A second operator before a new operand only replaces the first.
    if (m_operator != Operator::None && m_operandTyped && !finishPendingOperation())
        return;
    m_accumulator = displayValue();
    showValue(m_accumulator);
    m_operator = op;
    m_operandTyped = false;
}

void CalculatorEngine::percent()
{
    if (m_error) {
        refuse();
        return;
    }
    const double operand = displayValue();
    // 200 + 5 % adds 5 % of 200; 200 x 5 % takes 5 % of it; alone it divides by 100.
    const bool ofTheFirst = m_operator == Operator::Add || m_operator == Operator::Subtract;
    showValue(ofTheFirst ? m_accumulator * operand / 100.0 : operand / 100.0);
    m_operandTyped = true;
}

void CalculatorEngine::equals()
{
    if (m_error) {
        refuse();
        return;
    }
    if (finishPendingOperation())
        showValue(displayValue());
    m_operandTyped = false;
    m_afterEquals = !m_error;
}

void CalculatorEngine::insert()
{
    if (m_error || !finishPendingOperation()) {
        refuse();
        return;
    }
    m_register = displayValue();
    m_closed = true;
}

void CalculatorEngine::escape()
{
    m_register = m_start;
    m_closed = true;
}

void CalculatorEngine::clear()
{
    m_entry.clear();
    m_value = 0;
    m_accumulator = 0;
    m_operator = Operator::None;
    m_operandTyped = false;
    m_error = false;
}

void CalculatorEngine::addVat(int index)
{
    const qint32 rate = m_rates[index];
    if (!vatKeyVisible(rate) || !m_vatEnabled)
        return;
    // The display only ever holds a plain number in the regional notation (or
    // the error, which reads as 0), so its value is what CGetal reads from it.
    const double shown = displayValue();
    if (shown == 0) {
        refuse();
        return;
    }
    showValue(shown * vatFactor(rate));
    m_operandTyped = true;
    m_vatEnabled = false;
    m_digitTyped = false;
}

void CalculatorEngine::convert()
{
    if (m_error) {
        refuse();
        return;
    }
    const double shown = displayValue();
    showValue(m_francs ? shown / francsPerEuro : shown * francsPerEuro);
    m_operandTyped = true;
    m_francs = !m_francs;
}

CalculatorView CalculatorEngine::view() const
{
    CalculatorView view;
    view.title = loadCatalogueText(CalculatorTitle);
    view.display = displayText();
    view.error = m_error;
    static const char *const symbols[] = { "", "+", "-", "x", "/" };
    view.pendingOperator = QString::fromLatin1(symbols[int(m_operator)]);
    view.decimalSeparator = m_rs.decimalSeparator;
    view.insertCaption = loadCatalogueText(InsertCaption);
    view.helpCaption = loadCatalogueText(HelpCaption);
    view.conversionCaption = loadCatalogueText(m_francs ? FrancToEuroCaption : EuroToFrancCaption);
    view.francs = m_francs;
    for (int i = 0; i < 2; ++i)
        view.vatKeys[size_t(i)]
            = { vatKeyCaption(m_rates[i], m_rs), vatKeyVisible(m_rates[i]), m_vatEnabled };
    view.closed = m_closed;
    return view;
}

CalculatorHelpCard CalculatorEngine::helpCard() const
{
    return calculatorHelpCard(modGenLib().languageOffset);
}

} // namespace qor
