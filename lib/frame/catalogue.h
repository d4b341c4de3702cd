#pragma once

#include <QString>

#include <optional>

namespace qor {

// The numbered texts of the library in six languages. A text's id is its base
// id plus the language offset (0 Dutch, 10000 French, 20000 English, 30000
// German, 40000 Spanish, 50000 Italian). A missing text is never replaced by
// another language: the caller shows a marker with the id instead.
class Catalogue
{
public:
    // The text with exactly this id, if the catalogue holds it.
    static std::optional<QString> text(qint64 id);
    // How many texts the catalogue holds at ids from..to inclusive.
    static int count(qint64 from, qint64 to);

    // The host's look-up: the text, or " [LLGenLib <id> ?] ".
    static QString llGenLib(qint32 id);
    // The library's own look-up in the module language: the text of
    // id + module offset, or " [LL <id + offset> ?] ".
    static QString load(qint32 baseId);
};

// Shorthand for the library's own texts.
inline QString loadCatalogueText(qint32 baseId)
{
    return Catalogue::load(baseId);
}

} // namespace qor
