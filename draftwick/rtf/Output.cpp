#include <draftwick/platform/internal/CodePage.h>
#include <draftwick/rtf/Output.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace draftwick {

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
    if (length_ > 0 && stream_ != nullptr) {
        stream_->Append(line_, length_);
        stream_->Append("\r\n", 2);
    }
    length_ = 0;
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
    static_assert(platform::LongestAnsiCharacter <= 8);
    std::size_t at = 0;
    while (at < text.size()) {
        if (Room - length_ < 8) MakeRoom();
        const std::uint64_t bytes = NextBytes(text, at);
        PutBytes(bytes, line_ + length_);
        const std::size_t ascii = std::min(CountBytes(bytes), text.size() - at);
        length_ += ascii;
        at += ascii;
        if (ascii == 8 || at == text.size()) continue;
        if (Room - length_ < 8) MakeRoom();
        length_ += platform::EncodeAnsi(DecodeUtf8(text, at), line_ + length_);
    }
}

/// Sends the beginning of a line that is going to be a long one. A CR at the end waits for its LF.
void Output::MakeRoom() {
    spilled_ = true;
    const bool waits = line_[length_ - 1] == '\r';
    if (waits) --length_;
    DropLineBreaks();
    if (stream_ != nullptr) stream_->Append(line_, length_);
    length_ = 0;
    if (waits) line_[length_++] = '\r';
}

void Output::FlushLongLine() {
    if (!spilled_ && length_ < LongLine) return;
    DropLineBreaks();
    if (stream_ != nullptr) {
        stream_->Append(line_, length_);
        stream_->Append("\r\n", 2);
    }
    length_ = 0;
    spilled_ = false;
    afterControlWord_ = false;
}

void Output::DropLineBreaks() {
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
