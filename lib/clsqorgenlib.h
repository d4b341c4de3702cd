#pragma once

#include "qorgenlib_export.h"

#include "lib/clsqorgenlibdefaults.h"
#include "lib/frame/qorenums.h"
#include "lib/frame/windowsize.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include <memory>

namespace qor {
class TypeLibrary;
}
class clsqorGenLibPrivate;

/// The library object a host creates once and keeps.
///
/// Its properties are shared storage for the host's forms plus the language
/// and VAT settings the library reads; its methods check, act and report.
/// Every method and property can also be reached by name through Invoke().
///
/// A wrong input never throws for being wrong: a check returns "" and, when
/// asked (MBox), tells the user through the library's message box. Only the
/// run-time errors the classic library raised reach the caller, as
/// qor::RuntimeError with the classic number (6 overflow, 13 type mismatch,
/// 91 a missing object, ...). Arguments passed by reference are written back:
/// the checks leave the cleaned number in the caller's variable.
///
/// Properties, read and written by name (setProperty(), Invoke()):
/// - `Offset`: the language, 0 Dutch, 10000 French, 20000 English, 30000
///   German, 40000 Spanish, 50000 Italian.
/// - `BtwTar1`, `BtwTar2`: the VAT rates in hundredths of a percent (2100 is
///   21 %), 0 when not in use; `NbrDec`, `NbrDecFmt`: the decimals of amount fields.
/// - `KlantPC`, `FieldExt`: customer station and language suffix, set by SetDebug().
/// - `vbCr2` (paragraph break of messages), `vbSplit` (separator of DataChange()),
///   and the hosts' shared storage `msg`, `SQL`, `FlowCTL`, `UserCancel`,
///   `FrmAct`, `AnEd`, `HoldSysData`, `HoldErr`, `HoldErrDes`, `vbRequery`,
///   `vbSee`, `DataCH`.
///
/// Optional arguments are published with the defaults of
/// qor::clsqorGenLibDefaults, which the C++ default arguments name too.
class QORGENLIB_EXPORT clsqorGenLib : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QString msg MEMBER m_msg)
    Q_PROPERTY(QString SQL MEMBER m_SQL)
    Q_PROPERTY(QVariant FlowCTL MEMBER m_FlowCTL)
    Q_PROPERTY(bool UserCancel MEMBER m_UserCancel)
    Q_PROPERTY(bool FrmAct MEMBER m_FrmAct)
    Q_PROPERTY(bool AnEd MEMBER m_AnEd)
    Q_PROPERTY(QVariant HoldSysData MEMBER m_HoldSysData)
    Q_PROPERTY(qint32 HoldErr MEMBER m_HoldErr)
    Q_PROPERTY(QString HoldErrDes MEMBER m_HoldErrDes)
    Q_PROPERTY(QString vbCr2 MEMBER m_vbCr2)
    Q_PROPERTY(QString vbSplit MEMBER m_vbSplit)
    Q_PROPERTY(bool vbRequery MEMBER m_vbRequery)
    Q_PROPERTY(bool vbSee MEMBER m_vbSee)
    Q_PROPERTY(qint32 Offset MEMBER m_Offset)
    Q_PROPERTY(QString FieldExt MEMBER m_FieldExt)
    Q_PROPERTY(bool DataCH MEMBER m_DataCH)
    Q_PROPERTY(bool KlantPC MEMBER m_KlantPC)
    Q_PROPERTY(qint32 BtwTar1 MEMBER m_BtwTar1)
    Q_PROPERTY(qint32 BtwTar2 MEMBER m_BtwTar2)
    Q_PROPERTY(qint32 NbrDec MEMBER m_NbrDec)
    Q_PROPERTY(QString NbrDecFmt MEMBER m_NbrDecFmt)

