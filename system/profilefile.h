#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace qor {

// The classic sectioned settings file, read and written as bytes so that
// every line the library does not change stays exactly as it was.
//
// - The file is windows-1252 text; lines end in CR LF or LF.
// - "[name]" opens a section (blanks around the brackets and the name are
//   ignored); "key=value" is a setting of the section above it (blanks around
//   key and value are ignored, one pair of enclosing quotes is dropped from
//   the value). Lines starting with ";" and lines without "=" are no setting.
// - Section and key names match without regard to case; the first section of
//   a name holds its settings and the first key of a name in it wins.
// - Writing replaces the value of that first key in place, adds a missing
//   key after the last setting line of the section, or adds the section at
//   the end of the file. New lines end like the file's own lines (CR LF for
//   a new file); every other byte stays as it was.
class ProfileFile
{
public:
    explicit ProfileFile(const QByteArray &contents);

    // The value of a key, or nothing when the section or key is not there.
    std::optional<QString> value(const QString &section, const QString &key) const;
    // The file with the key set to the value. Line breaks inside the names
    // or the value are written as blanks, so that one setting stays one line.
    QByteArray withValue(const QString &section, const QString &key, const QString &value) const;

private:
    struct Line
    {
        qsizetype start = 0; // first byte
        qsizetype end = 0; // first byte of the line break, or the end of the file
        qsizetype next = 0; // first byte of the next line
    };
    Line lineAt(qsizetype start) const;
    std::optional<QString> sectionName(const Line &line) const;
    std::optional<QString> keyName(const Line &line) const;
    QString valueOf(const Line &line) const;
    // The first line after the header of the first section of the name.
    std::optional<qsizetype> sectionBody(const QString &section) const;
    QByteArray lineBreak() const;

    QByteArray m_contents;
};

} // namespace qor
