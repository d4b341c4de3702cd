#include "lib/clsqorgenlib.h"
#include "lib/clsqorgenlibprivate.h"

#include "calculator/showcalculator.h"
#include "calculator/vatrates.h"
#include "datetime/datetimechecks.h"
#include "dialogs/boxes.h"
#include "dialogs/sound.h"
#include "grid/gridsetup.h"
#include "grid/listselection.h"
#include "grid/sortarray.h"
#include "grid/translationtables.h"
#include "input/amountkeys.h"
#include "input/amounts.h"
#include "input/editing.h"
#include "input/keypress.h"
#include "input/keyspin.h"
#include "input/scanbm.h"
#include "input/textfilters.h"
#include "interchange/recordmethods.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/modgenlib.h"
#include "lib/frame/paths.h"
#include "lib/frame/windowsize.h"
#include "lib/latebinding.h"
#include "lib/typelibrary.h"
#include "payments/epcpayload.h"
#include "payments/paymentmethods.h"
#include "payments/qrcode.h"
#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/variant.h"
#include "system/desktop.h"
#include "system/processes.h"
#include "system/screenhelpers.h"
#include "system/settingsfile.h"
#include "system/startup.h"
#include "system/stationflags.h"
#include "validate/identifierchecks.h"

using namespace qor;

namespace {

RegionalSettings regional()
{
    return Clock::current().regionalSettings();
}

} // namespace

clsqorGenLib::clsqorGenLib(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<clsqorGenLibPrivate>())
{
    // Construction order is part of the contract: the station flag comes last.
    m_vbSplit = QString(2, QChar(0x00AD));
    m_vbCr2 = QString(2, QChar(13));
    m_vbRequery = true;
    m_Offset = 0;
    m_FieldExt = QStringLiteral("NL");
    m_NbrDec = 0;
    m_BtwTar1 = 0;
    m_BtwTar2 = 0;
    modGenLib().calculatorFlag = false;
    modGenLib().calculatorMode = 0;
    m_KlantPC = GetKlantPC();
}

clsqorGenLib::~clsqorGenLib() = default;

const TypeLibrary &clsqorGenLib::typeLibrary()
{
    static const TypeLibrary library(&clsqorGenLib::staticMetaObject, clsqorGenLibDefaults,
        { &qorGenLib::staticMetaObject }, { &qorGenLib::WindowSize::staticMetaObject });
    return library;
}

QVariant clsqorGenLib::Invoke(const QString &name, QVariantList &args)
{
    return LateBinding(this, typeLibrary()).invoke(name, args);
}

QVariant clsqorGenLib::Invoke(const QString &name, const QVariantList &args)
{
    QVariantList copy = args;
    return Invoke(name, copy);
}

QString clsqorGenLib::LLGenLib(qint32 ResOffsetCode)
{
    return Catalogue::llGenLib(ResOffsetCode);
}

QVariant clsqorGenLib::FilterNumeric(QVariant &Ingave)
{
    Ingave = toText(Ingave, regional());
    return filterNumeric(Ingave.toString());
}

QVariant clsqorGenLib::FilterAccenten(QVariant &Text, const QString &OnlyThese)
{
    Text = toText(Text, regional());
    return filterAccenten(Text.toString(), OnlyThese);
}

QString clsqorGenLib::FilterText(const QString &Text, bool FilterAccent, const QString &DoNotRemove)
{
    return filterText(Text, FilterAccent, DoNotRemove);
}

QString clsqorGenLib::SCase(QString &xText)
{
    xText = lowerCase(xText);
    return sCase(xText);
}

void clsqorGenLib::SelEdit(QObject *Obj, bool StartAtEnd, bool Flexgrid)
{
    selEdit(Obj, StartAtEnd, Flexgrid);
}

QVariant clsqorGenLib::CGetal(const QVariant &Number)
{
    return cGetal(Number, regional());
}

QString clsqorGenLib::SetEuro(float Value, qorGenLib::OstSymbolType AddSymbol)
{
    return setEuro(Value, AddSymbol, regional());
}

