#include "core/text/GraphemeClusters.h"

#include <algorithm>
#include <array>

#include "core/text/Utf8.h"

namespace tactora::graphemes {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

template <std::size_t N>
bool inRanges(const std::array<Range, N>& ranges, char32_t codePoint) {
    return std::any_of(ranges.begin(), ranges.end(), [codePoint](const Range& range) {
        return codePoint >= range.first && codePoint <= range.last;
    });
}

constexpr char32_t carriageReturn = 0x0D;
constexpr char32_t zeroWidthJoiner = 0x200D;

// Code points that attach to the character before them.
constexpr std::array<Range, 44> attaching = {{
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD},   {0x05BF, 0x05BF},   {0x05C1, 0x05C2},
    {0x05C4, 0x05C5}, {0x05C7, 0x05C7}, {0x0610, 0x061A},   {0x064B, 0x065F},   {0x0670, 0x0670},
    {0x06D6, 0x06DC}, {0x06DF, 0x06E4}, {0x06E7, 0x06E8},   {0x06EA, 0x06ED},   {0x0900, 0x0903},
    {0x093A, 0x093C}, {0x093E, 0x094F}, {0x0951, 0x0957},   {0x0962, 0x0963},   {0x0981, 0x0983},
    {0x09BC, 0x09BC}, {0x09BE, 0x09C4}, {0x09C7, 0x09C8},   {0x09CB, 0x09CD},   {0x09D7, 0x09D7},
    {0x09E2, 0x09E3}, {0x0E31, 0x0E31}, {0x0E33, 0x0E3A},   {0x0E47, 0x0E4E},   {0x1AB0, 0x1AFF},
    {0x1DC0, 0x1DFF}, {0x200C, 0x200D}, {0x20D0, 0x20FF},   {0x302A, 0x302F},   {0x3099, 0x309A},
    {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}, {0xE0020, 0xE007F}, {0xE0100, 0xE01EF},
    {0x0EB1, 0x0EB1}, {0x0EB3, 0x0EBC}, {0x0EC8, 0x0ECE},   {0x180B, 0x180D},
}};

constexpr std::array<Range, 44> pictographic = {{
    {0x00A9, 0x00A9},   {0x00AE, 0x00AE},   {0x203C, 0x203C},   {0x2049, 0x2049},
    {0x2122, 0x2122},   {0x2139, 0x2139},   {0x2194, 0x2199},   {0x21A9, 0x21AA},
    {0x231A, 0x231B},   {0x2328, 0x2328},   {0x2388, 0x2388},   {0x23CF, 0x23CF},
    {0x23E9, 0x23F3},   {0x23F8, 0x23FA},   {0x24C2, 0x24C2},   {0x25AA, 0x25AB},
    {0x25B6, 0x25B6},   {0x25C0, 0x25C0},   {0x25FB, 0x25FE},   {0x2600, 0x27BF},
    {0x2934, 0x2935},   {0x2B05, 0x2B07},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},
    {0x2B55, 0x2B55},   {0x3030, 0x3030},   {0x303D, 0x303D},   {0x3297, 0x3297},
    {0x3299, 0x3299},   {0x1F000, 0x1F0FF}, {0x1F10D, 0x1F10F}, {0x1F12F, 0x1F12F},
    {0x1F16C, 0x1F171}, {0x1F17E, 0x1F17F}, {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A},
    {0x1F1AD, 0x1F1E5}, {0x1F201, 0x1F20F}, {0x1F21A, 0x1F21A}, {0x1F22F, 0x1F22F},
    {0x1F232, 0x1F23A}, {0x1F23C, 0x1F3FA}, {0x1F400, 0x1FAFF}, {0x1FC00, 0x1FFFD},
}};

bool isControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029;
}
bool attaches(char32_t c) {
    return inRanges(attaching, c);
}
bool isPictographic(char32_t c) {
    return inRanges(pictographic, c);
}
bool isRegionalIndicator(char32_t c) {
    return c >= 0x1F1E6 && c <= 0x1F1FF;
}

// Hangul syllable structure: leading consonants, vowels, trailing consonants, and the
// precomposed syllables with (LVT) or without (LV) a trailing consonant.
enum class Jamo { none, leading, vowel, trailing, syllableLV, syllableLVT };

Jamo jamo(char32_t c) {
    if ((c >= 0x1100 && c <= 0x115F) || (c >= 0xA960 && c <= 0xA97C)) {
        return Jamo::leading;
    }
    if ((c >= 0x1160 && c <= 0x11A7) || (c >= 0xD7B0 && c <= 0xD7C6)) {
        return Jamo::vowel;
    }
    if ((c >= 0x11A8 && c <= 0x11FF) || (c >= 0xD7CB && c <= 0xD7FB)) {
        return Jamo::trailing;
    }
    if (c >= 0xAC00 && c <= 0xD7A3) {
        return (c - 0xAC00) % 28 == 0 ? Jamo::syllableLV : Jamo::syllableLVT;
    }
    return Jamo::none;
}

bool hangulJoins(char32_t before, char32_t after) {
    const Jamo a = jamo(before);
    const Jamo b = jamo(after);
    switch (a) {
        case Jamo::leading:
            return b != Jamo::none && b != Jamo::trailing;
        case Jamo::vowel:
        case Jamo::syllableLV:
            return b == Jamo::vowel || b == Jamo::trailing;
        case Jamo::trailing:
        case Jamo::syllableLVT:
            return b == Jamo::trailing;
        case Jamo::none:
            return false;
    }
    return false;
}

// What the cluster being read has seen so far, as far as the joining rules need it.
struct Cluster {
    char32_t last = 0;
    int regionalIndicators = 0;    // in a row at the cluster's start
    bool pictographicRun = false;  // ends in a pictographic character and attaching marks

    bool joins(char32_t next) const {
        if (isControl(next)) {
            return false;
        }
        if (attaches(next) || hangulJoins(last, next)) {
            return true;
        }
        if (isRegionalIndicator(next)) {
            return regionalIndicators == 1;
        }
        return last == zeroWidthJoiner && pictographicRun && isPictographic(next);
    }

    void add(char32_t next) {
        regionalIndicators = isRegionalIndicator(next) ? regionalIndicators + 1 : 0;
        pictographicRun = isPictographic(next) || (pictographicRun && attaches(next));
        last = next;
    }
};

}  // namespace

std::size_t clusterEnd(std::string_view text, std::size_t offset) {
    const char32_t first = utf8::decode(text, offset);
    if (first == carriageReturn && offset < text.size() && text[offset] == '\n') {
        return offset + 1;
    }
    if (isControl(first)) {
        return offset;
    }
    Cluster cluster;
    cluster.add(first);
    while (offset < text.size()) {
        std::size_t next = offset;
        const char32_t codePoint = utf8::decode(text, next);
        if (!cluster.joins(codePoint)) {
            break;
        }
        cluster.add(codePoint);
        offset = next;
    }
    return offset;
}

std::size_t count(std::string_view text) {
    std::size_t clusters = 0;
    for (std::size_t offset = 0; offset < text.size(); offset = clusterEnd(text, offset)) {
        ++clusters;
    }
    return clusters;
}

std::string_view prefix(std::string_view text, std::size_t limit) {
    std::size_t offset = 0;
    for (std::size_t taken = 0; taken < limit && offset < text.size(); ++taken) {
        offset = clusterEnd(text, offset);
    }
    return text.substr(0, offset);
}

}  // namespace tactora::graphemes
