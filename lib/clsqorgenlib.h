#pragma once

#include "qorgenlib_export.h"

#include "grid/gridcolumnwidths.h"
#include "lib/frame/qorenums.h"
#include "lib/frame/windowsize.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantList>

namespace qor {
class TypeLibrary;
}

// The library object a host creates once and keeps. Its properties are shared
// storage for the host's forms plus the language and VAT settings the library
// reads; its methods forward to the subsystems. Every method and property can
// also be reached by name through Invoke.
//
// Optional arguments are published as class info: one JSON object per method,
// parameter name to default value (null when the argument has no default).
class QORGENLIB_EXPORT clsqorGenLib : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("FilterAccenten", "{\"OnlyThese\": \"\"}")
    Q_CLASSINFO("FilterText", "{\"FilterAccent\": false, \"DoNotRemove\": \"\"}")
    Q_CLASSINFO("CGetal", "{\"Number\": 0}")
    Q_CLASSINFO("SetEuro", "{\"AddSymbol\": 0}")
    Q_CLASSINFO("SelEdit", "{\"StartAtEnd\": false, \"Flexgrid\": false}")

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
    explicit clsqorGenLib(QObject *parent = nullptr);
    ~clsqorGenLib() override;

    // Late binding: calls a method or property by name (see qor::LateBinding).
    QVariant Invoke(const QString &name, QVariantList &args);
    QVariant Invoke(const QString &name, const QVariantList &args = {});
    // The published type information: methods, properties, enumerations, records.
    static const qor::TypeLibrary &typeLibrary();

    // Language catalogue.
    Q_INVOKABLE QString LLGenLib(qint32 ResOffsetCode);

    // Text filters and case.
    Q_INVOKABLE QVariant FilterNumeric(QVariant &Ingave);
    Q_INVOKABLE QVariant FilterAccenten(QVariant &Text, const QString &OnlyThese = QString());
    Q_INVOKABLE QString FilterText(
        const QString &Text, bool FilterAccent = false, const QString &DoNotRemove = QString());
    Q_INVOKABLE QString SCase(QString &xText);

    // Editing and amount helpers.
    Q_INVOKABLE void SelEdit(QObject *Obj, bool StartAtEnd = false, bool Flexgrid = false);
    Q_INVOKABLE QVariant CGetal(const QVariant &Number = QVariant::fromValue<short>(0));
    Q_INVOKABLE QString SetEuro(
        float Value, qorGenLib::OstSymbolType AddSymbol = qorGenLib::vbSymbolNone);
    Q_INVOKABLE void SendAKey(short KeyAscii);

    // Station flags.
    Q_INVOKABLE bool GetKlantPC();

    // Identifier checks.
    // Each cleans the caller's variable and, with MBox, reports a wrong number.
    Q_CLASSINFO("ControleerBankNr", "{\"MBox\": true}")
    Q_CLASSINFO("ControleerVAT", "{\"MBox\": false, \"LandCode\": \"\"}")
    Q_CLASSINFO("ControleerNatNr", "{\"MBox\": true, \"LandCode\": \"\"}")
    Q_CLASSINFO("ControleerIdentNr", "{\"MBox\": true}")
    Q_CLASSINFO("ControleerOGM", "{\"MBox\": true}")
    Q_INVOKABLE QString ControleerBankNr(QString &BankNr, bool MBox = true);
    // LandCode is written back ("" becomes "BE"), so C++ gets its default
    // through the overload below, which is not published.
    Q_INVOKABLE QString ControleerVAT(QString &VATnr, bool MBox, QString &LandCode);
    QString ControleerVAT(QString &VATnr, bool MBox = false);
    Q_INVOKABLE QString ControleerNatNr(
        QString &NatNr, bool MBox = true, const QString &LandCode = QString());
    Q_INVOKABLE QString ControleerIdentNr(QString &IdentNr, bool MBox = true);
    Q_INVOKABLE QString GetOGM(QString &ReferentieNummer);
    // A first part beyond 32 bits raises RuntimeError 6 to the caller.
    Q_INVOKABLE QString ControleerOGM(QString &OGM, bool MBox = true);
    // End of identifier checks.

    // Payments: IBAN, BIC, creditor reference and the payment QR code.
    Q_CLASSINFO("ControleerIBAN", "{\"MBox\": true}")
    Q_CLASSINFO("ControleerBIC", "{\"MBox\": true}")
    Q_CLASSINFO("ControleerRF", "{\"MBox\": true}")
    Q_CLASSINFO("GetEPCQR", "{\"BIC\": \"\", \"Reference\": \"\", \"Text\": \"\"}")
    Q_CLASSINFO("SaveQRCode", "{\"ModuleSize\": 4}")
    /// Checks an IBAN of any country of the IBAN registry (for Belgium also the
    /// account's own check digits). IBAN becomes its electronic form ("BE71096123456769");
    /// returns the print form ("BE71 0961 2345 6769"), or "" with, when MBox, the
    /// message of a wrong IBAN. A blank IBAN is left as it is and returns "".
    Q_INVOKABLE QString ControleerIBAN(QString &IBAN, bool MBox = true);
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
    Q_INVOKABLE QString ControleerBIC(QString &BIC, bool MBox = true);
    /// The creditor reference of the creditor's own reference (1 to 21 letters and
    /// digits, blanks ignored) in print form ("RF85 2024 0017"); "" when it cannot be made.
    Q_INVOKABLE QString GetRF(const QString &Reference);
    /// Checks a creditor reference. RF becomes its electronic form; returns the print
    /// form, or "" with, when MBox, the message of a wrong reference.
    Q_INVOKABLE QString ControleerRF(QString &RF, bool MBox = true);
    /// The text of the payment QR code of a SEPA credit transfer (EPC069-12). Reference
    /// is a creditor reference or a Belgian structured communication; a reference and
    /// a Text do not go together. "" when something is wrong (see docs/payments.md).
    Q_INVOKABLE QString GetEPCQR(const QString &Name, const QString &IBAN, double Amount,
        const QString &BIC = QString(), const QString &Reference = QString(),
        const QString &Text = QString());
    /// Saves the QR code of Payload as PNG or SVG, by the extension of File, with
    /// ModuleSize (1 to 20) pixels or units per module. False when it cannot be drawn
    /// or written; a file is written whole or not at all.
    Q_INVOKABLE bool SaveQRCode(
        const QString &Payload, const QString &File, qint32 ModuleSize = 4);
    // End of payments.

    // Dialogs, scanner input and sound.
    // MsgBoxE returns 1, 2, 6 or 7; Buttons -1 is the identity-number box.
    Q_CLASSINFO("MsgBoxE", "{\"Buttons\": 0, \"Title\": \"\"}")
    Q_CLASSINFO("InputBoxE", "{\"DefaultValue\": \"\", \"MaxLength\": 250}")
    Q_CLASSINFO("ScanBM", "{\"ScanFormat\": \"\", \"ReturnFieldOnly\": false, \"MBox\": true}")
    Q_CLASSINFO("PlaySound", "{\"Continuous\": false, \"SoundDirectory\": \"\"}")
    Q_INVOKABLE qint32 MsgBoxE(
        const QString &Prompt, qint32 Buttons = 0, const QString &Title = QString());
    // "-9999" when cancelled.
    Q_INVOKABLE QString InputBoxE(const QString &Prompt, const QString &Title,
        const QString &DefaultValue = QString(), qint32 MaxLength = 250);
    // ScanFormat is written back in upper case, so C++ gets its defaults
    // through the overload below, which is not published.
    Q_INVOKABLE qint16 ScanBM(
        QObject *TextBox, qint16 KA, QString &ScanFormat, bool ReturnFieldOnly, bool MBox);
    qint16 ScanBM(QObject *TextBox, qint16 KA);
    // FileName and SoundDirectory are written back: the full path and the folder used.
    Q_INVOKABLE void PlaySound(QString &FileName, bool Continuous, QString &SoundDirectory);
    void PlaySound(QString &FileName, bool Continuous = false);
    Q_INVOKABLE void SetSound(bool SetSoundOFF);
    // End of dialogs, scanner input and sound.

    // Dates and times.
    // The checks clean the caller's variable and, with MBox, report a wrong entry.
    Q_CLASSINFO("ControleerDatum", "{\"AllowFuture\": null, \"MBox\": true}")
    Q_CLASSINFO("ControleerUur",
        "{\"MBox\": true, \"AllowMoreThan24Hours\": false, \"ReturnHHMM\": true}")
    Q_CLASSINFO("SetDText",
        "{\"CountryCode\": \"BE\", \"ValueToDay\": false, \"MaxDateToDay\": true}")
    // A missing AllowFuture counts as False: future dates are refused.
    Q_INVOKABLE QString ControleerDatum(QString &DT, bool AllowFuture = false, bool MBox = true);
    // Hours beyond a Long raise RuntimeError 6 to the caller.
    Q_INVOKABLE QString ControleerUur(QString &Uur, bool MBox = true,
        bool AllowMoreThan24Hours = false, bool ReturnHHMM = true);
    Q_INVOKABLE QString GetTime(QString &Uur);
    Q_INVOKABLE QString GetWeekDag(QDateTime &XS);
    Q_INVOKABLE QDateTime GetQuarterStart(QString &Datum);
    Q_INVOKABLE QDateTime GetQuarterEnd(QString &Datum);
    // CountryCode is written back ("" becomes "BE"), so C++ gets its default
    // through the overload below, which is not published.
    Q_INVOKABLE void SetDText(
        QObject *DText, QString &CountryCode, bool ValueToDay = false, bool MaxDateToDay = true);
    void SetDText(QObject *DText);
    // End of dates and times.

    // Fixed-field records.
    // arrFormat left out (or Empty) writes every field as text; C++ gets that
    // through the overload below, which is not published.
    Q_CLASSINFO("GetExportData", "{\"arrFormat\": null, \"AddChecksum\": true, \"Separator\": \" \"}")
    Q_CLASSINFO("GetImportData", "{\"LineNumberIncluded\": true, \"CheckSumIncluded\": true}")
    Q_INVOKABLE QVariant GetExportData(qint32 &LineNumber, QStringList &Data,
        QVariant &arrFieldLength, QVariant &arrFormat, bool AddChecksum = true,
        const QVariant &Separator = QStringLiteral(" "));
    QVariant GetExportData(qint32 &LineNumber, QStringList &Data, QVariant &arrFieldLength);
    Q_INVOKABLE QVariant GetImportData(const QString &InputRecord, QVariant &arrFieldLength,
        bool LineNumberIncluded = true, bool CheckSumIncluded = true);
    // End of fixed-field records.

    // Keystroke handlers, the calculator and VAT.
    // The handlers return the key code the host uses (0: consumed) and rewrite
    // KA where they refuse or translate a key. Optional arguments are written
    // back, so C++ gets their defaults through the overloads, which are not published.
    Q_CLASSINFO("KeyGetal", "{\"NbrDecimals\": null, \"NegNumber\": false, \"Flexgrid\": false}")
    Q_CLASSINFO("KeyEuro", "{\"EurDecimals\": 2, \"NegNumber\": false}")
    Q_CLASSINFO("KeySpin", "{\"MaxValue\": null, \"MinValue\": null}")
    Q_CLASSINFO("LoadComboBTW", "{\"SetValue\": 0, \"SetListIndex\": 0}")
    Q_CLASSINFO("ControleerBtwClick", "{\"Reset\": false}")
    Q_CLASSINFO("ShowCalculator", "{\"Value\": 0}")
    Q_INVOKABLE QVariant KeyPress(short &KA, QString &ToegelatenTekens);
    Q_INVOKABLE QVariant KeyGetal(
        QObject *TextBox, short &KA, QVariant &NbrDecimals, bool &NegNumber, bool &Flexgrid);
    QVariant KeyGetal(QObject *TextBox, short &KA);
    QVariant KeyGetal(QObject *TextBox, short &KA, QVariant &NbrDecimals);
    Q_INVOKABLE QVariant KeyEuro(
        QObject *TextBox, short &KA, QVariant &EurDecimals, bool &NegNumber);
    QVariant KeyEuro(QObject *TextBox, short &KA);
    // The direction is never written back, so it is taken by value. Bounds
    // left out are filled in; a minimum left out beside a given maximum
    // raises RuntimeError 13 when stepping a number down.
    Q_INVOKABLE bool KeySpin(
        qorGenLib::SpinUpDown UpDown, QObject *TxtBox, QVariant &MaxValue, QVariant &MinValue);
    bool KeySpin(qorGenLib::SpinUpDown UpDown, QObject *TxtBox);
    Q_INVOKABLE void LoadComboBTW(QObject *Cbo, qint32 &SetValue, qint32 &SetListIndex);
    void LoadComboBTW(QObject *Cbo);
    Q_INVOKABLE bool ControleerBtwClick(bool &Reset);
    bool ControleerBtwClick();
    // Shows the calculator with Value and returns the result register it leaves.
    Q_INVOKABLE double ShowCalculator(double Value = 0);
    // End of keystroke handlers, the calculator and VAT.

    // Grids, lists and sorting.
    Q_CLASSINFO("SetDBGridSize", "{\"FetchRowStyle\": false}")
    Q_CLASSINFO("SetDBGridCol",
        "{\"Visible\": true, \"NumberFormat\": \"\", \"Merge\": false, \"FetchStyle\": false, "
        "\"AllowColSizing\": false}")
    Q_CLASSINFO("SetDBGridIcon", "{\"ForceState\": \"\", \"OrderColumn\": \"\"}")
    Q_CLASSINFO("SetDBGridTranslation", "{\"CrossValue\": -1, \"TypeADO\": false}")
    Q_CLASSINFO("SetListIndex", "{\"ItemData\": -9999, \"Text\": \"\", \"NotFoundSetIndex\": -1}")
    Q_CLASSINFO("DataChange", "{\"Reset\": false}")
    Q_CLASSINFO("SortArray", "{\"SortOrder\": 3, \"RefArrayName\": null}")
    Q_INVOKABLE void SetDBGridSize(QObject *DBGrid, QObject *Frame, bool FetchRowStyle = false);
    Q_INVOKABLE void SetDBGridCol(QObject *DBGrid, short ColIndex, const QString &DataField,
        const QString &Caption, qint32 Alignment, qint32 ColWidth, bool Visible = true,
        const QString &NumberFormat = QString(), bool Merge = false, bool FetchStyle = false,
        bool AllowColSizing = false);
    Q_INVOKABLE void SetDBGridIcon(QObject *DBGrid, short ColIndex,
        const QString &ForceState = QString(), const QString &OrderColumn = QString());
    Q_INVOKABLE void SetDBGridTranslation(QObject *grd, qorGenLib::TranslateEnum translateType,
        short col, qint32 CrossValue = -1, bool TypeADO = false);
    Q_INVOKABLE bool SetListIndex(QObject *ListComboCTL, qint32 ItemData = -9999,
        const QString &Text = QString(),
        qorGenLib::NotFoundIndexType NotFoundSetIndex = qorGenLib::SetListIndexMinusOne);
    Q_INVOKABLE bool DataChange(QObject *FRM, bool Reset = false);
    // Both arrays are sorted in place; C++ leaves out the companion through the
    // overload below, which is not published.
    Q_INVOKABLE void SortArray(
        QVariant &ArrayName, qorGenLib::OstSortOrder SortOrder, QVariant &RefArrayName);
    void SortArray(QVariant &ArrayName, qorGenLib::OstSortOrder SortOrder = qorGenLib::soAlphabetic);

