#pragma once

#include "hosts/command/Message.h"

#include <fstream>
#include <string>
#include <string_view>

namespace draftwick::command {

/// A text that is read once, in flat memory, without the mark of its encoding at the beginning. It knows where it is.
class Input {
public:
    /// Opens a file; "-" is standard input. Failure when it cannot be read, here and later.
    explicit Input(const std::string& file);
    /// A text that is there.
    Input(std::string text, std::string name);

    /// The byte that comes next; a zero byte at the end.
    char Peek() const { return AtEnd() ? '\0' : buffer_[next_]; }
    char Take() {
        if (AtEnd()) return '\0';
        const char taken = buffer_[next_++];
        if (taken == '\n') {
            ++line_;
            lineStart_ = Tell();
        }
        if (AtEnd()) Fill();
        return taken;
    }
    bool AtEnd() const { return next_ == buffer_.size(); }
    void SkipBlanks();
    /// What comes next, as far as it has been read: as much as there is, or many lines.
    std::string_view Ahead() const { return std::string_view{buffer_}.substr(next_); }
    /// All that is left.
    std::string Rest();

    /// How many bytes have been taken.
    std::size_t Tell() const { return before_ + next_; }
    /// The part of a file that has been taken, 0 to 1; 0 when nobody knows.
    double Share() const;
    const std::string& Name() const { return name_; }
    std::int64_t Line() const { return line_; }
    std::int64_t Column() const { return static_cast<std::int64_t>(Tell() - lineStart_) + 1; }

private:
    void SkipMark();
    void Fill();

    std::string name_;
    std::ifstream file_;
    std::istream* source_ = nullptr;  // nullptr: there is nothing but the buffer
    double size_ = 0;                 // of the file
    std::string buffer_;
    std::size_t next_ = 0;
    std::size_t before_ = 0;  // bytes in front of the buffer
    std::int64_t line_ = 1;
    std::size_t lineStart_ = 0;
};

}  // namespace draftwick::command
