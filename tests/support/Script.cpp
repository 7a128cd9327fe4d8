#include "tests/support/Script.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <stdexcept>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>

namespace draftwick::test {

namespace {

using ObjectPointer = std::shared_ptr<Object>;

[[noreturn]] void Refuse(const std::string& why, std::string_view what) {
    throw std::invalid_argument(why + ": " + std::string{what});
}

/// The words of a step, which blanks divide that are in no text.
std::vector<std::string_view> WordsOf(std::string_view step) {
    std::vector<std::string_view> words;
    bool inText = false;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= step.size(); ++i) {
        if (i < step.size() && step[i] == '\'') inText = !inText;
        if (i < step.size() && (step[i] != ' ' || inText)) continue;
        if (i > start) words.push_back(step.substr(start, i - start));
        start = i + 1;
    }
    if (inText) Refuse("a text without an end", step);
    return words;
}

/// What stands before the first mark, which is taken off with it.
std::string_view Take(std::string_view& text, char mark) {
    const std::size_t end = std::min(text.find(mark), text.size());
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

template <class Number>
Number NumberOf(std::string_view digits, int base = 10) {
    Number number{};
    const char* const end = digits.data() + digits.size();
    const auto read = [&] {
        if constexpr (std::is_floating_point_v<Number>)
            return std::from_chars(digits.data(), end, number);
        else
            return std::from_chars(digits.data(), end, number, base);
    }();
    if (read.ec != std::errc{} || read.ptr != end) Refuse("no number", digits);
    return number;
}

/// 'a%0D%0Ab': % and two hexadecimal digits are a byte.
std::string TextOf(std::string_view quoted) {
    std::string text;
    for (std::string_view rest = quoted.substr(1, quoted.size() - 2); !rest.empty();) {
        const bool escaped = rest[0] == '%';
        text += escaped ? static_cast<char>(NumberOf<unsigned char>(rest.substr(1, 2), 16)) : rest[0];
        rest.remove_prefix(escaped ? 3 : 1);
    }
    return text;
}

Date DateOf(std::string_view word) {
    Date date;
    const std::string text{word};
    if (std::sscanf(text.c_str(), "%d-%d-%dT%d:%d:%d", &date.year, &date.month, &date.day, &date.hour,
                    &date.minute, &date.second)
        != 6) {
        Refuse("no date", word);
    }
    return date;
}

bool IsNumber(std::string_view word) { return word.find_first_of("0123456789-") == 0; }
bool IsConstant(std::string_view word) { return word.starts_with("dw"); }
bool IsSetting(std::string_view word) {
    const std::size_t mark = word.find_first_of("'=");
    return mark != word.npos && word[mark] == '=';
}

}  // namespace

Script::Script(const std::shared_ptr<Document>& document, ObjectPointer object)
    : objects_{{"document", document}, {"special", std::make_shared<Special>()}}, last_(std::move(object)) {}

Variant Script::ValueOf(std::string_view word) const {
    if (word.starts_with('\'')) return TextOf(word);
    if (word == "true" || word == "false") return word == "true";
    if (word == "nothing") return {};
    if (IsConstant(word)) return ConstantNamed(word);
    if (!IsNumber(word)) return Find(word).value;
    if (word.find('T') != word.npos) return DateOf(word);
    if (word.find('.') != word.npos) return NumberOf<double>(word);
    return NumberOf<std::int32_t>(word);
}

Script::Place Script::Follow(ObjectPointer from, std::string_view path,
                             std::span<const Variant> arguments) const {
    Place place{std::move(from), {}};
    while (!path.empty()) {
        const std::string_view member = Take(path, '.');
        Object& object = *place.object;
        const auto given = path.empty() ? arguments : std::span<const Variant>{};
        if (object.Description().FindProperty(member) != nullptr) {
            place.value = GetMember(object, member, given);
        } else if (IsNumber(member) || IsConstant(member)) {
            const Variant key = ValueOf(member);
            place.value = CallMember(object, "Items", {&key, 1});
        } else {
            place.value = CallMember(object, member, given);
        }
        if (const auto* next = std::get_if<ObjectPointer>(&place.value))
            place.object = *next;
        else if (!path.empty())
            Refuse("no object", member);
    }
    return place;
}

Script::Place Script::Find(std::string_view path, std::span<const Variant> arguments) const {
    std::string_view rest = path;
    const auto kept = objects_.find(Take(rest, '.'));
    return kept != objects_.end() ? Follow(kept->second, rest, arguments)
                                  : Follow(objects_.at("document"), path, arguments);
}

void Script::Set(std::string_view setting) const {
    std::string_view value = setting;
    const std::string_view path = Take(value, '=');
    const std::size_t dot = path.rfind('.');
    const bool ofPart = dot != path.npos;
    Object& object = *(ofPart ? Follow(last_, path.substr(0, dot), {}).object : last_);
    SetMember(object, ofPart ? path.substr(dot + 1) : path, ValueOf(value));
}

void Script::Run(std::string_view step) {
    const auto words = WordsOf(step);
    auto word = words.begin();
    std::string_view name;
    if (word != words.end() && word->ends_with(':')) name = word->substr(0, word->size() - 1), ++word;
    if (word != words.end() && !IsSetting(*word)) {
        const std::string_view path = *word++;
        std::vector<Variant> arguments;
        while (word != words.end() && !IsSetting(*word)) arguments.push_back(ValueOf(*word++));
        last_ = Find(path, arguments).object;
    }
    while (word != words.end()) Set(*word++);
    if (!name.empty()) objects_.insert_or_assign(std::string{name}, last_);
}

void Apply(std::string_view settings, Object& object) {
    Script(object.Document(), object.Self()).Run(settings);
}

std::int32_t ConstantNamed(std::string_view name) {
    static const auto constants = [] {
        std::map<std::string_view, std::int32_t> all;
        for (const Type* type : Enumerations()) {
            for (const EnumerationValue& value : type->values) all.emplace(value.name, value.value);
        }
        return all;
    }();
    const auto found = constants.find(name);
    if (found == constants.end()) Refuse("no constant", name);
    return found->second;
}

}  // namespace draftwick::test
