#include "validate/digitcompaction.h"

#include <algorithm>
#include <array>

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#include <immintrin.h>
#define QOR_COMPACT_WITH_SSSE3 1
#endif

namespace qor {

#ifdef QOR_COMPACT_WITH_SSSE3

namespace {

// For each pattern of eight digit flags (bit n for character n), the byte
// shuffle that moves the flagged characters to the front, and their number.
struct CompactionTable
{
    alignas(16) unsigned char shuffle[256][16];
    unsigned char count[256];
};

constexpr CompactionTable makeCompactionTable()
{
    CompactionTable table {};
    for (int flags = 0; flags < 256; ++flags) {
        int out = 0;
        for (int character = 0; character < 8; ++character) {
            if (flags & (1 << character)) {
                table.shuffle[flags][2 * out] = (unsigned char)(2 * character);
                table.shuffle[flags][2 * out + 1] = (unsigned char)(2 * character + 1);
                ++out;
            }
        }
        for (int rest = 2 * out; rest < 16; ++rest)
            table.shuffle[flags][rest] = 0x80; // a zero byte
        table.count[flags] = (unsigned char)out;
    }
    return table;
}

constexpr CompactionTable compaction = makeCompactionTable();

__attribute__((target("ssse3"))) __m128i loadEight(const char16_t *p)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(p));
}

// Bit n set when character n of the eight is a digit.
__attribute__((target("ssse3"))) unsigned digitFlags(__m128i characters)
{
    const __m128i beyondZero = _mm_sub_epi16(characters, _mm_set1_epi16('0'));
    // Characters below '0' wrap round to large numbers, so one unsigned test.
    const __m128i beyondNine = _mm_subs_epu16(beyondZero, _mm_set1_epi16(9));
    const __m128i isDigit = _mm_cmpeq_epi16(beyondNine, _mm_setzero_si128());
    return unsigned(_mm_movemask_epi8(_mm_packs_epi16(isDigit, _mm_setzero_si128())));
}

// Writes the flagged characters of the eight at out; returns how many.
__attribute__((target("ssse3"))) unsigned writeFlagged(
    __m128i characters, unsigned flags, char16_t *out)
{
    const __m128i shuffle
        = _mm_load_si128(reinterpret_cast<const __m128i *>(compaction.shuffle[flags]));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(out), _mm_shuffle_epi8(characters, shuffle));
    return compaction.count[flags];
}

} // namespace

bool canCompactDigitsEightAtATime()
{
    static const bool ssse3 = __builtin_cpu_supports("ssse3");
    return ssse3;
}

__attribute__((target("ssse3"))) qsizetype compactDigitsEightAtATime(
    const char16_t *text, qsizetype size, char16_t *out)
{
    qsizetype kept = 0;
    qsizetype next = 0;
    for (; next + 8 <= size; next += 8) {
        const __m128i eight = loadEight(text + next);
        kept += writeFlagged(eight, digitFlags(eight), out + kept);
    }
    if (next == size)
        return kept;
    if (size >= 8) {
        // The last eight characters again, without those already taken.
        const qsizetype start = size - 8;
        const __m128i eight = loadEight(text + start);
        const unsigned notTaken = (0xFFu << (next - start)) & 0xFFu;
        return kept + writeFlagged(eight, digitFlags(eight) & notTaken, out + kept);
    }
    // Shorter than eight: padded with NULs, which are no digits.
    std::array<char16_t, 8> padded {};
    std::copy(text, text + size, padded.begin());
    const __m128i eight = loadEight(padded.data());
    return kept + writeFlagged(eight, digitFlags(eight), out + kept);
}

#else

bool canCompactDigitsEightAtATime()
{
    return false;
}

qsizetype compactDigitsEightAtATime(const char16_t *text, qsizetype size, char16_t *out)
{
    qsizetype kept = 0;
    for (qsizetype i = 0; i < size; ++i) {
        if (text[i] >= u'0' && text[i] <= u'9')
            out[kept++] = text[i];
    }
    return kept;
}

#endif

} // namespace qor
