#include "lib/clsqorgenlib.h"

#include "input/amounts.h"
#include "input/editing.h"
#include "input/textfilters.h"
#include "lib/frame/catalogue.h"
#include "lib/latebinding.h"
#include "lib/frame/modgenlib.h"
#include "lib/typelibrary.h"
#include "lib/frame/windowsize.h"
#include "platform/platform.h"
#include "runtime/conversion.h"
#include "system/desktop.h"
#include "system/paths.h"
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
    return platform().regionalSettings();
}

} // namespace

clsqorGenLib::clsqorGenLib(QObject *parent)
    : QObject(parent)
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
    static const TypeLibrary library(&clsqorGenLib::staticMetaObject,
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
    QString landCode;
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

// End of identifier checks

// Dialogs, scanner input and sound

// End of dialogs, scanner input and sound

// Dates and times

// End of dates and times

// Fixed-field records

// End of fixed-field records

// Keystroke handlers, the calculator and VAT

// End of keystroke handlers, the calculator and VAT

// Grids, lists and sorting

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
    QString iniFile;
    WriteIni(Header, Section, Value, iniFile);
}

QString clsqorGenLib::GetIni(
    const QString &Header, const QString &Section, QString &INIFile, bool MBox)
{
    return getIni(Header, Section, INIFile, MBox, m_Offset);
}

QString clsqorGenLib::GetIni(const QString &Header, const QString &Section)
{
    QString iniFile;
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
