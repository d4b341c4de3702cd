#include "lib/frame/catalogue.h"

#include "lib/frame/modgenlib.h"

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

static void initCatalogueResource()
{
    Q_INIT_RESOURCE(catalogue);
}

namespace qor {

namespace {

struct LanguageFile
{
    qint64 offset;
    const char *name;
};

constexpr LanguageFile languageFiles[] = {
    { 0, "nl" },
    { 10000, "fr" },
    { 20000, "en" },
    { 30000, "de" },
    { 40000, "es" },
    { 50000, "it" },
};

QHash<qint64, QString> loadAll()
{
    initCatalogueResource();
    QHash<qint64, QString> texts;
    for (const auto &language : languageFiles) {
        QFile file(
            QStringLiteral(":/qorgenlib/catalogue/%1.json").arg(QLatin1String(language.name)));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QJsonObject entries = QJsonDocument::fromJson(file.readAll()).object();
        for (auto it = entries.begin(); it != entries.end(); ++it) {
            bool ok = false;
            const qint64 baseId = it.key().toLongLong(&ok);
            if (ok)
                texts.insert(baseId + language.offset, it.value().toString());
        }
    }
    return texts;
}

// Read once, shared read-only by every thread.
const QHash<qint64, QString> &allTexts()
{
    static const QHash<qint64, QString> texts = loadAll();
    return texts;
}

QString marker(const char *prefix, qint64 id)
{
    return QStringLiteral(" [%1 %2 ?] ").arg(QLatin1String(prefix)).arg(id);
}

} // namespace

std::optional<QString> Catalogue::text(qint64 id)
{
    const auto &texts = allTexts();
    const auto it = texts.constFind(id);
    if (it == texts.constEnd())
        return std::nullopt;
    return *it;
}

int Catalogue::count(qint64 from, qint64 to)
{
    int n = 0;
    for (auto it = allTexts().begin(); it != allTexts().end(); ++it) {
        if (it.key() >= from && it.key() <= to)
            ++n;
    }
    return n;
}

QString Catalogue::llGenLib(qint32 id)
{
    return text(id).value_or(marker("LLGenLib", id));
}

QString Catalogue::load(qint32 baseId)
{
    // An id beyond the Long range cannot name a text; it shows as its marker.
    const qint64 id = qint64(baseId) + modGenLib().languageOffset;
    return text(id).value_or(marker("LL", id));
}

} // namespace qor
