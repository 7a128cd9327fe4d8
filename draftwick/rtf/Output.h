#pragma once

#include <draftwick/rtf/BlockWriter.h>
#include <draftwick/text/Scripts.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick {

/// The primitive writers: the only way from the library to an RTF file. They insert the one space between a
/// control word and the text after it and decide where lines end.
///
/// A line ends after the append that brings it to 128 characters or more, never inside an append; CR LF pairs
/// that the host sent in raw text are taken out of such a line. FlushLine ends a line where it stands and leaves
/// its content alone. Every line ends in CR LF. Characters are counted as the file has them, one byte each.
///
/// In the standard spelling the file is ASCII: other characters are written as escapes, and a host's line breaks in raw
/// text, which can end a control word, stay.
class Output {
public:
    /// Where lines go from now on; nullptr drops them. Not owned. The line that was begun stays.
    BlockWriter* SetStream(BlockWriter* stream) noexcept;

    void UseStandardSpelling() noexcept { standard_ = true; }
    bool Standard() const noexcept { return standard_; }

    /// "\word". A line break after it delimits it as well as a space would.
    void WriteControlWord(std::string_view word) {
        BeginControlWord(word);
        EndAppend();
    }
    /// "\word" directly followed by the number, "\li-360".
    void WriteControlWord(std::string_view word, std::int32_t number) {
        BeginControlWord(word);
        AppendNumber(number);
    }
    /// Control words that were written before, each as an append of its own.
    void WriteControlWords(std::string_view words);
    /// A place on a line.
    struct Place {
        std::uint64_t line;
        std::size_t position;
    };
    Place Here() const noexcept { return {lines_, length_}; }
    /// What was written since then; empty when a line ended in between.
    std::string_view WordsSince(Place start) const noexcept {
        if (start.line != lines_) return {};
        return {line_ + start.position, length_ - start.position};
    }
    /// UTF-8 text that is already escaped, after one space if a control word comes before it.
    void WriteText(std::string_view text, Letters letters = Letters::Any);
    void WriteGroupStart() { WriteBrace('{'); }
    /// "{\*". Whether a control word came last stays as it was.
    void WriteDestinationStart();
    void WriteGroupEnd() { WriteBrace('}'); }
    /// Ends the line that was begun, if there is one.
    void FlushLine();
    /// From here on lines are kept in memory, until TakeKept gives them back; once within the other, too.
    void Keep();
    std::string TakeKept();
    /// Lines that were kept, behind the line that was begun.
    void PutLines(std::string_view lines);
    /// Reports a failure of the file that lines go to. Called between two objects, never within one.
    void Checkpoint() {
        if (stream_ != nullptr) stream_->Checkpoint();
    }
    /// How many characters the file could not hold: "?" stands in their place.
    std::uint64_t Lost() const noexcept { return lost_; }

private:
    // Between two appends the line holds less than LongLine characters, and no control word is longer than a few
    // dozen: there is always room. In the header the lengths of the words are constants: no copy is a call.
    void BeginControlWord(std::string_view word) {
        afterControlWord_ = true;
        line_[length_] = '\\';
        std::memcpy(line_ + length_ + 1, word.data(), word.size());
        length_ += 1 + word.size();
    }
    void AppendNumber(std::int32_t number);
    void WriteBrace(char brace) {
        line_[length_++] = brace;
        EndAppend();
        afterControlWord_ = false;
    }
    void EndAppend() {
        if (length_ >= LongLine) FlushLongLine();
    }
    void AppendEncoded(std::string_view text);
    char* PutEncoded(char32_t character, char* to);
    void Send(const char* bytes, std::size_t size);
    void MakeRoom();
    void FlushLongLine();
    void DropLineBreaks();

    static constexpr std::size_t LongLine = 128;
    static constexpr std::size_t Room = 1024;

    BlockWriter* stream_ = nullptr;
    std::vector<std::string> kept_;
    std::size_t length_ = 0;
    std::uint64_t lost_ = 0;
    std::uint64_t lines_ = 0;  // that ended
    bool afterControlWord_ = false;
    bool standard_ = false;
    bool spilled_ = false;  // the line is longer than the buffer: its beginning is on its way already
    char line_[Room];
};

}  // namespace draftwick
