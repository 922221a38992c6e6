#include "stand_in/unicode_text.h"

#include <cstddef>
#include <cstdint>

namespace practice {

namespace {

// A byte that is no UTF-8 is kept as a value that no character has.
constexpr char32_t BrokenByte = 0xDC00;

struct Character
{
    char32_t value;
    std::size_t length;
};

// The capital letters `first` to `last`, every `step`th of them, become small by adding `distance`.
struct Capitals
{
    char32_t first;
    char32_t last;
    std::int32_t distance;
    char32_t step;
};

constexpr Capitals AllCapitals[] = {
    {0x0041, 0x005A, 32, 1}, {0x00C0, 0x00D6, 32, 1}, {0x00D8, 0x00DE, 32, 1}, {0x0100, 0x012E, 1, 2},
    {0x0132, 0x0136, 1, 2},  {0x0139, 0x0147, 1, 2},  {0x014A, 0x0176, 1, 2},  {0x0178, 0x0178, -121, 1},
    {0x0179, 0x017D, 1, 2},  {0x0386, 0x0386, 38, 1}, {0x0388, 0x038A, 37, 1}, {0x038C, 0x038C, 64, 1},
    {0x038E, 0x038F, 63, 1}, {0x0391, 0x03A1, 32, 1}, {0x03A3, 0x03AB, 32, 1}, {0x0400, 0x040F, 80, 1},
    {0x0410, 0x042F, 32, 1}, {0x0460, 0x0480, 1, 2},  {0x048A, 0x04BE, 1, 2},
};

std::size_t lengthAfter(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

Character characterAt(std::string_view text, std::size_t position)
{
    const auto lead = static_cast<unsigned char>(text[position]);
    const Character broken{BrokenByte + lead, 1};
    const std::size_t length = lengthAfter(lead);
    if (length == 0 || length > text.size() - position)
        return broken;
    if (length == 1)
        return {lead, 1};

    char32_t value = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[position + i]);
        if ((next & 0xC0U) != 0x80)
            return broken;
        value = (value << 6U) | (next & 0x3FU);
    }
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    const bool overlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
    return surrogate || overlong || value > 0x10FFFF ? broken : Character{value, length};
}

char32_t smallLetter(char32_t character)
{
    for (const Capitals &range : AllCapitals) {
        if (character >= range.first && character <= range.last)
            return (character - range.first) % range.step == 0
                       ? static_cast<char32_t>(static_cast<std::int32_t>(character) + range.distance)
                       : character;
    }
    return character;
}

bool isPrintable(char32_t character)
{
    return character >= 0x20 && (character < 0x7F || character > 0x9F)
           && (character < BrokenByte || character > BrokenByte + 0xFF);
}

} // namespace

std::u32string foldedCase(std::string_view text)
{
    std::u32string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const Character character = characterAt(text, position);
        result += smallLetter(character.value);
        position += character.length;
    }
    return result;
}

std::string printable(std::string_view text)
{
    constexpr std::size_t Longest = 64;
    std::string result;
    for (std::size_t position = 0; position < text.size();) {
        const Character character = characterAt(text, position);
        if (result.size() + character.length > Longest)
            return result + "...";
        if (isPrintable(character.value))
            result += text.substr(position, character.length);
        else
            result += '?';
        position += character.length;
    }
    return result;
}

} // namespace practice
