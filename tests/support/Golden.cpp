#include "tests/support/Golden.h"

#include "tests/support/Rtf.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace draftwick::test {

namespace {

std::string Visible(std::string_view bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string visible;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\r') {
            visible += "<CR>";
        } else if (c == '\n') {
            visible += "<LF>";
        } else if (byte < 0x20 || byte > 0x7E) {
            visible += {'<', digits[byte >> 4], digits[byte & 15], '>'};
        } else {
            visible += c;
        }
    }
    return visible;
}

/// The control word or text that the byte at the offset belongs to; the byte alone in malformed RTF.
std::string_view PieceAt(std::string_view bytes, std::size_t offset) try {
    const std::vector<Token> tokens = Lex(bytes);
    const auto next = std::upper_bound(tokens.begin(), tokens.end(), offset,
                                       [](std::size_t o, const Token& token) { return o < token.offset; });
    const std::size_t from = next == tokens.begin() ? 0 : (next - 1)->offset;
    const std::size_t to = next == tokens.end() ? bytes.size() : next->offset;
    return bytes.substr(from, to - from);
} catch (const MalformedRtf&) {
    return bytes.substr(offset, 1);
}

/// The piece at the offset, and the 40 bytes before and after the offset.
std::string Around(std::string_view bytes, std::size_t offset) {
    const std::string piece =
        offset < bytes.size() ? Visible(PieceAt(bytes, offset).substr(0, 80)) : "end of the file";
    const std::size_t before = std::min<std::size_t>(offset, 40);
    return piece + "\n    ..." + Visible(bytes.substr(offset - before, before)) + "[here]"
           + Visible(bytes.substr(offset, 40)) + "...\n";
}

}  // namespace

std::string Difference(std::string_view expected, std::string_view actual) {
    const auto [e, a] = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    if (e == expected.end() && a == actual.end()) return {};
    const auto offset = static_cast<std::size_t>(e - expected.begin());
    const auto line = std::count(expected.begin(), e, '\n') + 1;
    return "byte " + std::to_string(offset) + ", line " + std::to_string(line)
           + "\n  expected: " + Around(expected, offset) + "  actual:   " + Around(actual, offset);
}

void ExpectGolden(std::string_view actual, const std::string& name, const char* file, int line) {
    const std::string golden = DRAFTWICK_GOLDEN_FOLDER "/" + name;
    const std::filesystem::path left = DRAFTWICK_GOLDEN_ACTUAL_FOLDER "/" + name;
    const bool exists = std::filesystem::exists(golden);
    const std::string difference = exists ? Difference(ReadFile(golden), actual) : "there is no such file\n";
    if (difference.empty()) {
        std::filesystem::remove(left);
        return;
    }
    std::filesystem::create_directories(left.parent_path());
    WriteFile(left.string(), actual);
    ADD_FAILURE_AT(file, line) << "golden file " << golden << ": " << difference << "The actual file is "
                               << left.string();
}

}  // namespace draftwick::test