void clsqorGenLib::SendAKey(short KeyAscii)
{
    sendAKey(KeyAscii);
}

bool clsqorGenLib::GetKlantPC()
{
    return getKlantPC();
}

// Identifier checks

QString clsqorGenLib::ControleerBankNr(QString &BankNr, bool MBox)
{
    return controleerBankNr(BankNr, MBox, m_Offset);
}

QString clsqorGenLib::ControleerVAT(QString &VATnr, bool MBox, QString &LandCode)
{
    return controleerVAT(VATnr, MBox, LandCode, m_Offset);
}

QString clsqorGenLib::ControleerVAT(QString &VATnr, bool MBox)
{
    QString landCode = genLibDefault<QLatin1StringView>("ControleerVAT", "LandCode");
    return ControleerVAT(VATnr, MBox, landCode);
}

QString clsqorGenLib::ControleerNatNr(QString &NatNr, bool MBox, const QString &LandCode)
{
    return controleerNatNr(NatNr, MBox, LandCode, m_Offset);
}

QString clsqorGenLib::ControleerIdentNr(QString &IdentNr, bool MBox)
{
    return controleerIdentNr(IdentNr, MBox, m_Offset);
}

QString clsqorGenLib::GetOGM(QString &ReferentieNummer)
{
    return getOGM(ReferentieNummer, m_vbCr2, m_Offset);
}

QString clsqorGenLib::ControleerOGM(QString &OGM, bool MBox)
{
    return controleerOGM(OGM, MBox, m_Offset);
}

// Payments

QString clsqorGenLib::ControleerIBAN(QString &IBAN, bool MBox)
{
    return controleerIBAN(IBAN, MBox, m_Offset);
}

QString clsqorGenLib::GetIBAN(const QString &BankNr)
{
    return getIBAN(BankNr);
}

QString clsqorGenLib::GetBBAN(const QString &IBAN)
{
    return getBBAN(IBAN);
}

QString clsqorGenLib::GetBIC(const QString &Account)
{
    return getBIC(Account);
}

QString clsqorGenLib::ControleerBIC(QString &BIC, bool MBox)
{
    return controleerBIC(BIC, MBox, m_Offset);
}

QString clsqorGenLib::GetRF(const QString &Reference)
{
    return getRF(Reference);
}

QString clsqorGenLib::ControleerRF(QString &RF, bool MBox)
{
    return controleerRF(RF, MBox, m_Offset);
}

QString clsqorGenLib::GetEPCQR(const QString &Name, const QString &IBAN, double Amount,
    const QString &BIC, const QString &Reference, const QString &Text)
{
    return epcPayload({ Name, IBAN, Amount, BIC, Reference, Text });
}

bool clsqorGenLib::SaveQRCode(const QString &Payload, const QString &File, qint32 ModuleSize)
{
    return saveQrCode(Payload, File, ModuleSize);
}

// End of identifier checks

// Dialogs, scanner input and sound

qint32 clsqorGenLib::MsgBoxE(const QString &Prompt, qint32 Buttons, const QString &Title)
{
    return msgBoxE(Prompt, Buttons, Title, m_Offset);
}

QString clsqorGenLib::InputBoxE(
    const QString &Prompt, const QString &Title, const QString &DefaultValue, qint32 MaxLength)
{
    return inputBoxE(Prompt, Title, DefaultValue, MaxLength, m_Offset);
}

qint16 clsqorGenLib::ScanBM(
    QObject *TextBox, qint16 KA, QString &ScanFormat, bool ReturnFieldOnly, bool MBox)
{
    return scanBM(TextBox, KA, ScanFormat, ReturnFieldOnly, MBox, m_Offset);
}

qint16 clsqorGenLib::ScanBM(QObject *TextBox, qint16 KA)
{
    QString scanFormat = genLibDefault<QLatin1StringView>("ScanBM", "ScanFormat");
    return ScanBM(TextBox, KA, scanFormat, genLibDefault<bool>("ScanBM", "ReturnFieldOnly"),
        genLibDefault<bool>("ScanBM", "MBox"));
}

