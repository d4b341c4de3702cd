#pragma once

#include <QString>

namespace qor {

// The payment methods as the library object offers them: each takes the
// language of the calling object. The checks clean the caller's variable to
// the electronic form, return the print form ("" when wrong or blank) and,
// with mbox, tell the user through the extended message box why a wrong one
// was refused. Blank input is left as it is and returns "" without a message.

QString controleerIBAN(QString &iban, bool mbox, qint32 offset);
QString controleerBIC(QString &bic, bool mbox, qint32 offset);
QString controleerRF(QString &rf, bool mbox, qint32 offset);

// A Belgian account in the notation before IBAN to its IBAN in print form.
QString getIBAN(const QString &bankNr);
// A Belgian IBAN to the notation before IBAN ("096-1234567-69").
QString getBBAN(const QString &iban);
// The BIC of a Belgian IBAN or account in the notation before IBAN.
QString getBIC(const QString &account);
// The creditor reference of the creditor's own reference, in print form.
QString getRF(const QString &reference);

} // namespace qor
