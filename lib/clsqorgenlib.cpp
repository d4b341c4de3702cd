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
#include "system/stationflags.h"
#include "validate/bankaccount.h"
#include "validate/checkreports.h"
#include "validate/identitycard.h"
#include "validate/nationalnumber.h"
#include "validate/paymentreference.h"
#include "validate/vatnumber.h"

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

void clsqorGenLib::useMyLanguage() const
{
    modGenLib().languageOffset = m_Offset;
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
    useMyLanguage();
    const CheckResult check = checkBankAccount(BankNr);
    if (MBox && check.refused)
        reportRefusedBankAccount();
    return check.display;
}

QString clsqorGenLib::ControleerVAT(QString &VATnr, bool MBox, QString &LandCode)
{
    useMyLanguage();
    const CheckResult check = checkVatNumber(VATnr, LandCode);
    if (MBox && check.refused)
        reportRefusedEnterpriseNumber();
    return check.display;
}

QString clsqorGenLib::ControleerVAT(QString &VATnr, bool MBox)
{
    QString landCode;
    return ControleerVAT(VATnr, MBox, landCode);
}

QString clsqorGenLib::ControleerNatNr(QString &NatNr, bool MBox, const QString &LandCode)
{
    useMyLanguage();
    const CheckResult check = checkNationalNumber(NatNr, LandCode);
    if (MBox && check.refused)
        reportRefusedNationalNumber();
    return check.display;
}

QString clsqorGenLib::ControleerIdentNr(QString &IdentNr, bool MBox)
{
    useMyLanguage();
    const CheckResult check = checkIdentityCard(IdentNr, regional());
    // The user may accept a refused number as the card of a foreigner.
    if (MBox && check.refused && userAcceptsIdentityCard(IdentNr))
        return IdentNr;
    return check.display;
}

QString clsqorGenLib::GetOGM(QString &ReferentieNummer)
{
    useMyLanguage();
    const PaymentReference made = makePaymentReference(ReferentieNummer);
    if (made.tooLong)
        reportReferenceTooLong(made.digits, m_vbCr2);
    return made.ogm;
}

QString clsqorGenLib::ControleerOGM(QString &OGM, bool MBox)
{
    useMyLanguage();
    const QString typed = OGM;
    const CheckResult check = checkPaymentReference(OGM);
    if (MBox && check.refused)
        reportRefusedPaymentReference(typed);
    return check.display;
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

// End of desktop and system services
