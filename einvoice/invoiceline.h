#pragma once

#include "einvoice/allowancecharge.h"
#include "einvoice/party.h"

#include <QDate>

namespace qor::einvoice {

/// A name and value describing an item (BG-32).
struct ItemAttribute
{
    /// BT-160.
    QString name;
    /// BT-161.
    QString value;

    bool operator==(const ItemAttribute &) const = default;
};

/// An invoice line (BG-25).
///
/// Its net amount (BT-131) is computed: quantity × net price ÷ base quantity,
/// rounded to two decimals, plus the line's charges minus its allowances.
struct InvoiceLine
{
    /// BT-126: the line's identifier, unique in the document ("1", "2", ...).
    QString id;
    /// BT-127: a free text note.
    QString note;
    /// BT-128 with scheme BT-128-1: an object the line invoices.
    Identifier objectIdentifier;
    /// BT-129: the invoiced quantity (negative for a return on an invoice).
    Decimal quantity;
    /// BT-130: the unit (UN/ECE Recommendation 20 or 21 code: "C62" one,
    /// "HUR" hour, "KGM" kilogram, "LTR" litre, "H87" piece).
    QString unitCode = QStringLiteral("C62");
    /// BT-132: the line of the buyer's purchase order.
    QString orderLineReference;
    /// BT-133: the buyer's accounting reference.
    QString accountingCost;
    /// BT-134 / BT-135: the period the line covers.
    QDate periodStart;
    QDate periodEnd;
    /// BG-27 / BG-28: the line's allowances and charges.
    QList<AllowanceCharge> allowanceCharges;
    /// BT-146: the net price (after any price discount), without VAT.
    Decimal netPrice;
    /// BT-147: the discount per unit that turns the gross price into the net price.
    std::optional<Decimal> priceDiscount;
    /// BT-148: the gross price before the discount.
    std::optional<Decimal> grossPrice;
    /// BT-149: the number of units the price is for (absent: 1).
    std::optional<Decimal> baseQuantity;
    /// BT-150: the unit of the base quantity (absent: the line's unit).
    QString baseQuantityUnit;
    /// BT-151: the VAT category of the item ("S", "Z", "E", "AE", "K", "G", "O").
    QString vatCategory = QStringLiteral("S");
    /// BT-152: the VAT rate in percent (absent for category O).
    std::optional<Decimal> vatRate;
    /// BT-153: the item's name; required.
    QString itemName;
    /// BT-154: a description of the item.
    QString itemDescription;
    /// BT-155: the seller's item id (article number).
    QString sellersItemId;
    /// BT-156: the buyer's item id.
    QString buyersItemId;
    /// BT-157 with scheme BT-157-1: a standard id (a GTIN, scheme 0160).
    Identifier standardItemId;
    /// BT-158 with scheme BT-158-1 (and version BT-158-2 is not kept):
    /// classifications such as a CPV or UNSPSC code.
    QList<Identifier> classifications;
    /// BT-159: the country of origin.
    QString originCountry;
    /// BG-32: the item's attributes.
    QList<ItemAttribute> attributes;
    /// BT-131 as stated by a document that was read; absent for a line the
    /// host built (then the computed amount is written).
    std::optional<Decimal> statedNetAmount;

    bool operator==(const InvoiceLine &) const = default;
};

} // namespace qor::einvoice
