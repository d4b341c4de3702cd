#pragma once

#include <QString>

// One line of the invoice as the demo keeps it. The price is a unit price VAT
// included, as a shop's till takes it; the VAT rate is in hundredths of a percent.
struct InvoiceLine
{
    QString code;
    QString description;
    double quantity = 0;
    int unit = 0; // the library's unit codes (1 m3, 2 kg, ... 13 keer)
    double price = 0;
    int vatRate = 0;
    int payment = 0; // the library's payment-method codes (1 contant, 4 Bancontact, ...)

    double amount() const { return quantity * price; }
    double amountExclVat() const { return amount() / (1.0 + vatRate / 10000.0); }
};