void clsqorGenLib::PlaySound(QString &FileName, bool Continuous, QString &SoundDirectory)
{
    playSound(FileName, Continuous, SoundDirectory, m_Offset);
}

void clsqorGenLib::PlaySound(QString &FileName, bool Continuous)
{
    QString soundDirectory = genLibDefault<QLatin1StringView>("PlaySound", "SoundDirectory");
    PlaySound(FileName, Continuous, soundDirectory);
}

void clsqorGenLib::SetSound(bool SetSoundOFF)
{
    setSound(SetSoundOFF);
}

// End of dialogs, scanner input and sound

// Dates and times

QString clsqorGenLib::ControleerDatum(QString &DT, bool AllowFuture, bool MBox)
{
    return controleerDatum(DT, AllowFuture, MBox, m_Offset);
}

QString clsqorGenLib::ControleerUur(
    QString &Uur, bool MBox, bool AllowMoreThan24Hours, bool ReturnHHMM)
{
    return controleerUur(Uur, MBox, AllowMoreThan24Hours, ReturnHHMM, m_Offset);
}

QString clsqorGenLib::GetTime(QString &Uur)
{
    return getTime(Uur, m_Offset);
}

QString clsqorGenLib::GetWeekDag(QDateTime &XS)
{
    return getWeekDag(XS, m_Offset);
}

QDateTime clsqorGenLib::GetQuarterStart(QString &Datum)
{
    return getQuarterStart(Datum, m_Offset);
}

QDateTime clsqorGenLib::GetQuarterEnd(QString &Datum)
{
    return getQuarterEnd(Datum, m_Offset);
}

void clsqorGenLib::SetDText(
    QObject *DText, QString &CountryCode, bool ValueToDay, bool MaxDateToDay)
{
    setDText(DText, CountryCode, ValueToDay, MaxDateToDay, m_Offset);
}

void clsqorGenLib::SetDText(QObject *DText)
{
    QString countryCode = genLibDefault<QLatin1StringView>("SetDText", "CountryCode");
    SetDText(DText, countryCode);
}

// End of dates and times

// Fixed-field records

QVariant clsqorGenLib::GetExportData(qint32 &LineNumber, QStringList &Data,
    QVariant &arrFieldLength, QVariant &arrFormat, bool AddChecksum, const QVariant &Separator)
{
    return getExportData(LineNumber, Data, arrFieldLength,
        isLeftOut(arrFormat) ? nullptr : &arrFormat, AddChecksum, Separator, m_vbCr2, m_Offset);
}

QVariant clsqorGenLib::GetExportData(
    qint32 &LineNumber, QStringList &Data, QVariant &arrFieldLength)
{
    QVariant noFormats = genLibDefault("GetExportData", "arrFormat").toVariant();
    return GetExportData(LineNumber, Data, arrFieldLength, noFormats);
}

QVariant clsqorGenLib::GetImportData(const QString &InputRecord, QVariant &arrFieldLength,
    bool LineNumberIncluded, bool CheckSumIncluded)
{
    return getImportData(
        InputRecord, arrFieldLength, LineNumberIncluded, CheckSumIncluded, m_Offset);
}

// End of fixed-field records

// Keystroke handlers, the calculator and VAT

QVariant clsqorGenLib::KeyPress(short &KA, QString &ToegelatenTekens)
{
    return keyPress(KA, ToegelatenTekens, regional());
}

QVariant clsqorGenLib::KeyGetal(
    QObject *TextBox, short &KA, QVariant &NbrDecimals, bool &NegNumber, bool &Flexgrid)
{
    return keyGetal(TextBox, KA, NbrDecimals, NegNumber, Flexgrid,
        { m_NbrDec, m_BtwTar1, m_BtwTar2, m_Offset });
}

QVariant clsqorGenLib::KeyGetal(QObject *TextBox, short &KA)
{
    QVariant nbrDecimals = genLibDefault("KeyGetal", "NbrDecimals").toVariant();
    return KeyGetal(TextBox, KA, nbrDecimals);
}

