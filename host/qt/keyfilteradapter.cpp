#include "host/qt/keyfilteradapter.h"

#include "host/qt/lineeditadapter.h"
#include "input/keycodes.h"
#include "lib/clsqorgenlib.h"
#include "platform/dialogpresenter.h"
#include "runtime/codepage.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace qor {

namespace {

// Keeps the arguments a handler writes back between keys, as a host's
// variables would be.
struct AmountArguments
{
    QVariant decimals;
    bool negNumber = false;
    bool flexgrid = false;
};

} // namespace

KeyFilterAdapter::KeyFilterAdapter(QLineEdit *field, clsqorGenLib *library)
    : QObject(field)
    , m_field(field)
    , m_library(library)
    , m_control(new LineEditAdapter(field, this))
{
    field->installEventFilter(this);
}

QVariant KeyFilterAdapter::missing()
{
    return missingVariant();
}

KeyFilterAdapter *KeyFilterAdapter::attachKeyGetal(
    QLineEdit *field, clsqorGenLib *library, const QVariant &nbrDecimals, bool negNumber)
{
    auto *adapter = new KeyFilterAdapter(field, library);
    auto args = std::make_shared<AmountArguments>(AmountArguments { nbrDecimals, negNumber });
    adapter->m_handler = [adapter, args](short &code) {
        // A decimals argument left out is filled in by the first call, as in a host's variable.
        return adapter->m_library
            ->KeyGetal(adapter->m_control, code, args->decimals, args->negNumber, args->flexgrid)
            .toInt();
    };
    return adapter;
}

KeyFilterAdapter *KeyFilterAdapter::attachKeyEuro(
    QLineEdit *field, clsqorGenLib *library, const QVariant &eurDecimals, bool negNumber)
{
    auto *adapter = new KeyFilterAdapter(field, library);
    auto args = std::make_shared<AmountArguments>(AmountArguments { eurDecimals, negNumber });
    adapter->m_handler = [adapter, args](short &code) {
        return adapter->m_library->KeyEuro(
                                     adapter->m_control, code, args->decimals, args->negNumber)
            .toInt();
    };
    return adapter;
}

KeyFilterAdapter *KeyFilterAdapter::attachKeyPress(
    QLineEdit *field, clsqorGenLib *library, const QString &allowed)
{
    auto *adapter = new KeyFilterAdapter(field, library);
    auto set = std::make_shared<QString>(allowed);
    adapter->m_handler
        = [adapter, set](short &code) { return adapter->m_library->KeyPress(code, *set).toInt(); };
    return adapter;
}

KeyFilterAdapter *KeyFilterAdapter::attachKeySpin(
    QLineEdit *field, clsqorGenLib *library, const QVariant &maxValue, const QVariant &minValue)
{
    auto *adapter = new KeyFilterAdapter(field, library);
    adapter->m_spin = [adapter, maxValue, minValue](int direction) {
        // Bounds are filled in afresh on every key: today moves on.
        QVariant max = maxValue;
        QVariant min = minValue;
        auto upDown = qorGenLib::SpinUpDown(direction);
        adapter->m_library->KeySpin(upDown, adapter->m_control, max, min);
    };
    return adapter;
}

KeyFilterAdapter *KeyFilterAdapter::attachScanBM(QLineEdit *field, clsqorGenLib *library,
    const QString &scanFormat, bool returnFieldOnly, bool mbox)
{
    auto *adapter = new KeyFilterAdapter(field, library);
    // The format is written back in upper case, as into a host's variable.
    auto format = std::make_shared<QString>(scanFormat);
    adapter->m_handler = [adapter, format, returnFieldOnly, mbox](short &code) {
        return int(
            adapter->m_library->ScanBM(adapter->m_control, code, *format, returnFieldOnly, mbox));
    };
    adapter->m_takesEscape = true;
    return adapter;
}

int KeyFilterAdapter::characterCode(const QKeyEvent *event)
{
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return -1;
    switch (event->key()) {
    case Qt::Key_Backspace: return KeyCode::BackSpace;
    case Qt::Key_Return:
    case Qt::Key_Enter: return KeyCode::Enter;
    default: break;
    }
    const QString text = event->text();
    if (text.size() != 1 || text.at(0).unicode() < 32 || text.at(0) == QChar(127))
        return -1;
    // A character the code page lacks arrives as "?", as it does in an ANSI program.
    return asc(text.at(0));
}

bool KeyFilterAdapter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress || !m_library)
        return false;
    auto *key = static_cast<QKeyEvent *>(event);
    try {
        if (m_spin)
            return spin(key);
        if (m_handler)
            return filterCharacter(key);
    } catch (const RuntimeError &) {
        // A host's handler would stop on the error; the key is lost, the field kept.
        DialogPresenter::current().beep();
        return true;
    }
    return false;
}

bool KeyFilterAdapter::spin(QKeyEvent *event)
{
    if (event->modifiers() != Qt::NoModifier && event->modifiers() != Qt::KeypadModifier)
        return false;
    if (event->key() == Qt::Key_Up)
        m_spin(qorGenLib::SpinUp);
    else if (event->key() == Qt::Key_Down)
        m_spin(qorGenLib::SpinDown);
    else
        return false;
    return true;
}

bool KeyFilterAdapter::filterCharacter(QKeyEvent *event)
{
    const bool escape = m_takesEscape && event->key() == Qt::Key_Escape
        && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const int typed = escape ? KeyCode::Escape : characterCode(event);
    if (typed < 0)
        return false;
    short code = short(typed);
    const int result = m_handler(code);
    if (!m_field || result == 0)
        return true;
    if (result == typed)
        return false;
    // A rewritten key: the adapter types the character the handler chose.
    if (result > 0 && result <= 255 && result != KeyCode::BackSpace && result != KeyCode::Enter)
        m_field->insert(chr(result));
    return true;
}

} // namespace qor
