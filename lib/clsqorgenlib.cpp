#include "lib/clsqorgenlib.h"

#include "datetime/datetimechecks.h"
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

void clsqorGenLib::SetDText(QObject *DText, QString &CountryCode, bool ValueToDay, bool MaxDateToDay)
{
    setDText(DText, CountryCode, ValueToDay, MaxDateToDay, m_Offset);
}

void clsqorGenLib::SetDText(QObject *DText)
{
    QString countryCode = QStringLiteral("BE");
    SetDText(DText, countryCode);
}

// End of dates and times

// Fixed-field records

// End of fixed-field records

// Keystroke handlers, the calculator and VAT

// End of keystroke handlers, the calculator and VAT

// Grids, lists and sorting

// End of grids, lists and sorting

// Desktop and system services

// End of desktop and system services
