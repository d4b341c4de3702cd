#pragma once

#include "lib/frame/qorenums.h"
#include "lib/frame/windowsize.h"

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
class clsqorGenLib : public QObject
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

    // Dialogs, scanner input and sound.
    // End of dialogs, scanner input and sound.

    // Dates and times.
    // End of dates and times.

    // Fixed-field records.
    // End of fixed-field records.

    // Keystroke handlers, the calculator and VAT.
    // End of keystroke handlers, the calculator and VAT.

    // Grids, lists and sorting.
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
