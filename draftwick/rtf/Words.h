#pragma once

#include <draftwick/base/internal/Enumeration.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace draftwick {

/// A word in both spellings, side by side where it is written; an empty one is not written.
struct Spelled {
    std::string_view classic, standard;
};

/// What stands for each value of an enumeration, in the order of the values from 1: as many as the enumeration has,
/// which the compiler checks. "" is a value without a word.
template <class Enumeration, class Word = std::string_view>
class Words {
public:
    static_assert(ValuesOf<Enumeration>::CountFromOne, "words need values that are 1, 2, 3 and so on");
    static constexpr std::size_t Count = ValuesOf<Enumeration>::All.size();

    template <class... Each>
    requires(sizeof...(Each) == Count) constexpr Words(const Each&... words) noexcept : words_{words...} {}

    /// The word of a value; an empty one for a number that is no value.
    constexpr Word operator[](Enumeration value) const noexcept {
        return value >= 1 && static_cast<std::size_t>(value) <= Count ? words_[value - 1] : Word{};
    }

private:
    friend class WordList;

    Word words_[Count];
};

/// The words of an enumeration, whichever it is. Refers to words that live as long as the program.
class WordList {
public:
    template <class Enumeration>
    constexpr WordList(const Words<Enumeration>& words) noexcept
        : words_(words.words_), count_(words.Count) {}
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
