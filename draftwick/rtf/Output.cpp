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

void Output::WriteControlWords(std::string_view words) {
    while (!words.empty()) {
        // Up to the first word that makes the line a long one.
        const std::size_t end = std::min(words.find('\\', LongLine - length_), words.size());
        std::memmove(line_ + length_, words.data(), end);
        length_ += end;
        afterControlWord_ = true;
        EndAppend();
        words.remove_prefix(end);
    }
}

void Output::WriteText(std::string_view text, Letters letters) {
    if (afterControlWord_) line_[length_++] = ' ';
    if (letters == Letters::Ascii && text.size() <= Room - LongLine - 1) {
        // memcpy of less than 1 KiB is slower where the compiler puts it in line.
        std::memmove(line_ + length_, text.data(), text.size());
        length_ += text.size();
    } else {
        AppendEncoded(text);
    }
    if (spilled_ || length_ >= LongLine) FlushLongLine();
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
    ++lines_;
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
    // In pieces that have room, whatever their characters become.
    constexpr std::size_t Piece = 64;
    constexpr std::size_t MostPerByte =
        std::max<std::size_t>(platform::LongestAnsiCharacter, LongestEscape / 4);
    static_assert(Piece * MostPerByte + LongestEscape <= Room / 2);
    for (std::size_t at = 0; at < text.size();) {
        if (length_ > Room / 2) MakeRoom();
        char* to = line_ + length_;
        for (const std::size_t end = std::min(at + Piece, text.size()); at < end;) {
            const std::uint64_t bytes = NextBytes(text, at);
            PutBytes(bytes, to);
            const std::size_t ascii = CountBytes(bytes);
            to += ascii;
            at += ascii;
            if (ascii < 8) to = PutEncoded(DecodeUtf8(text, at), to);
        }
        if (at > text.size()) to -= at - text.size();  // behind the text there were zeros
        length_ = static_cast<std::size_t>(to - line_);
    }
}

char* Output::PutEncoded(char32_t character, char* to) {
    if (standard_) return PutEscape(to, character);
    const std::size_t size = platform::EncodeAnsi(character, to);
    if (size == 1 && *to == '?' && (stream_ != nullptr || !kept_.empty())) ++lost_;
    return to + size;
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
    DropLineBreaks();
    Send(line_, length_);
    Send("\r\n", 2);
    length_ = 0;
    ++lines_;
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
