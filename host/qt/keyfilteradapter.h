#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QPointer>
#include <QVariant>

#include <functional>

class QKeyEvent;
class QLineEdit;
class clsqorGenLib;

namespace qor {

class LineEditAdapter;

/// Puts one of the library's key handlers on a real QLineEdit, as a host's
/// key-press (or, for the spin, key-down) handler would: every typed character
/// goes to the handler as its windows-1252 code, and the code it returns is
/// applied: 0 swallows the key, the same code lets the field take it, another
/// code is inserted in its place. Keys that type nothing (arrows, Delete,
/// shortcuts with Ctrl or Alt) pass untouched, except the arrows for the spin.
/// The adapter belongs to the field and goes with it.
class QORGENLIB_WIDGETS_EXPORT KeyFilterAdapter : public QObject
{
    Q_OBJECT

public:
    /// An amount field: KeyGetal with the decimals (missing: the object's
    /// NbrDec) and whether it takes negative values.
    static KeyFilterAdapter *attachKeyGetal(QLineEdit *field, clsqorGenLib *library,
        const QVariant &nbrDecimals = missing(), bool negNumber = false);
    /// A euro amount field: KeyEuro.
    static KeyFilterAdapter *attachKeyEuro(QLineEdit *field, clsqorGenLib *library,
        const QVariant &eurDecimals = missing(), bool negNumber = false);
    /// A free-text field: KeyPress with its allowed characters and classes.
    static KeyFilterAdapter *attachKeyPress(
        QLineEdit *field, clsqorGenLib *library, const QString &allowed);
    /// A number or date field stepped by the arrow keys: KeySpin with its bounds.
    static KeyFilterAdapter *attachKeySpin(QLineEdit *field, clsqorGenLib *library,
        const QVariant &maxValue = missing(), const QVariant &minValue = missing());

    /// A field that takes barcode and card scans: ScanBM with its scan format
    /// ("%[...]") and whether only the "#" positions go into the field. Escape
    /// reaches the scanner too, which drops a scan half read.
    static KeyFilterAdapter *attachScanBM(QLineEdit *field, clsqorGenLib *library,
        const QString &scanFormat, bool returnFieldOnly = false, bool mbox = true);

    /// The field as the library sees it.
    LineEditAdapter *control() const { return m_control; }

    /// The windows-1252 code a key event types: 8 for Backspace, 13 for Enter,
    /// the code of its one character, or -1 when it types nothing.
    static int characterCode(const QKeyEvent *event);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Handler = std::function<int(short &code)>;
    KeyFilterAdapter(QLineEdit *field, clsqorGenLib *library);
    static QVariant missing();

    bool filterCharacter(QKeyEvent *event);
    bool spin(QKeyEvent *event);

    QPointer<QLineEdit> m_field;
    QPointer<clsqorGenLib> m_library;
    LineEditAdapter *m_control = nullptr;
    Handler m_handler; // for typed characters
    std::function<void(int direction)> m_spin; // for the arrow keys
    bool m_takesEscape = false; // Escape goes to the handler as code 27
};

} // namespace qor
