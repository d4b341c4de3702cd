// Ten-line e-invoices written as UBL and read back, per second on one core.
// Goal: 20,000 documents per second each way.

#include "benchclock.h"

#include "einvoice/ublreader.h"
#include "einvoice/ublwriter.h"

#include <cstdio>

using namespace qor::einvoice;

namespace {

Party party(const char *name, const char *enterprise, const char *city)
{
    Party p;
    p.name = QString::fromUtf8(name);
    p.legalRegistration = { QString::fromLatin1(enterprise), QStringLiteral("0208") };
    p.vatIdentifier = QStringLiteral("BE") + QString::fromLatin1(enterprise);
    p.electronicAddress = p.legalRegistration;
    p.address.streetName = QStringLiteral("Kerkstraat 1");
    p.address.cityName = QString::fromUtf8(city);
    p.address.postalZone = QStringLiteral("9000");
    p.address.countryCode = QStringLiteral("BE");
    return p;
}

Invoice tenLineInvoice()
{
    Invoice invoice;
    invoice.number = QStringLiteral("F-2026-0001");
    invoice.issueDate = QDate(2026, 1, 15);
    invoice.dueDate = QDate(2026, 2, 14);
    invoice.buyerReference = QStringLiteral("AANK-7781");
    invoice.seller = party("Drukkerij Lindeman BV", "0456789034", "Gent");
    invoice.buyer = party("Bouwwerken Claes NV", "0812345603", "Antwerpen");
    PaymentMeans means;
    means.remittanceInformation = QStringLiteral("+++000/0012/34526+++");
    means.accountId = QStringLiteral("BE48001123456727");
    means.bic = QStringLiteral("GEBABEBB");
    invoice.paymentMeans.append(means);
    for (int i = 1; i <= 10; ++i) {
        InvoiceLine line;
        line.id = QString::number(i);
        line.quantity = Decimal(i * 3, 0);
        line.netPrice = Decimal(i * 1234 + 5, 2);
        line.vatRate = Decimal(i % 2 ? 21 : 6, 0);
        line.itemName = QStringLiteral("Artikel %1").arg(i);
        line.sellersItemId = QStringLiteral("ART-%1").arg(i);
        invoice.lines.append(line);
    }
    return invoice;
}

} // namespace

int main()
{
    const Invoice invoice = tenLineInvoice();
    const QByteArray document = writeUbl(invoice);
    if (!readUbl(document).errors.isEmpty()) {
        std::printf("the benchmark document does not read back\n");
        return 1;
    }
    constexpr int calls = 20000;
    qsizetype sink = 0;
    const bench::Rounds write
        = bench::roundsPerCall([&](int) { sink += writeUbl(invoice).size(); }, calls);
    const bench::Rounds read
        = bench::roundsPerCall([&](int) { sink += readUbl(document).invoice.lines.size(); }, calls);
    std::printf("ten-line invoice, %lld bytes of UBL\n", static_cast<long long>(document.size()));
    std::printf(
        "write: %8.0f documents/s (median %8.0f)\n", 1e9 / write.fastest, 1e9 / write.median);
    std::printf("read:  %8.0f documents/s (median %8.0f)\n", 1e9 / read.fastest, 1e9 / read.median);
    return sink == 0;
}
