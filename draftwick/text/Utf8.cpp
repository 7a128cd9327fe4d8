#include <draftwick/text/Utf8.h>

#include <array>
#include <cstdint>

namespace draftwick {

std::uint64_t LastBytes(std::string_view text, std::size_t count) noexcept {
    if (text.size() >= 8) return EightBytes(text.data() + text.size() - 8) >> (8 * (8 - count));
    std::uint64_t bytes = 0;
    for (std::size_t i = text.size(); count-- > 0;) bytes = bytes << 8 | static_cast<unsigned char>(text[--i]);
    return bytes;
}

std::size_t SkipAscii(std::string_view text, std::size_t position) {
    while (position < text.size()) {
        const std::size_t ascii = CountBytes(NextBytes(text, position));
        position += ascii;
        if (ascii < 8) return position;
    }
    return text.size();
}

namespace {

std::uint8_t ByteAt(std::string_view text, std::size_t position) {
    return static_cast<std::uint8_t>(text[position]);
}

/// What the first byte of a sequence says about it. The bounds of the second byte rule out overlong forms,
/// surrogates and values above U+10FFFF; all later bytes are 80 to BF.
struct Lead {
    std::uint8_t length = 0;  // 0: no sequence begins so
    std::uint8_t secondFrom = 0x80;
    std::uint8_t secondTo = 0xBF;
};

constexpr Lead LeadOf(std::size_t byte) {
    if (byte >= 0xC2 && byte <= 0xDF) return {.length = 2};
    if (byte == 0xE0) return {.length = 3, .secondFrom = 0xA0};
    if (byte == 0xED) return {.length = 3, .secondTo = 0x9F};
    if (byte >= 0xE1 && byte <= 0xEF) return {.length = 3};
    if (byte == 0xF0) return {.length = 4, .secondFrom = 0x90};
    if (byte >= 0xF1 && byte <= 0xF3) return {.length = 4};
    if (byte == 0xF4) return {.length = 4, .secondTo = 0x8F};
    return {};
}

constexpr std::array<Lead, 256> Leads = [] {
    std::array<Lead, 256> leads{};
    for (std::size_t byte = 0; byte < leads.size(); ++byte) leads[byte] = LeadOf(byte);
    return leads;
}();

struct Decoded {
    char32_t character;
    bool valid;
};

Decoded Decode(std::string_view text, std::size_t& position) {
    const std::uint8_t first = ByteAt(text, position++);
    if (first < 0x80) return {first, true};
    const Lead& lead = Leads[first];
    if (lead.length == 0) return {ReplacementCharacter, false};
    char32_t character = first & (0x7Fu >> lead.length);
    std::uint8_t from = lead.secondFrom;
    std::uint8_t to = lead.secondTo;
    for (const std::size_t end = position + lead.length - 1; position < end; ++position) {
        if (position == text.size()) return {ReplacementCharacter, false};
        const std::uint8_t byte = ByteAt(text, position);
        if (byte < from || byte > to) return {ReplacementCharacter, false};
        character = (character << 6) | (byte & 0x3Fu);
        from = 0x80;
        to = 0xBF;
    }
    return {character, true};
}

/// The length of the longest well-formed beginning of the text.
std::size_t ValidLength(std::string_view text) {
    std::size_t position = 0;
    for (;;) {
        position = SkipAscii(text, position);
        if (position == text.size()) return position;
        const std::size_t start = position;
        if (!Decode(text, position).valid) return start;
    }
}

}  // namespace

char32_t DecodeAnyUtf8(std::string_view text, std::size_t& position) noexcept {
    return Decode(text, position).character;
}

void AppendUtf8(std::string& text, char32_t character) {
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) {
        character = ReplacementCharacter;
    }
    const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto continuation = [&](int shift) { append(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | (character >> 6));
        continuation(0);
    } else if (character < 0x10000) {
        append(0xE0 | (character >> 12));
        continuation(6);
        continuation(0);
    } else {
        append(0xF0 | (character >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

bool IsValidUtf8(std::string_view text) { return ValidLength(text) == text.size(); }

std::string ToValidUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    for (;;) {
        const std::size_t length = ValidLength(text);
        valid.append(text.substr(0, length));
        text.remove_prefix(length);
        if (text.empty()) return valid;
        std::size_t malformed = 0;
        AppendUtf8(valid, DecodeUtf8(text, malformed));
        text.remove_prefix(malformed);
    }
}

}  // namespace draftwick
