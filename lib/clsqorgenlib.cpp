#include "lib/clsqorgenlib.h"

#include "dialogs/boxes.h"
#include "dialogs/sound.h"
#include "input/amounts.h"
#include "input/scanbm.h"
#include "input/editing.h"
#include "input/textfilters.h"
#include "lib/frame/catalogue.h"
#include "lib/latebinding.h"
#include "lib/frame/modgenlib.h"
#include "lib/typelibrary.h"
#include "lib/frame/windowsize.h"
#include "platform/platform.h"
#include "runtime/conversion.h"
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
    QString scanFormat;
    return ScanBM(TextBox, KA, scanFormat, false, true);
}

void clsqorGenLib::PlaySound(QString &FileName, bool Continuous, QString &SoundDirectory)
{
    playSound(FileName, Continuous, SoundDirectory, m_Offset);
}

void clsqorGenLib::PlaySound(QString &FileName, bool Continuous)
{
    QString soundDirectory;
    PlaySound(FileName, Continuous, soundDirectory);
}

void clsqorGenLib::SetSound(bool SetSoundOFF)
{
    setSound(SetSoundOFF);
}

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

// End of desktop and system services
