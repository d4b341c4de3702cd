#include "lib/frame/catalogue.h"

#include "lib/frame/modgenlib.h"

#include <algorithm>
#include <iterator>

namespace qor {

namespace {

struct Entry
{
    qint64 id;
    const char16_t *text;
    qsizetype length;
};

#define QOR_CATALOGUE_ENTRY(id, text) { id, u"" text, std::size(u"" text) - 1 },

// Every text of every language, sorted by id, compiled in from the catalogue files.
constexpr Entry entries[] = {
#include "cataloguetable.inc"
};

#undef QOR_CATALOGUE_ENTRY

static_assert(std::is_sorted(std::begin(entries), std::end(entries),
                  [](const Entry &a, const Entry &b) { return a.id < b.id; }),
    "the catalogue table is sorted by id");

const Entry *find(qint64 id)
{
    const Entry *it = std::lower_bound(std::begin(entries), std::end(entries), id,
        [](const Entry &entry, qint64 wanted) { return entry.id < wanted; });
    return it != std::end(entries) && it->id == id ? it : nullptr;
}

// The text without a copy: the table lives as long as the program.
QString textOf(const Entry &entry)
{
    return QString::fromRawData(reinterpret_cast<const QChar *>(entry.text), entry.length);
}

QString marker(const char *prefix, qint64 id)
{
    return QStringLiteral(" [%1 %2 ?] ").arg(QLatin1String(prefix)).arg(id);
}

} // namespace

std::optional<QString> Catalogue::text(qint64 id)
{
    if (const Entry *entry = find(id))
        return textOf(*entry);
    return std::nullopt;
}

int Catalogue::count(qint64 from, qint64 to)
{
    return int(std::count_if(std::begin(entries), std::end(entries),
        [&](const Entry &entry) { return entry.id >= from && entry.id <= to; }));
}

QString Catalogue::llGenLib(qint32 id)
{
    // The marker is built only for a text that is missing.
    if (const Entry *entry = find(id))
        return textOf(*entry);
    return marker("LLGenLib", id);
}

QString Catalogue::load(qint32 baseId)
{
    // An id beyond the Long range cannot name a text; it shows as its marker.
    const qint64 id = qint64(baseId) + modGenLib().languageOffset;
    if (const Entry *entry = find(id))
        return textOf(*entry);
    return marker("LL", id);
}

} // namespace qor
