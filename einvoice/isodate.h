#pragma once

#include <QDate>
#include <QStringView>

namespace qor::einvoice {

/// The date of a text of exactly the form YYYY-MM-DD; an invalid date for
/// anything else, and for a day that does not exist (2026-02-30).
QDate parseIsoDate(QStringView text);

} // namespace qor::einvoice
