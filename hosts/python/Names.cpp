#include <hosts/python/Names.h>

#include <algorithm>
#include <charconv>
#include <regex>
#include <vector>

namespace draftwick::python {

std::string MemberName(std::string_view name) {
    static constexpr std::string_view Keywords[] = {
        "and",    "as",   "assert", "async",  "await",  "break",   "class", "continue",
        "def",    "del",  "elif",   "else",   "except", "finally", "for",   "from",
        "global", "if",   "import", "in",     "is",     "lambda",  "not",   "nonlocal",
        "or",     "pass", "raise",  "return", "try",    "while",   "with",  "yield"};
    std::string plain = hosts::SnakeCase(name);
    if (std::find(std::begin(Keywords), std::end(Keywords), plain) != std::end(Keywords)) plain += '_';
    return plain;
}

std::string NamesInPython(std::string_view text) {
    const auto constant = [](const draftwick::Type& type, const EnumerationValue& value) {
        // The numbers of errors are exceptions.
        if (hosts::AreErrorNumbers(type)) return std::string{hosts::PlainValueName(type, value)};
        return hosts::PlainName(type) + "." + hosts::ConstantName(type, value);
    };
    return hosts::Respelled(text, {MemberName, constant, hosts::PlainName});
}

std::string InPython(std::string_view comment) {
    // The errors by their numbers, and what Python calls otherwise.
    static const auto words = [] {
        std::vector<std::pair<std::regex, std::string>> all{
            {std::regex("\\btrue\\b"), "True"},
            {std::regex("\\bfalse\\b"), "False"},
            {std::regex("\\bstd::system_error\\b|\\bFileError\\b"), "OSError"},
            {std::regex("::"), "."}};
        for (const draftwick::Type* type : Enumerations()) {
            if (!hosts::AreErrorNumbers(*type)) continue;
            for (const EnumerationValue& value : type->values) {
                all.emplace_back("\\b([Rr]un-time )?[Ee]rror " + std::to_string(value.value) + "\\b",
                                 hosts::PlainValueName(*type, value));
            }
        }
        return all;
    }();
    std::string result = NamesInPython(comment);
    for (const auto& [word, meant] : words) result = std::regex_replace(result, word, meant);
    return result;
}

std::string_view RelativeOf(std::int32_t number) {
    switch (number) {
    case dwErrPropertyOutOfRange:
    case dwRunInvalidCall:
    case dwRunOverflow: return "ValueError";
    case dwErrItemNotFound:
    case dwRunSubscriptOutOfRange: return "LookupError";
    case dwRunTypeMismatch: return "TypeError";
    case dwRunDivisionByZero: return "ZeroDivisionError";
    default: return {};
    }
}

std::string Literal(const Variant& value, const draftwick::Type* type) {
    if (const auto* on = std::get_if<bool>(&value)) return *on ? "True" : "False";
    if (const auto* text = std::get_if<std::string>(&value)) return "'" + *text + "'";
    if (const auto* real = std::get_if<double>(&value)) {
        char digits[32];
        std::string number(digits, std::to_chars(digits, digits + sizeof digits, *real).ptr);
        return number.find_first_of(".e") == number.npos ? number + ".0" : number;
    }
    const auto* number = std::get_if<std::int32_t>(&value);
    if (number == nullptr) return "None";
    for (const EnumerationValue& constant : type->values) {
        if (constant.value == *number)
            return hosts::PlainName(*type) + "." + hosts::ConstantName(*type, constant);
    }
    return std::to_string(*number);
}

}  // namespace draftwick::python
