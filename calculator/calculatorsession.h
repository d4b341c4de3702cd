#pragma once

#include "qorgenlib_export.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <array>

namespace qor {

/// One of the calculator's two VAT keys as it is shown.
struct QORGENLIB_EXPORT CalculatorKeyView
{
    QString caption;
    bool visible = false;
    bool enabled = false;
};

/// Everything a calculator window shows at one moment.
struct QORGENLIB_EXPORT CalculatorView
{
    QString title;
    QString display; // the number, or the error text
    bool error = false;
    QString pendingOperator; // "+", "-", "x", "/" or empty
    QChar decimalSeparator = QLatin1Char(','); // the caption of the separator key
    QString insertCaption;
    QString helpCaption;
    QString conversionCaption; // the euro/franc switch
    bool francs = false; // the display shows Belgian francs
    std::array<CalculatorKeyView, 2> vatKeys;
    bool closed = false;
};

/// The help card of the calculator: its title and its lines in the order shown.
struct QORGENLIB_EXPORT CalculatorHelpCard
{
    QString title;
    QString callLine; // how to call the calculator, with a gap for the key picture
    QString heading; // above the key list
    QList<QPair<QString, QString>> keys; // key names and what they do
    QString movingLine;
    QString vatLine;

    /// The explanation lines, in order, as one list.
    QStringList lines() const;
};

/// A calculator the library runs itself: a presenter shows it and hands it
/// the user's keys until it closes. Keys are named as typed ("0".."9", ",",
/// ".", "+", "-", "*", "x", "/", "=", "%") or by name ("Enter", "Esc",
/// "Insert", "BackSpace", "Delete", "VAT1", "VAT2", "Euro").
class QORGENLIB_EXPORT CalculatorSession
{
public:
    virtual ~CalculatorSession();

    /// Returns false for a key the calculator does not have.
    virtual bool press(const QString &key) = 0;
    virtual CalculatorView view() const = 0;
    virtual CalculatorHelpCard helpCard() const = 0;
    /// The value to insert: the result register as the calculator leaves it.
    virtual double resultRegister() const = 0;
};

} // namespace qor
