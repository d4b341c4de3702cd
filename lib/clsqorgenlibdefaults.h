#pragma once

#include "lib/frame/qorenums.h"
#include "lib/publisheddefault.h"

namespace qor {

/// The defaults of clsqorGenLib's optional arguments, each stated here only.
/// The C++ default arguments and the C++ overloads that leave out arguments
/// read them through genLibDefault(), and the published type information
/// (clsqorGenLib::typeLibrary(), the bridge's "methods") through the table.
/// nullptr: optional without a published default.
inline constexpr PublishedDefault clsqorGenLibDefaults[] = {
    { "FilterAccenten", "OnlyThese", "" },
    { "FilterText", "FilterAccent", false },
    { "FilterText", "DoNotRemove", "" },
    { "CGetal", "Number", 0 },
    { "SetEuro", "AddSymbol", qorGenLib::vbSymbolNone },
    { "SelEdit", "StartAtEnd", false },
    { "SelEdit", "Flexgrid", false },

    { "ControleerBankNr", "MBox", true },
    { "ControleerVAT", "MBox", false },
    { "ControleerVAT", "LandCode", "" },
    { "ControleerNatNr", "MBox", true },
    { "ControleerNatNr", "LandCode", "" },
    { "ControleerIdentNr", "MBox", true },
    { "ControleerOGM", "MBox", true },

    { "ControleerIBAN", "MBox", true },
    { "ControleerBIC", "MBox", true },
    { "ControleerRF", "MBox", true },
    { "GetEPCQR", "BIC", "" },
    { "GetEPCQR", "Reference", "" },
    { "GetEPCQR", "Text", "" },
    { "SaveQRCode", "ModuleSize", 4 },

    { "MsgBoxE", "Buttons", 0 },
    { "MsgBoxE", "Title", "" },
    { "InputBoxE", "DefaultValue", "" },
    { "InputBoxE", "MaxLength", 250 },
    { "ScanBM", "ScanFormat", "" },
    { "ScanBM", "ReturnFieldOnly", false },
    { "ScanBM", "MBox", true },
    { "PlaySound", "Continuous", false },
    { "PlaySound", "SoundDirectory", "" },

    { "ControleerDatum", "AllowFuture", nullptr },
    { "ControleerDatum", "MBox", true },
    { "ControleerUur", "MBox", true },
    { "ControleerUur", "AllowMoreThan24Hours", false },
    { "ControleerUur", "ReturnHHMM", true },
    { "SetDText", "CountryCode", "BE" },
    { "SetDText", "ValueToDay", false },
    { "SetDText", "MaxDateToDay", true },

    { "GetExportData", "arrFormat", nullptr },
    { "GetExportData", "AddChecksum", true },
    { "GetExportData", "Separator", " " },
    { "GetImportData", "LineNumberIncluded", true },
    { "GetImportData", "CheckSumIncluded", true },

    { "KeyGetal", "NbrDecimals", nullptr },
    { "KeyGetal", "NegNumber", false },
    { "KeyGetal", "Flexgrid", false },
    { "KeyEuro", "EurDecimals", 2 },
    { "KeyEuro", "NegNumber", false },
    { "KeySpin", "MaxValue", nullptr },
    { "KeySpin", "MinValue", nullptr },
    { "LoadComboBTW", "SetValue", 0 },
    { "LoadComboBTW", "SetListIndex", 0 },
    { "ControleerBtwClick", "Reset", false },
    { "ShowCalculator", "Value", 0 },

    { "SetDBGridSize", "FetchRowStyle", false },
    { "SetDBGridCol", "Visible", true },
    { "SetDBGridCol", "NumberFormat", "" },
    { "SetDBGridCol", "Merge", false },
    { "SetDBGridCol", "FetchStyle", false },
    { "SetDBGridCol", "AllowColSizing", false },
    { "SetDBGridIcon", "ForceState", "" },
    { "SetDBGridIcon", "OrderColumn", "" },
    { "SetDBGridTranslation", "CrossValue", -1 },
    { "SetDBGridTranslation", "TypeADO", false },
    { "SetListIndex", "ItemData", -9999 },
    { "SetListIndex", "Text", "" },
    { "SetListIndex", "NotFoundSetIndex", qorGenLib::SetListIndexMinusOne },
    { "DataChange", "Reset", false },
    { "SortArray", "SortOrder", qorGenLib::soAlphabetic },
    { "SortArray", "RefArrayName", nullptr },

    { "GetFileList", "lAttribute", 0 },
    { "WriteIni", "INIFile", "" },
    { "GetIni", "INIFile", "" },
    { "GetIni", "MBox", true },
    { "StartUp", "OtherDLL", false },
    { "StartUp", "MultiUse", false },
    { "GetMousePointerPos", "RelativeObject", nullptr },
};

/// The default of a clsqorGenLib method's parameter, as T (see
/// PublishedValue::to()) or, without T, as the PublishedValue itself.
/// constexpr rather than consteval: clang 14 refuses immediate functions in
/// default arguments. A name the table does not hold throws when the
/// default is taken; tst_publisheddefaults takes every one.
template <typename T = PublishedValue>
constexpr T genLibDefault(std::string_view method, std::string_view parameter)
{
    const PublishedValue value = publishedDefault(clsqorGenLibDefaults, method, parameter);
    if constexpr (std::is_same_v<T, PublishedValue>)
        return value;
    else
        return value.to<T>();
}

} // namespace qor
