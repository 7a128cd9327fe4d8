#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace draftwick {

/// The control words of an enumeration, in the order of its values from 1. "" is a value without a word.
/// Refers to words that live as long as the program.
class WordList {
public:
    template <std::size_t Count>
    constexpr WordList(const std::string_view (&words)[Count]) noexcept : words_(words), count_(Count) {}

    /// The word of a value; empty for a value that has none.
    constexpr std::string_view operator[](std::int32_t value) const noexcept {
        return value >= 1 && static_cast<std::size_t>(value) <= count_ ? words_[value - 1]
                                                                       : std::string_view{};
    }

private:
    const std::string_view* words_;
    std::size_t count_;
};

}  // namespace draftwick
