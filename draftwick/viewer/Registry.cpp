#include <draftwick/base/Units.h>
#include <draftwick/text/CaseFolding.h>
#include <draftwick/viewer/internal/Registry.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <optional>
#include <sstream>

namespace draftwick {

namespace {

using platform::RegistryType;

constexpr std::size_t DoubleSize = 8;

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

/// The finite number that a whole text stands for.
std::optional<double> ParseNumber(std::string_view text) {
    text = Trimmed(text);
    if (text.find_first_not_of("0123456789+-.eE") != text.npos) return {};
    // libc++ before 20 has no std::from_chars for it.
    std::istringstream stream{std::string{text}};
    stream.imbue(std::locale::classic());
    double number = 0;
    if (!(stream >> number) || stream.peek() != std::istringstream::traits_type::eof()) return {};
    return number;
}

std::optional<double> NumberOf(const std::variant<std::monostate, std::string, std::int32_t>& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
    if (const auto* text = std::get_if<std::string>(&value)) return ParseNumber(*text);
    return {};
}

}  // namespace

std::string Registry::KeyPath(std::string_view section) const {
    if (section.empty()) return path_;
    std::string path = path_ + "\\";
    path += section;
    return path;
}

Registry::Value Registry::QueryValue(std::string_view section, std::string_view key) const {
    RegistryType type{};
    std::string bytes;
    if (store_.QueryValue(root_, KeyPath(section), std::string{key}, type, bytes)) return {};
    if (type == RegistryType::Text) {
        // The last character is taken to be the terminating zero, whatever it is, and all its bytes; what
        // stands behind an earlier zero is no text.
        while (!bytes.empty() && (static_cast<unsigned char>(bytes.back()) & 0xC0) == 0x80) bytes.pop_back();
        if (!bytes.empty()) bytes.pop_back();
        return bytes.substr(0, bytes.find('\0'));
    }
    if (type == RegistryType::Number && bytes.size() == 4) {
        std::uint32_t number = 0;
        for (std::size_t i = 4; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[i]);
        return static_cast<std::int32_t>(number);
    }
    return {};
}

/// A text is stored with its terminating zero when that stands behind it.
void Registry::SetValue(std::string_view section, std::string_view key, RegistryType type, const char* data,
                        std::size_t size) const {
    if (type == RegistryType::Text && size > 0 && data[size - 1] != '\0' && data[size] == '\0') ++size;
    store_.SetValue(root_, KeyPath(section), std::string{key}, type, {data, size});
}

std::string Registry::ReadString(std::string_view section, std::string_view key,
                                 std::string_view fallback) const {
    const Value value = QueryValue(section, key);
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
    return std::string{fallback};
}

std::int32_t Registry::ReadLong(std::string_view section, std::string_view key, std::int32_t fallback) const {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::optional<double> number = NumberOf(QueryValue(section, key));
    if (!number) return fallback;
    const double rounded = std::nearbyint(*number);
    return rounded >= Limits::min() && rounded <= Limits::max() ? static_cast<std::int32_t>(rounded)
                                                                : fallback;
}

double Registry::ReadDouble(std::string_view section, std::string_view key, double fallback) const {
    return NumberOf(QueryValue(section, key)).value_or(fallback);
}

bool Registry::ReadBoolean(std::string_view section, std::string_view key, bool fallback) const {
    const Value value = QueryValue(section, key);
    if (const auto number = NumberOf(value)) return *number != 0;
    if (const auto* text = std::get_if<std::string>(&value)) {
        const std::string word = FoldCase(Trimmed(*text));
        if (word == "true" || word == "false") return word == "true";
    }
    return fallback;
}

void Registry::WriteString(std::string_view section, std::string_view key, const std::string& value) const {
    SetValue(section, key, RegistryType::Text, value.c_str(), value.size());
}

void Registry::WriteLong(std::string_view section, std::string_view key, std::int32_t value) const {
    std::array<char, 4> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(static_cast<std::uint32_t>(value) >> (8 * i) & 0xFF);
    }
    SetValue(section, key, RegistryType::Number, bytes.data(), bytes.size());
}

void Registry::WriteDouble(std::string_view section, std::string_view key, double value) const {
    std::array<char, 32> text{};
    std::to_chars(text.data(), text.data() + text.size() - 1, value, std::chars_format::general, 15);
    SetValue(section, key, RegistryType::Text, text.data(), DoubleSize);
}

void Registry::WriteBoolean(std::string_view section, std::string_view key, bool value) const {
    WriteLong(section, key, value ? -1 : 0);
}

std::vector<std::string> Registry::ReadAllSubKeys(std::string_view section) const {
    return store_.SubKeys(root_, KeyPath(section));
}

std::vector<std::string> Registry::ReadAllValueNames(std::string_view section) const {
    return store_.ValueNames(root_, KeyPath(section));
}

void Registry::DeleteSection(std::string_view section) const {
    if (KeyPath(section).find_first_not_of('\\') == std::string::npos) return;  // that would be all there is
    if (store_.CreateKey(root_, path_)) return;
    // A key that has subkeys cannot be deleted: the deepest go first.
    for (const std::string& name : ReadAllSubKeys(section)) {
        DeleteSection(section.empty() ? name : std::string{section} + "\\" + name);
    }
    store_.DeleteKey(root_, path_.empty() ? std::string{section} : KeyPath(section));
}

}  // namespace draftwick