public:
    /// An object with every property at its default: Dutch texts, no VAT rates.
    explicit clsqorGenLib(QObject *parent = nullptr);
    ~clsqorGenLib() override;

    /// Calls a method, or reads or writes a property, by name (any case).
    /// Arguments are converted to the declared types; by-reference arguments
    /// are written back into args. An unknown name raises RuntimeError 438, a
    /// wrong number of arguments 450, a missing required one 449, an argument
    /// that does not convert 13.
    QVariant Invoke(const QString &name, QVariantList &args);
    /// Invoke() for arguments the caller does not want back.
    QVariant Invoke(const QString &name, const QVariantList &args = {});
    /// The published type information: methods, properties, enumerations, records.
    static const qor::TypeLibrary &typeLibrary();

    // Language catalogue.
    /// The catalogue text with id ResOffsetCode (base id plus language offset), or
    /// the marker " [LLGenLib <id> ?] " when that language lacks it; a text is
    /// never borrowed from another language.
    Q_INVOKABLE QString LLGenLib(qint32 ResOffsetCode);

    // Text filters and case.
    /// The digits 0 to 9 of Ingave, in order; everything else is dropped.
    Q_INVOKABLE QVariant FilterNumeric(QVariant &Ingave);
    /// Text with accented letters replaced by plain ones (Æ to A, ß to ss), the
    /// apostrophe and the double quote by the acute accent; only the characters of
    /// OnlyThese when it is not empty.
    Q_INVOKABLE QVariant FilterAccenten(QVariant &Text,
        const QString &OnlyThese
        = qor::genLibDefault<QLatin1StringView>("FilterAccenten", "OnlyThese"));
    /// Plain letters only: accented letters unaccented (FilterAccent) or kept, and
    /// the characters of DoNotRemove kept.
    Q_INVOKABLE QString FilterText(const QString &Text,
        bool FilterAccent = qor::genLibDefault<bool>("FilterText", "FilterAccent"),
        const QString &DoNotRemove
        = qor::genLibDefault<QLatin1StringView>("FilterText", "DoNotRemove"));
    /// xText in lower case with a capital at the start of every word; xText is lowered.
    Q_INVOKABLE QString SCase(QString &xText);

    // Editing and amount helpers.
    /// Selects the whole text of an edit control (of a grid's cell editor with
    /// Flexgrid), or puts the caret after its last character (StartAtEnd).
    Q_INVOKABLE void SelEdit(QObject *Obj,
        bool StartAtEnd = qor::genLibDefault<bool>("SelEdit", "StartAtEnd"),
        bool Flexgrid = qor::genLibDefault<bool>("SelEdit", "Flexgrid"));
    /// What a field holds as a number under the regional settings: a Double, or
    /// the Integer 0 for Null, Empty, an empty text and anything not numeric.
    Q_INVOKABLE QVariant CGetal(
        const QVariant &Number = qor::genLibDefault("CGetal", "Number").toVariant());
    /// An amount with grouping and two decimals ("- 1.234,50" for a negative one
    /// under comma decimals), followed by " EUR" or a blank and the euro sign as
    /// AddSymbol asks.
    Q_INVOKABLE QString SetEuro(float Value,
        qorGenLib::OstSymbolType AddSymbol
        = qor::genLibDefault<qorGenLib::OstSymbolType>("SetEuro", "AddSymbol"));
    /// Types one character into whatever has the keyboard focus.
    Q_INVOKABLE void SendAKey(short KeyAscii);

    // Station flags.
    /// True on a customer station: a development station is recognised by a marker
    /// file in the system folder.
    Q_INVOKABLE bool GetKlantPC();

    // Identifier checks.
    // Each cleans the caller's variable, returns the number in its notation (""
    // when refused or blank) and, with MBox, reports a wrong number.
    /// A Belgian bank account: BankNr keeps its digits only; returns
    /// "000-0000000-00" or "" when the check digits are wrong.
    Q_INVOKABLE QString ControleerBankNr(
        QString &BankNr, bool MBox = qor::genLibDefault<bool>("ControleerBankNr", "MBox"));
    /// A VAT number: "0000.000.000" for a Belgian one (a deliberate "0" stands
    /// for a known absent number), the number as given for another land.
    /// LandCode is written back ("" becomes "BE"), so C++ gets its default
    /// through the overload below, which is not published.
    Q_INVOKABLE QString ControleerVAT(QString &VATnr, bool MBox, QString &LandCode);
    /// ControleerVAT() for a Belgian number.
    QString ControleerVAT(
        QString &VATnr, bool MBox = qor::genLibDefault<bool>("ControleerVAT", "MBox"));
    /// A national register number, "000000.000.00", with the check of births
    /// before and from 2000; a LandCode other than "BE" passes the number as it is.
    Q_INVOKABLE QString ControleerNatNr(QString &NatNr,
        bool MBox = qor::genLibDefault<bool>("ControleerNatNr", "MBox"),
        const QString &LandCode
        = qor::genLibDefault<QLatin1StringView>("ControleerNatNr", "LandCode"));
    /// An identity card number of twelve digits; check digits "97" are kept as
    /// "00". A refused number may still be accepted by the user as a foreign card.
    Q_INVOKABLE QString ControleerIdentNr(
        QString &IdentNr, bool MBox = qor::genLibDefault<bool>("ControleerIdentNr", "MBox"));
    /// Makes a structured payment reference "000/0000/00000" from the last ten
    /// digits of ReferentieNummer, which comes back as that number without leading
    /// zeros; more than ten digits are refused with a message.
    Q_INVOKABLE QString GetOGM(QString &ReferentieNummer);
    /// Checks a structured payment reference, "000/0000/00000" or "". A first
    /// part beyond 32 bits raises RuntimeError 6 to the caller.
    Q_INVOKABLE QString ControleerOGM(
        QString &OGM, bool MBox = qor::genLibDefault<bool>("ControleerOGM", "MBox"));
    // End of identifier checks.

    // Payments: IBAN, BIC, creditor reference and the payment QR code.
    /// Checks an IBAN of any country of the IBAN registry (for Belgium also the
    /// account's own check digits). IBAN becomes its electronic form ("BE71096123456769");
    /// returns the print form ("BE71 0961 2345 6769"), or "" with, when MBox, the
    /// message of a wrong IBAN. A blank IBAN is left as it is and returns "".
    Q_INVOKABLE QString ControleerIBAN(
        QString &IBAN, bool MBox = qor::genLibDefault<bool>("ControleerIBAN", "MBox"));
    /// A Belgian account in the notation before IBAN ("096-1234567-69" or its twelve
    /// digits) to its IBAN in print form; "" when the account is wrong.
    Q_INVOKABLE QString GetIBAN(const QString &BankNr);
    /// A Belgian IBAN to the notation before IBAN ("096-1234567-69"); "" for another
    /// country or a wrong IBAN.
    Q_INVOKABLE QString GetBBAN(const QString &IBAN);
    /// The BIC of a Belgian IBAN or account in the notation before IBAN, from the
    /// National Bank's list of bank codes; "" when the account is wrong or its bank
    /// has no BIC in the list.
    Q_INVOKABLE QString GetBIC(const QString &Account);
    /// Checks a BIC (8 or 11 characters, a country ISO 3166 assigns). BIC becomes its
    /// electronic form, which is returned; "" with, when MBox, the message of a wrong BIC.
    Q_INVOKABLE QString ControleerBIC(
        QString &BIC, bool MBox = qor::genLibDefault<bool>("ControleerBIC", "MBox"));
    /// The creditor reference of the creditor's own reference (1 to 21 letters and
    /// digits, blanks ignored) in print form ("RF85 2024 0017"); "" when it cannot be made.
    Q_INVOKABLE QString GetRF(const QString &Reference);
    /// Checks a creditor reference. RF becomes its electronic form; returns the print
    /// form, or "" with, when MBox, the message of a wrong reference.
    Q_INVOKABLE QString ControleerRF(
        QString &RF, bool MBox = qor::genLibDefault<bool>("ControleerRF", "MBox"));
    /// The text of the payment QR code of a SEPA credit transfer (EPC069-12). Reference
    /// is a creditor reference or a Belgian structured communication; a reference and
    /// a Text do not go together. "" when something is wrong (see docs/payments.md).
    Q_INVOKABLE QString GetEPCQR(const QString &Name, const QString &IBAN, double Amount,
        const QString &BIC = qor::genLibDefault<QLatin1StringView>("GetEPCQR", "BIC"),
        const QString &Reference = qor::genLibDefault<QLatin1StringView>("GetEPCQR", "Reference"),
        const QString &Text = qor::genLibDefault<QLatin1StringView>("GetEPCQR", "Text"));
    /// Saves the QR code of Payload as PNG or SVG, by the extension of File, with
    /// ModuleSize (1 to 20) pixels or units per module. False when it cannot be drawn
    /// or written; a file is written whole or not at all.
    Q_INVOKABLE bool SaveQRCode(const QString &Payload, const QString &File,
        qint32 ModuleSize = qor::genLibDefault<qint32>("SaveQRCode", "ModuleSize"));
    // End of payments.

    // Dialogs, scanner input and sound.
    // Message and input boxes in the language of Offset.
    /// The extended message box: returns 1 OK, 2 Cancel, 6 Yes or 7 No. Buttons
    /// takes the classic style values; -1 is the identity-number box.
    Q_INVOKABLE qint32 MsgBoxE(const QString &Prompt,
        qint32 Buttons = qor::genLibDefault<qint32>("MsgBoxE", "Buttons"),
        const QString &Title = qor::genLibDefault<QLatin1StringView>("MsgBoxE", "Title"));
    /// The extended input box: the trimmed text on OK, "-9999" when cancelled.
    /// A MaxLength of 0 or less means no limit.
    Q_INVOKABLE QString InputBoxE(const QString &Prompt, const QString &Title,
        const QString &DefaultValue
        = qor::genLibDefault<QLatin1StringView>("InputBoxE", "DefaultValue"),
        qint32 MaxLength = qor::genLibDefault<qint32>("InputBoxE", "MaxLength"));
    /// Scanner input through a field's key-press handler: a scan typed as
    /// "%[data]" is collected out of sight and checked against ScanFormat; the
    /// key code the host passes on is returned (0 swallows the key). ScanFormat
    /// is written back in upper case, so C++ gets its defaults through the
    /// overload below, which is not published.
    Q_INVOKABLE qint16 ScanBM(
        QObject *TextBox, qint16 KA, QString &ScanFormat, bool ReturnFieldOnly, bool MBox);
    /// ScanBM() without a format, reporting a wrong scan.
    qint16 ScanBM(QObject *TextBox, qint16 KA);
    /// Plays a wave file, once or looping, and returns at once; an empty name
    /// stops what plays. FileName and SoundDirectory are written back: the
    /// full path and the folder used.
    Q_INVOKABLE void PlaySound(QString &FileName, bool Continuous, QString &SoundDirectory);
    /// PlaySound() from the application's sound folder.
    void PlaySound(
        QString &FileName, bool Continuous = qor::genLibDefault<bool>("PlaySound", "Continuous"));
    /// Switches the dialogs' own sounds off (true) or on; PlaySound() always plays.
    Q_INVOKABLE void SetSound(bool SetSoundOFF);
    // End of dialogs, scanner input and sound.

    // Dates and times.
    // The checks clean the caller's variable and, with MBox, report a wrong entry.
    /// A typed date in the short date notation, or "". A missing AllowFuture
    /// counts as False: future dates are refused.
    Q_INVOKABLE QString ControleerDatum(QString &DT,
        bool AllowFuture = qor::genLibDefault<bool>("ControleerDatum", "AllowFuture"),
        bool MBox = qor::genLibDefault<bool>("ControleerDatum", "MBox"));
    /// A typed time ("830", "8h30") as hours, separator and minutes, or "".
    /// Hours beyond a Long raise RuntimeError 6 to the caller.
    Q_INVOKABLE QString ControleerUur(QString &Uur,
        bool MBox = qor::genLibDefault<bool>("ControleerUur", "MBox"),
        bool AllowMoreThan24Hours
        = qor::genLibDefault<bool>("ControleerUur", "AllowMoreThan24Hours"),
        bool ReturnHHMM = qor::genLibDefault<bool>("ControleerUur", "ReturnHHMM"));
    /// Uur as a query literal "#HH:mm#"; "" and a message when it is no time.
    Q_INVOKABLE QString GetTime(QString &Uur);
    /// The name of the weekday of XS in the language of Offset.
    Q_INVOKABLE QString GetWeekDag(QDateTime &XS);
    /// The first day of the quarter of Datum; the zero date and a message when Datum is no date.
    Q_INVOKABLE QDateTime GetQuarterStart(QString &Datum);
    /// The last day of the quarter of Datum; the zero date and a message when Datum is no date.
    Q_INVOKABLE QDateTime GetQuarterEnd(QString &Datum);
    /// Sets up a host date control: range, format, holidays and week titles.
    /// CountryCode is written back ("" becomes "BE"), so C++ gets its default
    /// through the overload below, which is not published.
    Q_INVOKABLE void SetDText(QObject *DText, QString &CountryCode,
        bool ValueToDay = qor::genLibDefault<bool>("SetDText", "ValueToDay"),
        bool MaxDateToDay = qor::genLibDefault<bool>("SetDText", "MaxDateToDay"));
    /// SetDText() for Belgium.
    void SetDText(QObject *DText);
    // End of dates and times.

    // Fixed-field records.
    // Fixed-field records of the given widths, with line number and checksum.
    /// One record of the fields of Data, cut or padded to arrFieldLength. A fault
    /// is reported (critical box) and Empty returned. arrFormat left out (or
    /// Empty) writes every field as text; C++ gets that through the overload
    /// below, which is not published.
    Q_INVOKABLE QVariant GetExportData(qint32 &LineNumber, QStringList &Data,
        QVariant &arrFieldLength, QVariant &arrFormat,
        bool AddChecksum = qor::genLibDefault<bool>("GetExportData", "AddChecksum"),
        const QVariant &Separator = qor::genLibDefault("GetExportData", "Separator").toVariant());
    /// GetExportData() with every field as text.
    QVariant GetExportData(qint32 &LineNumber, QStringList &Data, QVariant &arrFieldLength);
    /// The fields of a record as an array of String with one empty element behind
    /// the last; -4 for a wrong checksum or line number, -6 for a wrong delimiter
    /// or widths that are no array.
    Q_INVOKABLE QVariant GetImportData(const QString &InputRecord, QVariant &arrFieldLength,
        bool LineNumberIncluded = qor::genLibDefault<bool>("GetImportData", "LineNumberIncluded"),
        bool CheckSumIncluded = qor::genLibDefault<bool>("GetImportData", "CheckSumIncluded"));
    // End of fixed-field records.

    // Keystroke handlers, the calculator and VAT.
    // The handlers return the key code the host uses (0: consumed) and rewrite
    // KA where they refuse or translate a key. Optional arguments are written
    // back, so C++ gets their defaults through the overloads, which are not
    // published.
    /// The key filter of a free-text field. ToegelatenTekens holds literal
    /// characters and the classes C (digits), D (date), U (time), L (letters) and
    /// H (letters, upper-cased); it is upper-cased in the caller's variable.
    Q_INVOKABLE QVariant KeyPress(short &KA, QString &ToegelatenTekens);
    /// The key filter of an amount or quantity field: digits, one decimal
    /// separator, at most NbrDecimals decimals, "-" toggling the sign, "*" opening
    /// the calculator and "%" inserting its result.
    Q_INVOKABLE QVariant KeyGetal(
        QObject *TextBox, short &KA, QVariant &NbrDecimals, bool &NegNumber, bool &Flexgrid);
    /// KeyGetal() with the object's NbrDec decimals, positive numbers, an edit control.
    QVariant KeyGetal(QObject *TextBox, short &KA);
    /// KeyGetal() for positive numbers in an edit control.
    QVariant KeyGetal(QObject *TextBox, short &KA, QVariant &NbrDecimals);
    /// The key filter of a euro amount field: as KeyGetal() with two decimals
    /// unless EurDecimals says otherwise; "%" adds the VAT rate in force.
    Q_INVOKABLE QVariant KeyEuro(
        QObject *TextBox, short &KA, QVariant &EurDecimals, bool &NegNumber);
    /// KeyEuro() with two decimals, positive amounts.
    QVariant KeyEuro(QObject *TextBox, short &KA);
    /// Steps the date or number in a field one up or down within bounds and
    /// returns whether it changed. The direction is never written back, so it
    /// is taken by value. Bounds left out are filled in; a minimum left out
    /// beside a given maximum raises RuntimeError 13 when stepping a number down.
    Q_INVOKABLE bool KeySpin(
        qorGenLib::SpinUpDown UpDown, QObject *TxtBox, QVariant &MaxValue, QVariant &MinValue);
    /// KeySpin() within the default bounds.
    bool KeySpin(qorGenLib::SpinUpDown UpDown, QObject *TxtBox);
    /// Fills a combo box with "  0 %" and the VAT rates in use (BtwTar1, BtwTar2),
    /// each entry's item data its rate, and selects an entry by value or index.
    Q_INVOKABLE void LoadComboBTW(QObject *Cbo, qint32 &SetValue, qint32 &SetListIndex);
    /// LoadComboBTW() selecting the first entry.
    void LoadComboBTW(QObject *Cbo);
    /// Whether typed amounts include VAT: with Reset, forgets that a digit was
    /// typed and returns false; otherwise asks only when one was.
    Q_INVOKABLE bool ControleerBtwClick(bool &Reset);
    /// ControleerBtwClick() without reset.
    bool ControleerBtwClick();
    /// Shows the calculator with Value and returns the result register it leaves.
    Q_INVOKABLE double ShowCalculator(
        double Value = qor::genLibDefault<double>("ShowCalculator", "Value"));
    // End of keystroke handlers, the calculator and VAT.

    // Grids, lists and sorting.
    /// Clears a grid, gives it the house style and fits it, in whole rows, into
    /// its frame.
    Q_INVOKABLE void SetDBGridSize(QObject *DBGrid, QObject *Frame,
        bool FetchRowStyle = qor::genLibDefault<bool>("SetDBGridSize", "FetchRowStyle"));
    /// Defines one column of the grid set up last; the last visible column takes
    /// the width that is left.
    Q_INVOKABLE void SetDBGridCol(QObject *DBGrid, short ColIndex, const QString &DataField,
        const QString &Caption, qint32 Alignment, qint32 ColWidth,
        bool Visible = qor::genLibDefault<bool>("SetDBGridCol", "Visible"),
        const QString &NumberFormat
        = qor::genLibDefault<QLatin1StringView>("SetDBGridCol", "NumberFormat"),
        bool Merge = qor::genLibDefault<bool>("SetDBGridCol", "Merge"),
        bool FetchStyle = qor::genLibDefault<bool>("SetDBGridCol", "FetchStyle"),
        bool AllowColSizing = qor::genLibDefault<bool>("SetDBGridCol", "AllowColSizing"));
    /// Shows the sort direction of a column in its heading, toggled or forced
    /// ("ASC", "DESC"); a forced one leaves the sort clause in the grid's Tag.
    Q_INVOKABLE void SetDBGridIcon(QObject *DBGrid, short ColIndex,
        const QString &ForceState
        = qor::genLibDefault<QLatin1StringView>("SetDBGridIcon", "ForceState"),
        const QString &OrderColumn
        = qor::genLibDefault<QLatin1StringView>("SetDBGridIcon", "OrderColumn"));
    /// Gives a column a translation list (yes/no, months, ...) in the language of
    /// Offset; a type outside the list raises RuntimeError 9.
    Q_INVOKABLE void SetDBGridTranslation(QObject *grd, qorGenLib::TranslateEnum translateType,
        short col,
        qint32 CrossValue = qor::genLibDefault<qint32>("SetDBGridTranslation", "CrossValue"),
        bool TypeADO = qor::genLibDefault<bool>("SetDBGridTranslation", "TypeADO"));
    /// Selects the first entry whose item data is ItemData or whose text is Text;
    /// without a match NotFoundSetIndex decides. Returns whether one matched.
    Q_INVOKABLE bool SetListIndex(QObject *ListComboCTL,
        qint32 ItemData = qor::genLibDefault<qint32>("SetListIndex", "ItemData"),
        const QString &Text = qor::genLibDefault<QLatin1StringView>("SetListIndex", "Text"),
        qorGenLib::NotFoundIndexType NotFoundSetIndex
        = qor::genLibDefault<qorGenLib::NotFoundIndexType>("SetListIndex", "NotFoundSetIndex"));
    /// Whether what a form's controls show changed since the last call with
    /// Reset, which keeps a fingerprint in the form's Tag.
    Q_INVOKABLE bool DataChange(
        QObject *FRM, bool Reset = qor::genLibDefault<bool>("DataChange", "Reset"));
    /// Sorts an array in place by number, text or length, dropping its empty
    /// elements to the end; a companion array follows its partners. Not an
    /// array: RuntimeError 13; nothing but empty elements: 9. C++ leaves out
    /// the companion through the overload below, which is not published.
    Q_INVOKABLE void SortArray(
        QVariant &ArrayName, qorGenLib::OstSortOrder SortOrder, QVariant &RefArrayName);
    /// SortArray() without a companion.
    void SortArray(QVariant &ArrayName,
        qorGenLib::OstSortOrder SortOrder
        = qor::genLibDefault<qorGenLib::OstSortOrder>("SortArray", "SortOrder"));
    // End of grids, lists and sorting.

    // Desktop and system services.
    // Processes, files, paths, the settings file, start-up and station flags.
    /// Runs a command line and waits until it ends: 0, or the error number when
    /// it cannot start (reported on the system box).
    Q_INVOKABLE qint32 ShellAndWait(const QString &ProgrammaNaam, qint32 window_style);
    /// The names of the files of a folder that match a wildcard, "" for a missing folder.
    Q_INVOKABLE QString GetFileList(const QString &sPad, const QString &sWildCard,
        qint32 lAttribute = qor::genLibDefault<qint32>("GetFileList", "lAttribute"));
    /// A folder path without one trailing backslash.
    Q_INVOKABLE QString PathRS(const QString &Path);
    /// The shared system folder, or "" when there is none.
    Q_INVOKABLE QString GetSystemDir();
    /// Asks the system to switch the machine off.
    Q_INVOKABLE void ShutDownPC();
    /// Sets a key of the settings file (qorSoft.ini in the system folder unless
    /// INIFile names another). INIFile is written back ("" becomes the default
    /// file); C++ gets its default through the overloads below, which are not
    /// published.
    Q_INVOKABLE void WriteIni(
        const QString &Header, const QString &Section, const QString &Value, QString &INIFile);
    /// WriteIni() in the default settings file.
    void WriteIni(const QString &Header, const QString &Section, const QString &Value);
    /// The value of a key of the settings file, at most 254 characters; an empty
    /// result is reported with MBox.
    Q_INVOKABLE QString GetIni(const QString &Header, const QString &Section, QString &INIFile,
        bool MBox = qor::genLibDefault<bool>("GetIni", "MBox"));
    /// GetIni() from the default settings file, reporting an empty result.
    QString GetIni(const QString &Header, const QString &Section);
    /// Called once at start: keeps the application object and refuses a second
    /// copy of the application. False when the host must end.
    Q_INVOKABLE bool StartUp(QObject *Application,
        bool OtherDLL = qor::genLibDefault<bool>("StartUp", "OtherDLL"),
        bool MultiUse = qor::genLibDefault<bool>("StartUp", "MultiUse"));
    /// On a development station: act as a customer station or not and, when not,
    /// use another language; on a customer station nothing changes.
    Q_INVOKABLE void SetDebug(bool DebugKlantPC, qint32 DebugOffset);
    /// Four digits that change every clock hour.
    Q_INVOKABLE QString GetTimerCode();
    // Screen, window and unit helpers.
    /// The desktop beside the taskbar, in twips.
    Q_INVOKABLE qorGenLib::WindowSize GetWorkArea();
    /// Dresses the host's main menu form in the house layout and colours.
    Q_INVOKABLE void SetDeskTop(QObject *FormMenu);
    /// The mouse position in twips along "X" or "Y", on the screen or from the
    /// edge of RelativeObject.
    Q_INVOKABLE qint32 GetMousePointerPos(const QString &XY,
        QObject *RelativeObject
        = qor::genLibDefault<QObject *>("GetMousePointerPos", "RelativeObject"));
    /// Keeps a form above all other windows; returns Empty.
    Q_INVOKABLE QVariant FormOnTop(QObject *FRM);
    /// Twips to millimetres; RuntimeError 6 when the result overflows a Single.
    Q_INVOKABLE float CMm(float Twips);
    /// Millimetres to twips; RuntimeError 6 when the result overflows a Single.
    Q_INVOKABLE float CTwips(float MilliMeters);
    // End of desktop and system services.

private:
    // What the object carries from call to call besides its properties.
    std::unique_ptr<clsqorGenLibPrivate> d;

    QString m_msg;
    QString m_SQL;
    QVariant m_FlowCTL;
    bool m_UserCancel = false;
    bool m_FrmAct = false;
    bool m_AnEd = false;
    QVariant m_HoldSysData;
    qint32 m_HoldErr = 0;
    QString m_HoldErrDes;
    QString m_vbCr2;
    QString m_vbSplit;
    bool m_vbRequery = false;
    bool m_vbSee = false;
    qint32 m_Offset = 0;
    QString m_FieldExt;
    bool m_DataCH = false;
    bool m_KlantPC = false;
    qint32 m_BtwTar1 = 0;
    qint32 m_BtwTar2 = 0;
    qint32 m_NbrDec = 0;
    QString m_NbrDecFmt;
};
