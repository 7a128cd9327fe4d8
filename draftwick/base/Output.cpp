#include <draftwick/base/Output.h>
#include <draftwick/base/Utf8.h>
#include <draftwick/platform/CodePage.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace draftwick {

BlockWriter* Output::SetStream(BlockWriter* stream) noexcept { return std::exchange(stream_, stream); }

void Output::WriteControlWord(std::string_view word) {
    afterControlWord_ = true;
    line_[length_++] = '\\';
    AppendToLine(word);
}

void Output::WriteControlWord(std::string_view word, std::int32_t number) {
    char digits[12];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    afterControlWord_ = true;
    line_[length_++] = '\\';
    std::memcpy(line_ + length_, word.data(), word.size());
    length_ += word.size();
    AppendToLine({digits, static_cast<std::size_t>(end - digits)});
}

void Output::WriteWord(const WordList& words, std::int32_t value) {
    const std::string_view word = words[value];
    if (!word.empty()) WriteControlWord(word);
}

void Output::WriteText(std::string_view text) {
    if (afterControlWord_) line_[length_++] = ' ';
    AppendEncoded(text);
    FlushLongLine();
    afterControlWord_ = false;
}

void Output::WriteGroupStart() {
    AppendToLine("{");
    afterControlWord_ = false;
}

void Output::WriteDestinationStart() { AppendToLine("{\\*"); }

void Output::WriteGroupEnd() {
    AppendToLine("}");
    afterControlWord_ = false;
}

void Output::FlushLine() {
    if (length_ > 0 && stream_ != nullptr) {
        stream_->Append(line_, length_);
        stream_->Append("\r\n", 2);
    }
    length_ = 0;
    hasReturn_ = false;
}

void Output::ReadFailed(std::error_code error, const std::string& name) {
    readFailure_ = error;
    unreadFile_ = name;
}

void Output::Checkpoint() {
    if (stream_ != nullptr) stream_->Checkpoint();
    const std::error_code failure = std::exchange(readFailure_, {});
    if (failure) RaiseFileError(failure, "read", unreadFile_);
}

// Between two appends the line holds less than LongLine characters, and no control word is longer than a few
// dozen: there is always room.
void Output::AppendToLine(std::string_view ascii) {
    std::memcpy(line_ + length_, ascii.data(), ascii.size());
    length_ += ascii.size();
    if (length_ >= LongLine) FlushLongLine();
}

void Output::AppendEncoded(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        if (Room - length_ < platform::LongestAnsiCharacter) MakeRoom();
        const std::size_t run =
            SkipAscii(text.substr(0, std::min(text.size(), at + Room - length_)), at) - at;
        if (run > 0) {
            std::memcpy(line_ + length_, text.data() + at, run);
            if (!hasReturn_) hasReturn_ = std::memchr(line_ + length_, '\r', run) != nullptr;
            length_ += run;
            at += run;
        } else {
            length_ += platform::EncodeAnsi(DecodeUtf8(text, at), line_ + length_);
        }
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
    hasReturn_ = waits;
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
    hasReturn_ = false;
    afterControlWord_ = false;
}

void Output::DropLineBreaks() {
    if (!hasReturn_) return;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < length_; ++i) {
        if (line_[i] == '\r' && i + 1 < length_ && line_[i + 1] == '\n') {
            ++i;
        } else {
            line_[kept++] = line_[i];
        }
    }
    length_ = kept;
}

}  // namespace draftwick
