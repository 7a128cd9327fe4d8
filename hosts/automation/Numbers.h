#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace draftwick::automation {

template <class Character>
constexpr Character ToLower(Character c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Character>(c - 'A' + 'a') : c;
}

/// Whether a host that writes this means that. Capitals do not count.
inline bool IsNamed(std::string_view name, std::wstring_view written) {
    return std::ranges::equal(name, written, {}, ToLower<wchar_t>, ToLower<wchar_t>);
}

/// The number by which automation calls a member (its DISPID). It is made of the name, whose capitals do not count,
/// because programs that were compiled with the type library have it inside: it must never change.
template <class Character>
constexpr std::int32_t NumberOf(std::basic_string_view<Character> name) {
    std::uint32_t hash = 2166136261u;  // FNV-1a, 32 bits
    for (const Character c : name) hash = (hash ^ static_cast<std::uint32_t>(ToLower(c))) * 16777619u;
    return static_cast<std::int32_t>(hash & 0x3FFFFFFF) | 0x10000;
}

/// That of the member that a host means by an object alone (DISPID_VALUE).
constexpr std::int32_t DefaultNumber = 0;
/// That of what For Each asks of a collection (DISPID_NEWENUM).
constexpr std::int32_t EnumeratorNumber = -4;

}  // namespace draftwick::automation
