#include "platform/base/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {
constexpr char kReplacement = '?';

// Unicode numbers of the bytes 0x80 to 0xFF.
constexpr std::array<char16_t, 128> kHighHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

using CaseTable = std::array<char, 256>;

struct LetterPair
{
    std::uint8_t upper;
    std::uint8_t lower;
};

// Letters outside the regular blocks A-Z and 0xC0-0xDE, whose small letters stand 0x20 higher.
constexpr LetterPair kIrregularPairs[] = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8D, 0x9D}, {0x8E, 0x9E},
                                          {0x8F, 0x9F}, {0xA3, 0xB3}, {0xA5, 0xB9}, {0xAA, 0xBA},
                                          {0xAF, 0xBF}, {0xBC, 0xBE}};
constexpr unsigned kMultiplicationSign = 0xD7;

constexpr bool IsRegularCapital(unsigned byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != kMultiplicationSign);
}

constexpr CaseTable MakeTable(bool toUpper)
{
    CaseTable table{};
    for (unsigned byte = 0; byte < 256; ++byte)
        table[byte] = static_cast<char>(byte);
    auto const addPair = [&](unsigned upper, unsigned lower) {
        table[toUpper ? lower : upper] = static_cast<char>(toUpper ? upper : lower);
    };
    for (unsigned byte = 0; byte < 256; ++byte)
        if (IsRegularCapital(byte))
            addPair(byte, byte + 0x20);
    for (auto const & pair : kIrregularPairs)
        addPair(pair.upper, pair.lower);
    return table;
}

constexpr CaseTable kUpper = MakeTable(true);
constexpr CaseTable kLower = MakeTable(false);

char ByteOf(char32_t point)
{
    if (point < 0x80)
        return static_cast<char>(point);
    auto const found = std::find(kHighHalf.begin(), kHighHalf.end(), point);
    return found == kHighHalf.end() ? kReplacement : static_cast<char>(0x80 + (found - kHighHalf.begin()));
}

char16_t PointOf(char character)
{
    unsigned const byte = static_cast<std::uint8_t>(character);
    return byte < 0x80 ? static_cast<char16_t>(byte) : kHighHalf[byte - 0x80];
}

unsigned UnitAt(std::string_view text, std::size_t at)
{
    return static_cast<std::uint8_t>(text[at]);
}

// Bytes that follow a UTF-8 lead byte; 0 for a byte that can't lead.
std::size_t FollowersOf(unsigned lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return 1;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 2;
    return lead >= 0xF0 && lead <= 0xF4 ? 3 : 0;
}

// Takes the character that begins at `at` off the text and moves `at` behind it; the byte of a character
// that is broken or outside the code page is the replacement.
char TakeUtf8(std::string_view text, std::size_t & at)
{
    unsigned const lead = UnitAt(text, at++);
    if (lead < 0x80)
        return static_cast<char>(lead);
    std::size_t const followers = FollowersOf(lead);
    char32_t point = lead & (0x3Fu >> followers);
    for (std::size_t i = 0; i < followers; ++i) {
        if (at >= text.size() || (UnitAt(text, at) & 0xC0u) != 0x80u)
            return kReplacement;
        point = (point << 6) | (UnitAt(text, at++) & 0x3Fu);
    }
    return followers == 0 ? kReplacement : ByteOf(point);
}
}  // namespace

char UpperCase1250(char character)
{
    return kUpper[static_cast<std::uint8_t>(character)];
}

char LowerCase1250(char character)
{
    return kLower[static_cast<std::uint8_t>(character)];
}

std::string Utf8From1250(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (char const character : text) {
        unsigned const point = PointOf(character);
        if (point < 0x80)
            result += character;
        else if (point < 0x800)
            result += {static_cast<char>(0xC0 | (point >> 6)), static_cast<char>(0x80 | (point & 0x3F))};
        else
            result +=
                {static_cast<char>(0xE0 | (point >> 12)), static_cast<char>(0x80 | ((point >> 6) & 0x3F)),
                 static_cast<char>(0x80 | (point & 0x3F))};
    }
    return result;
}

std::u16string Utf16From1250(std::string_view text)
{
    std::u16string result(text.size(), u'\0');
    std::ranges::transform(text, result.begin(), PointOf);
    return result;
}

std::string Text1250FromUtf8(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        result += TakeUtf8(text, at);
    return result;
}

std::string Text1250FromUtf16(std::u16string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (char16_t const unit : text)
        result += ByteOf(unit);
    return result;
}
