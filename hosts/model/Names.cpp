#include <hosts/model/Names.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace draftwick::hosts {

namespace {

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsOfWord(char c) { return IsUpper(c) || (c >= 'a' && c <= 'z') || IsDigit(c) || c == '_'; }

/// How much all names begin with: "dwTA" of dwTALeft, dwTACenter, dwTARight. What is left begins with a capital.
std::size_t PrefixOf(const Type& enumeration) {
    const std::string_view first = enumeration.values[0].name;
    std::size_t size = first.size();
    for (const EnumerationValue& value : enumeration.values) {
        const auto same = std::mismatch(first.begin(), first.end(), value.name.begin(), value.name.end());
        size = std::min(size, static_cast<std::size_t>(same.first - first.begin()));
    }
    const auto isStart = [&](const EnumerationValue& value) {
        return size < value.name.size() && IsUpper(value.name[size]);
    };
    while (size > 2 && !std::all_of(enumeration.values.begin(), enumeration.values.end(), isStart)) --size;
    return size;
}

/// Everything that has a name, to find it in texts.
struct Vocabulary {
    std::set<std::string_view> members;
    std::map<std::string_view, const Type*> enumerations;
    std::map<std::string_view, std::pair<const Type*, const EnumerationValue*>> values;

    Vocabulary() {
        for (const Class* one : Classes()) {
            for (const ClassProperty& property : one->properties) members.insert(property.name);
            for (const ClassMethod& method : one->methods) members.insert(method.name);
        }
        // A word that is a class's name means the class.
        for (const Class* one : Classes()) members.erase(one->name);
        for (const Type* type : Enumerations()) {
            enumerations.emplace(type->name, type);
            for (const EnumerationValue& value : type->values)
                values.emplace(value.name, std::pair{type, &value});
        }
    }
};

/// Whether a capitalised word is meant as a name of the object model, and does not only begin a sentence.
bool IsName(std::string_view text, std::size_t start, std::size_t end) {
    const auto inner = text.substr(start + 1, end - start - 1);
    if (std::any_of(inner.begin(), inner.end(), IsUpper)) return true;
    if (start < 2) return false;
    if (text[start - 1] == '.') return IsOfWord(text[start - 2]) || text[start - 2] == ')';
    return text[start - 1] == ' ' && (IsOfWord(text[start - 2]) || text[start - 2] == ',');
}

}  // namespace

std::string SnakeCase(std::string_view name) {
    std::string result;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool afterLower = i > 0 && !IsUpper(name[i - 1]);
        const bool beforeLower = i + 1 < name.size() && !IsUpper(name[i + 1]) && !IsDigit(name[i + 1]);
        if (IsUpper(name[i]) && i > 0 && (afterLower || beforeLower)) result += '_';
        result += static_cast<char>(std::tolower(static_cast<unsigned char>(name[i])));
    }
    return result;
}

std::string PlainName(const Type& enumeration) {
    const std::string name{enumeration.name.substr(2)};
    return FindClass(name) == nullptr ? name : name + "Side";
}

std::string_view PlainValueName(const Type& enumeration, const EnumerationValue& value) {
    return value.name.substr(PrefixOf(enumeration));
}

std::string ConstantName(const Type& enumeration, const EnumerationValue& value) {
    std::string name = SnakeCase(PlainValueName(enumeration, value));
    for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return name;
}

bool AreErrorNumbers(const Type& enumeration) {
    return std::any_of(enumeration.values.begin(), enumeration.values.end(),
                       [](const EnumerationValue& value) {
                           return value.value == dwErrItemNotFound || value.value == dwRunInvalidPicture;
                       });
}

const Class* FindClass(std::string_view name) {
    const auto all = Classes();
    const auto found = std::find_if(all.begin(), all.end(), [&](auto* one) { return one->name == name; });
    return found == all.end() ? nullptr : *found;
}

std::string Respelled(std::string_view text, const Spelling& spelling) {
    static const Vocabulary vocabulary;
    std::string result;
    for (std::size_t start = 0, end = 0; start < text.size(); start = end) {
        while (end < text.size() && IsOfWord(text[end])) ++end;
        std::string_view word = text.substr(start, end - start);
        // "\fs24" is a word of the file.
        const bool ofFile = start > 0 && text[start - 1] == '\\';
        if (const auto value = vocabulary.values.find(word); value != vocabulary.values.end()) {
            result += spelling.constant(*value->second.first, *value->second.second);
        } else if (const auto type = vocabulary.enumerations.find(word);
                   type != vocabulary.enumerations.end()) {
            result += spelling.enumeration(*type->second);
        } else if (!ofFile && !word.empty() && IsUpper(word[0])) {
            const std::string_view plain = word.starts_with("Set") ? word.substr(3) : word;
            if (vocabulary.members.contains(word) && IsName(text, start, end))
                result += spelling.member(word);
            else if (plain != word && vocabulary.members.contains(plain))
                result += spelling.member(plain);
            else
                result += word;
        } else {
            result += word;
        }
        while (end < text.size() && !IsOfWord(text[end])) result += text[end++];
    }
    return result;
}

}  // namespace draftwick::hosts