QVariant clsqorGenLib::KeyGetal(QObject *TextBox, short &KA, QVariant &NbrDecimals)
{
    bool negNumber = genLibDefault<bool>("KeyGetal", "NegNumber");
    bool flexgrid = genLibDefault<bool>("KeyGetal", "Flexgrid");
    return KeyGetal(TextBox, KA, NbrDecimals, negNumber, flexgrid);
}

QVariant clsqorGenLib::KeyEuro(QObject *TextBox, short &KA, QVariant &EurDecimals, bool &NegNumber)
{
    return keyEuro(
        TextBox, KA, EurDecimals, NegNumber, { m_NbrDec, m_BtwTar1, m_BtwTar2, m_Offset });
}

QVariant clsqorGenLib::KeyEuro(QObject *TextBox, short &KA)
{
    QVariant eurDecimals = genLibDefault("KeyEuro", "EurDecimals").toVariant();
    bool negNumber = genLibDefault<bool>("KeyEuro", "NegNumber");
    return KeyEuro(TextBox, KA, eurDecimals, negNumber);
}

bool clsqorGenLib::KeySpin(
    qorGenLib::SpinUpDown UpDown, QObject *TxtBox, QVariant &MaxValue, QVariant &MinValue)
{
    return keySpin(UpDown, TxtBox, MaxValue, MinValue);
}

bool clsqorGenLib::KeySpin(qorGenLib::SpinUpDown UpDown, QObject *TxtBox)
{
    QVariant maxValue = genLibDefault("KeySpin", "MaxValue").toVariant();
    QVariant minValue = genLibDefault("KeySpin", "MinValue").toVariant();
    return KeySpin(UpDown, TxtBox, maxValue, minValue);
}

void clsqorGenLib::LoadComboBTW(QObject *Cbo, qint32 &SetValue, qint32 &SetListIndex)
{
    loadComboBTW(Cbo, SetValue, SetListIndex, m_BtwTar1, m_BtwTar2, regional());
}

void clsqorGenLib::LoadComboBTW(QObject *Cbo)
{
    qint32 setValue = genLibDefault<qint32>("LoadComboBTW", "SetValue");
    qint32 setListIndex = genLibDefault<qint32>("LoadComboBTW", "SetListIndex");
    LoadComboBTW(Cbo, setValue, setListIndex);
}

bool clsqorGenLib::ControleerBtwClick(bool &Reset)
{
    return controleerBtwClick(Reset, m_Offset);
}

bool clsqorGenLib::ControleerBtwClick()
{
    bool reset = genLibDefault<bool>("ControleerBtwClick", "Reset");
    return ControleerBtwClick(reset);
}

double clsqorGenLib::ShowCalculator(double Value)
{
    return showCalculator(Value, m_BtwTar1, m_BtwTar2, m_Offset);
}

// End of keystroke handlers, the calculator and VAT

// Grids, lists and sorting

void clsqorGenLib::SetDBGridSize(QObject *DBGrid, QObject *Frame, bool FetchRowStyle)
{
    setDBGridSize(DBGrid, Frame, FetchRowStyle, d->gridWidths);
}

void clsqorGenLib::SetDBGridCol(QObject *DBGrid, short ColIndex, const QString &DataField,
    const QString &Caption, qint32 Alignment, qint32 ColWidth, bool Visible,
    const QString &NumberFormat, bool Merge, bool FetchStyle, bool AllowColSizing)
{
    setDBGridCol(DBGrid,
        { ColIndex, DataField, Caption, Alignment, ColWidth, Visible, NumberFormat, Merge,
            FetchStyle, AllowColSizing },
        d->gridWidths);
}

void clsqorGenLib::SetDBGridIcon(
    QObject *DBGrid, short ColIndex, const QString &ForceState, const QString &OrderColumn)
{
    setDBGridIcon(DBGrid, ColIndex, ForceState, OrderColumn);
}

