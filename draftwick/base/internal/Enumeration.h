#pragma once

#include <draftwick/base/Variant.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

/// The names of types and the names and numbers of an enumeration's values, as the compiler spells them: they are typed
/// where the enumeration is declared and nowhere else.
namespace draftwick {

/// Where the values of an enumeration are looked for: among 16 numbers at a time, from `first` to `last` and then on
/// until the last 8 of them are no values.
struct EnumerationRange {
    std::int32_t first = 0;
    std::int32_t last = first;
};
/// An enumeration that begins elsewhere or has larger gaps says so by a specialisation.
template <class Enumeration>
inline constexpr EnumerationRange RangeOf{};

namespace detail {

/// By GCC "... [with auto ...Values = {draftwick::dwInches, (draftwick::dwScaleMode)4, true}]", by Clang
/// "... [Values = <draftwick::dwInches, (draftwick::dwScaleMode)4, true>]": a number that is no value is a cast.
template <auto... Values>
constexpr const char* SourceText() {
    return __PRETTY_FUNCTION__;
}
/// By GCC "... [with Named = draftwick::dwScaleMode]", by Clang "... [Named = draftwick::dwScaleMode]".
template <class Named>
constexpr std::string_view SourceText() {
    std::string_view name = __PRETTY_FUNCTION__;
    name = name.substr(0, name.find_first_of(";]"));
    return name.substr(name.find_last_of(" :") + 1);
}

constexpr std::int32_t BlockSize = 16;

/// Some values of an enumeration.
template <std::size_t Capacity>
struct Values {
    std::array<EnumerationValue, Capacity> values{};
    std::size_t count = 0;
    std::size_t letters = 0;  // of all names

    constexpr void Add(const EnumerationValue& value) {
        values[count++] = value;
        letters += value.name.size();
    }
    template <std::size_t Size>
    constexpr void Add(const Values<Size>& more) {
        for (std::size_t i = 0; i < more.count; ++i) Add(more.values[i]);
    }
};

/// What the compiler's spelling of 16 numbers tells. The names are parts of it.
template <class Enumeration, std::int32_t First, std::int32_t... Offset>
constexpr auto ReadBlock(std::integer_sequence<std::int32_t, Offset...>) {
    // One more, so that a comma ends each number.
    const char* at = SourceText<static_cast<Enumeration>(First + Offset)..., true>();
    while (*at != '=') ++at;
    at += 3;
    Values<BlockSize> block;
    for (std::int32_t number = First; number < First + BlockSize; ++number) {
        const char* name = at;
        bool cast = false;
        for (; *at != ','; ++at) {
            if (*at == ')') cast = true;
            if (*at == ':') {
                name = at + 1;
                cast = false;
            }
        }
        if (!cast) block.Add({{name, static_cast<std::size_t>(at - name)}, number});
        at += 2;
    }
    return block;
}

template <class Enumeration, std::int32_t First>
inline constexpr auto BlockFrom =
    ReadBlock<Enumeration, First>(std::make_integer_sequence<std::int32_t, BlockSize>{});

/// How many blocks there are, with that one.
template <class Enumeration, std::int32_t First>
constexpr std::int32_t CountBlocks() {
    constexpr auto& block = BlockFrom<Enumeration, First>;
    constexpr std::int32_t Next = First + BlockSize;
    constexpr bool goesOn = block.count > 0 && block.values[block.count - 1].value >= Next - BlockSize / 2;
    if constexpr (goesOn || Next <= RangeOf<Enumeration>.last) {
        return 1 + CountBlocks<Enumeration, Next>();
    } else {
        return 1;
    }
}

template <class Enumeration, std::int32_t... Number>
constexpr auto ReadBlocks(std::integer_sequence<std::int32_t, Number...>) {
    Values<sizeof...(Number) * BlockSize> all;
    (all.Add(BlockFrom<Enumeration, RangeOf<Enumeration>.first + Number * BlockSize>), ...);
    return all;
}

template <class Named>
inline constexpr auto LettersOf = [] {
    constexpr std::string_view name = SourceText<Named>();
    std::array<char, name.size()> letters{};
    for (std::size_t i = 0; i < name.size(); ++i) letters[i] = name[i];
    return letters;
}();

}  // namespace detail

/// The name of a type, without its namespaces.
template <class Named>
inline constexpr std::string_view NameOf{detail::LettersOf<Named>.data(), detail::LettersOf<Named>.size()};

template <class Enumeration>
class ValuesOf {
    static constexpr auto Read = detail::ReadBlocks<Enumeration>(
        std::make_integer_sequence<std::int32_t,
                                   detail::CountBlocks<Enumeration, RangeOf<Enumeration>.first>()>{});
    static_assert(Read.count > 0, "RangeOf must say where the values lie");

    /// A copy of the names: without, all that they are cut out of stays in the program.
    static constexpr auto Letters = [] {
        std::array<char, Read.letters> letters{};
        std::size_t at = 0;
        for (const EnumerationValue& value : Read.values) {
            for (std::size_t i = 0; i < value.name.size(); ++i) letters[at++] = value.name[i];
        }
        return letters;
    }();

public:
    /// In the order of their numbers. They live as long as the program.
    static constexpr auto All = [] {
        std::array<EnumerationValue, Read.count> all{};
        const char* name = Letters.data();
        for (std::size_t i = 0; i < all.size(); ++i) {
            all[i] = {{name, Read.values[i].name.size()}, Read.values[i].value};
            name += all[i].name.size();
        }
        return all;
    }();

    /// The numbers are 1, 2, 3 and so on, without a gap.
    static constexpr bool CountFromOne =
        All.front().value == 1 && All.back().value == static_cast<std::int32_t>(All.size());
};

}  // namespace draftwick
