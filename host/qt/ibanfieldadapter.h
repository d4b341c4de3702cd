#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QPointer>

class QLineEdit;
class clsqorGenLib;

namespace qor {

/// Makes a real QLineEdit an IBAN field: while the user types, the text is
/// shown in groups of four (blanks, dashes and dots dropped, letters in upper
/// case) with the cursor kept after the same character; on leaving the field
/// (Return or focus out) the library's ControleerIBAN checks it. A right IBAN
/// is shown in print form; a wrong one stays in electronic form for the user
/// to correct, after the library's message when mbox.
class QORGENLIB_WIDGETS_EXPORT IbanFieldAdapter : public QObject
{
    Q_OBJECT

public:
    /// The adapter belongs to the field and goes with it.
    static IbanFieldAdapter *attach(QLineEdit *field, clsqorGenLib *library, bool mbox = true);

signals:
    /// The field was checked: the IBAN's print form, "" when blank or wrong.
    void checked(const QString &printForm);

private:
    IbanFieldAdapter(QLineEdit *field, clsqorGenLib *library, bool mbox);
    void regroup(const QString &typed);
    void check();

    QPointer<QLineEdit> m_field;
    QPointer<clsqorGenLib> m_library;
    bool m_mbox;
};

} // namespace qor
