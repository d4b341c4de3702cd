#pragma once

#include <QString>

namespace qor {

// The identifier checks as the library object offers them: each takes the
// language of the calling object, cleans the caller's variable, returns the
// display notation ("" when refused or blank) and, with mbox, tells the user
// through the extended message box why a number was refused.

QString controleerBankNr(QString &bankNr, bool mbox, qint32 offset);
// landCode is written back: "" becomes "BE".
QString controleerVAT(QString &vatNr, bool mbox, QString &landCode, qint32 offset);
QString controleerNatNr(QString &natNr, bool mbox, const QString &landCode, qint32 offset);
// A refused card number may still be accepted by the user as a foreign card.
QString controleerIdentNr(QString &identNr, bool mbox, qint32 offset);
// Makes a reference; more than ten digits are refused with a message (always).
QString getOGM(QString &referentieNummer, const QString &paragraphBreak, qint32 offset);
// A first part beyond 32 bits raises RuntimeError 6 to the caller.
QString controleerOGM(QString &ogm, bool mbox, qint32 offset);

} // namespace qor
