#pragma once

#include <QString>
#include <QtGlobal>

namespace qor::catalogue {

// Catalogue ids of the calculator, its help card and the VAT texts.
enum CalculatorText : qint32 {
    VatInclusiveQuestion = 1050,
    VatAddTitle = 1051,
    VatNotePlus = 1052,
    VatNotePercent = 1053,
    InsertCaption = 1200,
    HelpCaption = 1201,
    EuroToFrancCaption = 1202,
    FrancToEuroCaption = 1203,
    CalculatorTitle = 1204,
    HelpTitle = 1205,
    HelpDecimalKeys = 1206,
    HelpHeading = 1207,
    HelpDigitKeys = 1208,
    HelpEqualsKey = 1209,
    HelpInsertKey = 1210,
    HelpSecondEquals = 1211,
    HelpEscapeKey = 1212,
    HelpOperatorKeys = 1213,
    HelpCallLine = 1214,
    NegativeRefused = 1215,
    TooLongStart = 1216,
    TooLongEnd = 1217,
    HelpBackSpaceKey = 1218,
    HelpMovingLine = 1219,
    HelpDirectVat = 1220,
};

} // namespace qor::catalogue

namespace qor {

// The title of the calculator's refusals: the same in every language.
inline QString calculatorMessageTitle()
{
    return QStringLiteral("qorSoft Calculator");
}

// Belgian francs to the euro, fixed since the changeover.
constexpr double francsPerEuro = 40.3399;

} // namespace qor
