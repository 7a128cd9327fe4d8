#include "tests/support/Rtf.h"

#include <charconv>
#include <cstdint>

namespace draftwick::test {

namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

class Lexer {
public:
    explicit Lexer(std::string_view rtf) : rtf_(rtf) {}

    std::vector<Token> Run() {
        while (position_ < rtf_.size()) {
            const std::size_t start = position_;
            const char c = rtf_[position_];
            if (c == '{' || c == '}') {
                ++position_;
                Add(start, c == '{' ? Token::GroupStart : Token::GroupEnd, std::string(1, c));
            } else if (c == '\\') {
                ++position_;
                Control(start);
            } else if (c == '\r' || c == '\n') {
                ++position_;
            } else {
                position_ = std::min(rtf_.find_first_of("{}\\\r\n", position_), rtf_.size());
                Add(start, Token::Text, Since(start));
            }
        }
        return std::move(tokens_);
    }

private:
    char Peek() const { return position_ < rtf_.size() ? rtf_[position_] : '\0'; }
    std::string Since(std::size_t start) const { return std::string(rtf_.substr(start, position_ - start)); }

    Token& Add(std::size_t start, Token::Kind kind, std::string text) {
        tokens_.push_back({.kind = kind, .text = std::move(text), .parameter = {}, .offset = start});
        return tokens_.back();
    }

    void Control(std::size_t start) {
        if (position_ == rtf_.size()) throw MalformedRtf("Backslash at the end", start);
        if (IsLetter(Peek())) {
            Word(start);
        } else if (Peek() == '\'') {
            ++position_;
            Hex(start);
        } else {
            const bool carriageReturn = rtf_[position_] == '\r';
            Token& symbol = Add(start, Token::Symbol, std::string(1, rtf_[position_++]));
            if (carriageReturn) {
                symbol.text = "\n";
                if (Peek() == '\n') ++position_;
            }
        }
    }

    void Word(std::size_t start) {
        while (IsLetter(Peek())) ++position_;
        Token& word = Add(start, Token::Word, Since(start + 1));
        if (word.text.size() > 32) throw MalformedRtf("Control word of more than 32 letters", start);
        const std::size_t number = position_;
        if (Peek() == '-') ++position_;
        if (!IsDigit(Peek())) {
            position_ = number;
        } else {
            while (IsDigit(Peek())) ++position_;
            std::int32_t value = 0;
            const auto result = std::from_chars(rtf_.data() + number, rtf_.data() + position_, value);
            if (result.ec != std::errc()) throw MalformedRtf("Parameter of more than 32 bits", start);
            word.parameter = value;
        }
        if (Peek() == ' ') {
            word.delimiter = true;
            ++position_;
        }
    }

    void Hex(std::size_t start) {
        const std::string digits(rtf_.substr(position_, 2));
        int value = 0;
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (digits.size() != 2 || result.ptr != digits.data() + 2 || value < 0) {
            throw MalformedRtf("No two hexadecimal digits", start);
        }
        position_ += 2;
        Add(start, Token::Hex, digits).parameter = value;
    }

    std::string_view rtf_;
    std::size_t position_ = 0;
    std::vector<Token> tokens_;
};

/// The first CR without LF or LF without CR.
std::optional<std::size_t> LoneLineBreak(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes.substr(i, 2) == "\r\n") {
            ++i;
        } else if (bytes[i] == '\r' || bytes[i] == '\n') {
            return i;
        }
    }
    return std::nullopt;
}

/// The byte behind the group that the file begins with.
std::optional<std::size_t> EndOfDocument(const std::vector<Token>& tokens) {
    int depth = 0;
    for (const Token& token : tokens) {
        if (token.kind == Token::GroupStart) ++depth;
        if (token.kind == Token::GroupEnd && --depth == 0) return token.offset + 1;
    }
    return std::nullopt;
}

}  // namespace

std::vector<Token> Lex(std::string_view rtf) { return Lexer(rtf).Run(); }

void CheckBalanced(const std::vector<Token>& tokens) {
    std::vector<std::size_t> open;
    for (const Token& token : tokens) {
        if (token.kind == Token::GroupStart) open.push_back(token.offset);
        if (token.kind == Token::GroupEnd) {
            if (open.empty()) throw MalformedRtf("Group ends that never began", token.offset);
            open.pop_back();
        }
    }
    if (!open.empty()) throw MalformedRtf("Group never ends that began", open.back());
}

std::vector<std::string> CheckFile(std::string_view bytes, LineBreaks lineBreaks) {
    std::vector<std::string> complaints;
    const auto complain = [&](std::string_view what, std::size_t offset) {
        complaints.push_back(std::string(what) + " at byte " + std::to_string(offset));
    };
    if (!bytes.starts_with("{\\rtf1")) complain("No {\\rtf1", 0);
    if (const std::size_t zero = bytes.find('\0'); zero != bytes.npos) complain("Zero byte", zero);
    if (lineBreaks == LineBreaks::OnlyCrLf) {
        if (const auto lone = LoneLineBreak(bytes)) complain("Line break other than CR LF", *lone);
    }
    try {
        const std::vector<Token> tokens = Lex(bytes);
        CheckBalanced(tokens);
        const auto end = EndOfDocument(tokens);
        if (end && bytes.substr(*end) != "\r\n") complain("Not just CR LF after the document", *end);
    } catch (const MalformedRtf& malformed) {
        complaints.emplace_back(malformed.what());
    }
    return complaints;
}

std::string Words(std::string_view rtf) {
    std::string words;
    bool afterWord = false;
    for (const Token& token : Lex(rtf)) {
        switch (token.kind) {
        case Token::GroupStart:
        case Token::GroupEnd: words += token.text; break;
        case Token::Word:
            words += "\\" + token.text;
            if (token.parameter) words += std::to_string(*token.parameter);
            break;
        case Token::Symbol: words += "\\" + token.text; break;
        case Token::Hex: words += "\\'" + token.text; break;
        case Token::Text: words += (afterWord ? " " : "") + token.text; break;
        }
        afterWord = token.kind == Token::Word;
    }
    return words;
}

}  // namespace draftwick::test
