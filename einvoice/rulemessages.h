#pragma once

#include <QtGlobal>

namespace qor::catalogue {

// Catalogue ids of the messages of the e-invoice rule check. A text marked
// "of an item" follows the place it concerns ("Line 2: ...").
enum EInvoiceText : qint32 {
    InvoiceNumberMissing = 4000,
    IssueDateMissing = 4001,
    CurrencyMissing = 4002,
    SellerNameMissing = 4003,
    BuyerNameMissing = 4004,
    SellerCountryMissing = 4005,
    BuyerCountryMissing = 4006,
    NoLines = 4007,
    ItemNameMissing = 4008, // of an item
    NetPriceNegative = 4009, // of an item
    UnitCodeMissing = 4010, // of an item
    BaseQuantityNotPositive = 4011, // of an item
    CategoryMissing = 4012, // of an item
    StandardRateNeeded = 4013, // of an item
    ZeroRateNeeded = 4014, // of an item; %1 the category
    NoRateAllowed = 4015, // of an item
    ReasonMissing = 4016, // of an item
    SellerVatNeeded = 4017, // %1 the category
    ReverseChargeIdentifiers = 4018,
    IntraCommunityIdentifiers = 4019,
    OutOfScopeIdentifiers = 4020,
    OutOfScopeMixed = 4021,
    IntraCommunityDeliveryDate = 4022,
    IntraCommunityDeliveryCountry = 4023,
    ExemptionReasonNeeded = 4024, // %1 the category
    VatPrefixMissing = 4025, // %1 the number
    SellerIdentifierMissing = 4026,
    ReferenceMissing = 4027,
    TooManyNotes = 4028,
    SellerAddressMissing = 4029,
    BuyerAddressMissing = 4030,
    EnterpriseNumberInvalid = 4031, // %1 the number
    TransferAccountMissing = 4032,
    AccountingCurrencyTotalMissing = 4033,
    AccountingCurrencySame = 4034,
    StatedAmountDiffers = 4035, // of an item; %1 stated, %2 computed
    BelgianVatInvalid = 4036, // %1 the number
    IbanInvalid = 4037, // %1 the account
    BicInvalid = 4038, // %1 the BIC
    PrecedingNumberMissing = 4039,
    AddressSchemeMissing = 4040, // %1 the address
    PeriodOrder = 4041, // of an item
    PercentageAmount = 4042, // of an item
    PercentageWithoutBase = 4043, // of an item
    MandateMissing = 4044,
    PaymentCodeMissing = 4045,
    ExemptionReasonNotAllowed = 4046, // %1 the category
    PlaceLine = 4090, // %1 the line
    PlaceAllowance = 4091, // %1 its number
    PlaceCharge = 4092, // %1 its number
};

} // namespace qor::catalogue