private:
    // The column widths of the grid being set up, carried from call to call.
    qor::GridColumnWidths m_gridWidths;

public:
    // End of grids, lists and sorting.

    // Desktop and system services.
    // Processes, files, paths, the settings file, start-up and station flags.
    Q_CLASSINFO("GetFileList", "{\"lAttribute\": 0}")
    Q_CLASSINFO("WriteIni", "{\"INIFile\": \"\"}")
    Q_CLASSINFO("GetIni", "{\"INIFile\": \"\", \"MBox\": true}")
    Q_CLASSINFO("StartUp", "{\"OtherDLL\": false, \"MultiUse\": false}")
    Q_CLASSINFO("GetMousePointerPos", "{\"RelativeObject\": null}")
    Q_INVOKABLE qint32 ShellAndWait(const QString &ProgrammaNaam, qint32 window_style);
    Q_INVOKABLE QString GetFileList(
        const QString &sPad, const QString &sWildCard, qint32 lAttribute = 0);
    Q_INVOKABLE QString PathRS(const QString &Path);
    Q_INVOKABLE QString GetSystemDir();
    Q_INVOKABLE void ShutDownPC();
    // INIFile is written back ("" becomes the default file); C++ gets its
    // default through the overloads below, which are not published.
    Q_INVOKABLE void WriteIni(
        const QString &Header, const QString &Section, const QString &Value, QString &INIFile);
    void WriteIni(const QString &Header, const QString &Section, const QString &Value);
    Q_INVOKABLE QString GetIni(
        const QString &Header, const QString &Section, QString &INIFile, bool MBox = true);
    QString GetIni(const QString &Header, const QString &Section);
    Q_INVOKABLE bool StartUp(QObject *Application, bool OtherDLL = false, bool MultiUse = false);
    Q_INVOKABLE void SetDebug(bool DebugKlantPC, qint32 DebugOffset);
    Q_INVOKABLE QString GetTimerCode();
    // Screen, window and unit helpers.
    Q_INVOKABLE qorGenLib::WindowSize GetWorkArea();
    Q_INVOKABLE void SetDeskTop(QObject *FormMenu);
    Q_INVOKABLE qint32 GetMousePointerPos(const QString &XY, QObject *RelativeObject = nullptr);
    Q_INVOKABLE QVariant FormOnTop(QObject *FRM);
    Q_INVOKABLE float CMm(float Twips);
    Q_INVOKABLE float CTwips(float MilliMeters);
    // End of desktop and system services.

private:
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
