#include <draftwick/platform/posix/RegistryTree.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace draftwick::platform::posix {

namespace {

constexpr std::string_view Reserved = "%\"[]";
constexpr std::string_view Number = "dword:";
constexpr std::string_view Hex = "hex(";

/// Case is ignored in ASCII letters.
std::string Folded(std::string_view name) {
    std::string folded{name};
    for (char& c : folded) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return folded;
}

/// Takes the first name off a path; empty at its end. Backslashes in a row are one.
std::string_view NextName(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of('\\'), path.size()));
    const std::string_view name = path.substr(0, path.find('\\'));
    path.remove_prefix(name.size());
    return name;
}

void AppendHex(std::string& to, std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789abcdef";
    for (const char c : bytes) {
        to += Digits[static_cast<unsigned char>(c) >> 4];
        to += Digits[static_cast<unsigned char>(c) & 0xF];
    }
}

std::optional<std::string> FromHex(std::string_view digits) {
    std::string bytes;
    if (digits.size() % 2 != 0) return {};
    for (; !digits.empty(); digits.remove_prefix(2)) {
        unsigned byte = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + 2, byte, 16);
        if (error != std::errc{} || end != digits.data() + 2) return {};
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char& c : text) {
        const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        if (control || Reserved.find(c) != std::string_view::npos) {
            escaped += '%';
            AppendHex(escaped, {&c, 1});
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::optional<std::string> Unescaped(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const std::size_t run = std::min(text.find('%'), text.size());
        plain += text.substr(0, run);
        text.remove_prefix(run);
        if (text.empty()) break;
        if (text.size() < 3) return {};
        const auto byte = FromHex(text.substr(1, 2));
        if (!byte) return {};
        plain += *byte;
        text.remove_prefix(3);
    }
    return plain;
}

void AppendValue(std::string& to, const RegistryTree::Value& value) {
    to += '"' + Escaped(value.name) + "\"=";
    const std::string& bytes = value.bytes;
    if (value.type == RegistryType::Text && !bytes.empty() && bytes.find('\0') == bytes.size() - 1) {
        to += '"' + Escaped(std::string_view{bytes}.substr(0, bytes.size() - 1)) + '"';
    } else if (value.type == RegistryType::Number && bytes.size() == 4) {
        to += Number;
        AppendHex(to, std::string{bytes.rbegin(), bytes.rend()});
    } else {
        to += Hex;
        to += std::to_string(static_cast<std::uint32_t>(value.type)) + "):";
        AppendHex(to, bytes);
    }
    to += '\n';
}

void AppendKey(std::string& to, const RegistryTree& key, const std::string& path) {
    if (!path.empty()) to += "\n[" + path + "]\n";
    for (const auto& value : key.values) AppendValue(to, value);
    for (const auto& [folded, subkey] : key.subkeys) {
        AppendKey(to, subkey, (path.empty() ? path : path + '\\') + Escaped(subkey.name));
    }
}

/// What stands between the first character, which must be `open`, and the first `close`; both are taken off.
std::optional<std::string> TakeQuoted(std::string_view& line, char open, char close) {
    if (!line.starts_with(open)) return {};
    const std::size_t end = line.find(close, 1);
    if (end == std::string_view::npos) return {};
    const std::string_view quoted = line.substr(1, end - 1);
    line.remove_prefix(end + 1);
    return Unescaped(quoted);
}

bool ParseValue(std::string_view text, RegistryTree::Value& value) {
    std::optional<std::string> bytes;
    if (text.starts_with('"')) {
        value.type = RegistryType::Text;
        bytes = TakeQuoted(text, '"', '"');
        if (!bytes || !text.empty()) return false;
        *bytes += '\0';
    } else if (text.starts_with(Number)) {
        value.type = RegistryType::Number;
        bytes = FromHex(text.substr(Number.size()));
        if (!bytes || bytes->size() != 4) return false;
        std::reverse(bytes->begin(), bytes->end());
    } else if (text.starts_with(Hex)) {
        std::uint32_t type = 0;
        const char* const last = text.data() + text.size();
        const auto [end, error] = std::from_chars(text.data() + Hex.size(), last, type);
        const std::string_view rest = text.substr(static_cast<std::size_t>(end - text.data()));
        if (error != std::errc{} || !rest.starts_with("):")) return false;
        value.type = static_cast<RegistryType>(type);
        bytes = FromHex(rest.substr(2));
    }
    if (!bytes) return false;
    value.bytes = std::move(*bytes);
    return true;
}

template <class Tree>
Tree* FindKey(Tree* key, std::string_view path) {
    for (std::string_view name = NextName(path); !name.empty(); name = NextName(path)) {
        const auto found = key->subkeys.find(Folded(name));
        if (found == key->subkeys.end()) return nullptr;
        key = &found->second;
    }
    return key;
}

}  // namespace

const RegistryTree* RegistryTree::Find(std::string_view path) const { return FindKey(this, path); }
RegistryTree* RegistryTree::Find(std::string_view path) { return FindKey(this, path); }

RegistryTree& RegistryTree::Make(std::string_view path) {
    RegistryTree* key = this;
    for (std::string_view next = NextName(path); !next.empty(); next = NextName(path)) {
        key = &key->subkeys.try_emplace(Folded(next), RegistryTree{std::string{next}, {}, {}}).first->second;
    }
    return *key;
}

const RegistryTree::Value* RegistryTree::FindValue(std::string_view value) const {
    const auto found = std::find_if(values.begin(), values.end(), [&](const Value& candidate) {
        return Folded(candidate.name) == Folded(value);
    });
    return found == values.end() ? nullptr : &*found;
}

RegistryTree::Value* RegistryTree::FindValue(std::string_view value) {
    return const_cast<Value*>(std::as_const(*this).FindValue(value));
}

std::error_code RegistryTree::Remove(std::string_view path) {
    RegistryTree* parent = nullptr;
    RegistryTree* key = this;
    for (std::string_view next = NextName(path); !next.empty(); next = NextName(path)) {
        parent = key;
        key = key->Find(next);
        if (key == nullptr) return std::make_error_code(std::errc::no_such_file_or_directory);
    }
    if (parent == nullptr || !key->subkeys.empty()) return std::make_error_code(std::errc::permission_denied);
    parent->subkeys.erase(Folded(key->name));
    return {};
}

bool RegistryTree::IsTooDeep(std::string_view path) {
    return std::count(path.begin(), path.end(), '\\') > 512;
}

std::string RegistryTree::Text() const {
    std::string text;
    AppendKey(text, *this, {});
    return text;
}

bool RegistryTree::Parse(std::string_view text) {
    RegistryTree* key = this;
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with('[')) {
            const auto path = TakeQuoted(line, '[', ']');
            if (!path || !line.empty() || IsTooDeep(*path)) return false;
            key = &Make(*path);
            continue;
        }
        auto valueName = TakeQuoted(line, '"', '"');
        Value value;
        if (!valueName || !line.starts_with('=') || !ParseValue(line.substr(1), value)) return false;
        value.name = std::move(*valueName);
        if (Value* same = key->FindValue(value.name); same != nullptr) {
            *same = std::move(value);
        } else {
            key->values.push_back(std::move(value));
        }
    }
    return true;
}

}  // namespace draftwick::platform::posix