void clsqorGenLib::SetDBGridTranslation(QObject *grd, qorGenLib::TranslateEnum translateType,
    short col, qint32 CrossValue, bool TypeADO)
{
    setDBGridTranslation(grd, translateType, col, CrossValue, TypeADO, m_Offset);
}

bool clsqorGenLib::SetListIndex(QObject *ListComboCTL, qint32 ItemData, const QString &Text,
    qorGenLib::NotFoundIndexType NotFoundSetIndex)
{
    return setListIndex(ListComboCTL, ItemData, Text, NotFoundSetIndex);
}

bool clsqorGenLib::DataChange(QObject *FRM, bool Reset)
{
    return m_DataCH = dataChange(FRM, Reset, m_vbSplit);
}

void clsqorGenLib::SortArray(
    QVariant &ArrayName, qorGenLib::OstSortOrder SortOrder, QVariant &RefArrayName)
{
    sortArray(ArrayName, SortOrder, &RefArrayName, m_Offset);
}

void clsqorGenLib::SortArray(QVariant &ArrayName, qorGenLib::OstSortOrder SortOrder)
{
    QVariant refArrayName = genLibDefault("SortArray", "RefArrayName").toVariant();
    SortArray(ArrayName, SortOrder, refArrayName);
}

// End of grids, lists and sorting

// Desktop and system services

qint32 clsqorGenLib::ShellAndWait(const QString &ProgrammaNaam, qint32 window_style)
{
    return shellAndWait(ProgrammaNaam, window_style);
}

QString clsqorGenLib::GetFileList(const QString &sPad, const QString &sWildCard, qint32 lAttribute)
{
    return getFileList(sPad, sWildCard, lAttribute, m_vbSplit);
}

QString clsqorGenLib::PathRS(const QString &Path)
{
    return pathRS(Path);
}

QString clsqorGenLib::GetSystemDir()
{
    return getSystemDir();
}

void clsqorGenLib::ShutDownPC()
{
    shutDownPC();
}

void clsqorGenLib::WriteIni(
    const QString &Header, const QString &Section, const QString &Value, QString &INIFile)
{
    writeIni(Header, Section, Value, INIFile);
}

void clsqorGenLib::WriteIni(const QString &Header, const QString &Section, const QString &Value)
{
    QString iniFile = genLibDefault<QLatin1StringView>("WriteIni", "INIFile");
    WriteIni(Header, Section, Value, iniFile);
}

QString clsqorGenLib::GetIni(
    const QString &Header, const QString &Section, QString &INIFile, bool MBox)
{
    return getIni(Header, Section, INIFile, MBox, m_Offset);
}

QString clsqorGenLib::GetIni(const QString &Header, const QString &Section)
{
    QString iniFile = genLibDefault<QLatin1StringView>("GetIni", "INIFile");
    return GetIni(Header, Section, iniFile);
}

bool clsqorGenLib::StartUp(QObject *Application, bool OtherDLL, bool MultiUse)
{
    return startUp(Application, OtherDLL, MultiUse, m_Offset);
}

void clsqorGenLib::SetDebug(bool DebugKlantPC, qint32 DebugOffset)
{
    setDebug(DebugKlantPC, DebugOffset, m_KlantPC, m_Offset, m_FieldExt);
}

QString clsqorGenLib::GetTimerCode()
{
    return getTimerCode();
}

qorGenLib::WindowSize clsqorGenLib::GetWorkArea()
{
    return getWorkArea();
}

void clsqorGenLib::SetDeskTop(QObject *FormMenu)
{
    setDeskTop(FormMenu);
}

qint32 clsqorGenLib::GetMousePointerPos(const QString &XY, QObject *RelativeObject)
{
    return getMousePointerPos(XY, RelativeObject);
}

QVariant clsqorGenLib::FormOnTop(QObject *FRM)
{
    return formOnTop(FRM);
}

float clsqorGenLib::CMm(float Twips)
{
    return cMm(Twips);
}

float clsqorGenLib::CTwips(float MilliMeters)
{
    return cTwips(MilliMeters);
}

// End of desktop and system services
