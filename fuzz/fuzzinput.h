#pragma once

#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"
#include "runtime/callbyname.h"
#include "runtime/codepage.h"
#include "tests/common/keysequence.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace qor::fuzz {

// A fuzz input taken apart: leading bytes choose modes, the rest is text.
class FuzzInput
{
public:
    FuzzInput(const uint8_t *data, size_t size)
        : m_data(data)
        , m_size(size)
    { }

    // The next byte, or 0 when the input is used up.
    uint8_t byte()
    {
        if (m_pos >= m_size)
            return 0;
        return m_data[m_pos++];
    }
    bool flag() { return byte() & 1; }

    // The rest of the input as text: UTF-8 where it is valid, one character
    // per byte (Latin-1) where it is not, so that every code reaches the parser.
    QString rest()
    {
        const QByteArray bytes(
            reinterpret_cast<const char *>(m_data + m_pos), qsizetype(m_size - m_pos));
        m_pos = m_size;
        const QString text = QString::fromUtf8(bytes);
        return text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes) : text;
    }

    // The rest split at NUL bytes into at most parts pieces.
    QStringList parts(int parts) { return rest().split(QChar(0)).mid(0, parts); }

private:
    const uint8_t *m_data;
    size_t m_size;
    size_t m_pos = 0;
};

// A recording platform under Belgian settings with a fixed clock, installed
// once per process; the module state starts over for every input.
inline RecordingPlatform &fuzzMachine()
{
    static std::shared_ptr<RecordingPlatform> machine = [] {
        auto m = std::make_shared<RecordingPlatform>();
        m->setLocale(QStringLiteral("nl_BE"));
        m->setNow(QDateTime(QDate(2004, 5, 20), QTime(8, 30)));
        Platform::install(m);
        return m;
    }();
    ModGenLib::reset();
    machine->clearRecords();
    machine->setAnswers({});
    return *machine;
}

} // namespace qor::fuzz
