#include <draftwick/platform/internal/CodePage.h>
#include <draftwick/rtf/Output.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace draftwick {

namespace {

/// "\u-10179 ?\u-8704 ?" is the longest.
constexpr std::size_t LongestEscape = 24;

/// "\u1055 ?": a UTF-16 unit as a signed number, the blank that ends the word, and one character for readers that do not
/// know the word.
char* PutUnit(char* to, char32_t unit) {
    *to++ = '\\';
    *to++ = 'u';
    to = std::to_chars(to, to + 6, static_cast<std::int16_t>(unit)).ptr;
    *to++ = ' ';
    *to++ = '?';
    return to;
}

/// "\'e9" for a character of Windows-1252, else its UTF-16 units. What that code page leaves open is no character of it
/// to a reader.
char* PutEscape(char* to, char32_t character) {
    constexpr std::string_view Digits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(platform::Windows1252(character));
    if (byte >= 0xA0 || (byte != 0 && byte != character)) {
        *to++ = '\\';
        *to++ = '\'';
        *to++ = Digits[byte / 16];
        *to++ = Digits[byte % 16];
        return to;
    }
    if (character <= 0xFFFF) return PutUnit(to, character);
    const char32_t rest = character - 0x10000;
    return PutUnit(PutUnit(to, 0xD800 + (rest >> 10)), 0xDC00 + (rest & 0x3FF));
}

}  // namespace

BlockWriter* Output::SetStream(BlockWriter* stream) noexcept { return std::exchange(stream_, stream); }

void Output::WriteText(std::string_view text) {
    if (afterControlWord_) line_[length_++] = ' ';
    AppendEncoded(text);
    FlushLongLine();
    afterControlWord_ = false;
}

void Output::WriteDestinationStart() {
    std::memcpy(line_ + length_, "{\\*", 3);
    length_ += 3;
    EndAppend();
}

void Output::FlushLine() {
    if (length_ > 0) {
        Send(line_, length_);
        Send("\r\n", 2);
    }
    length_ = 0;
}

void Output::Keep() {
    FlushLine();
    kept_.emplace_back();
}

std::string Output::TakeKept() {
    FlushLine();
    std::string lines = std::move(kept_.back());
    kept_.pop_back();
    return lines;
}

void Output::PutLines(std::string_view lines) {
    FlushLine();
    Send(lines.data(), lines.size());
}

void Output::Send(const char* bytes, std::size_t size) {
    if (!kept_.empty()) {
        kept_.back().append(bytes, size);
    } else if (stream_ != nullptr) {
        stream_->Append(bytes, size);
    }
}

void Output::AppendNumber(std::int32_t number) {
    if (number >= 0 && number < 10) {
        line_[length_++] = static_cast<char>('0' + number);
    } else {
        length_ = static_cast<std::size_t>(std::to_chars(line_ + length_, line_ + Room, number).ptr - line_);
    }
    EndAppend();
}

void Output::AppendEncoded(std::string_view text) {
    static_assert(platform::LongestAnsiCharacter <= LongestEscape);
    std::size_t at = 0;
    while (at < text.size()) {
        if (Room - length_ < 8) MakeRoom();
        const std::uint64_t bytes = NextBytes(text, at);
        PutBytes(bytes, line_ + length_);
        const std::size_t ascii = std::min(CountBytes(bytes), text.size() - at);
        length_ += ascii;
        at += ascii;
        if (ascii == 8 || at == text.size()) continue;
        if (Room - length_ < LongestEscape) MakeRoom();
        char* const to = line_ + length_;
        const char32_t character = DecodeUtf8(text, at);
        if (standard_) {
            length_ += static_cast<std::size_t>(PutEscape(to, character) - to);
        } else {
            const std::size_t size = platform::EncodeAnsi(character, to);
            if (size == 1 && *to == '?' && stream_ != nullptr) ++lost_;
            length_ += size;
        }
    }
}

/// Sends the beginning of a line that is going to be a long one. A CR at the end waits for its LF.
void Output::MakeRoom() {
    spilled_ = true;
    const bool waits = line_[length_ - 1] == '\r';
    if (waits) --length_;
    DropLineBreaks();
    Send(line_, length_);
    length_ = 0;
    if (waits) line_[length_++] = '\r';
}

void Output::FlushLongLine() {
    if (!spilled_ && length_ < LongLine) return;
    DropLineBreaks();
    Send(line_, length_);
    Send("\r\n", 2);
    length_ = 0;
    spilled_ = false;
    afterControlWord_ = false;
}

void Output::DropLineBreaks() {
    if (standard_) return;
    const auto* first = static_cast<const char*>(std::memchr(line_, '\r', length_));
    if (first == nullptr) return;
    std::size_t kept = static_cast<std::size_t>(first - line_);
    for (std::size_t i = kept; i < length_; ++i) {
        if (line_[i] == '\r' && i + 1 < length_ && line_[i + 1] == '\n') {
            ++i;
        } else {
            line_[kept++] = line_[i];
        }
    }
    length_ = kept;
}

}  // namespace draftwick
