#include <draftwick/core/Properties.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/text/Escape.h>

namespace draftwick {

namespace {

bool HasValue(const Property& property) { return !std::holds_alternative<std::monostate>(property.Value()); }

/// "{\title Report}"
void WriteTextGroup(Output& output, std::string_view word, std::string_view text) {
    output.WriteGroupStart();
    output.WriteControlWord(word);
    output.WriteText(EscapeText(text));
    output.WriteGroupEnd();
}

/// "{\creatim\yr2024\mo2\dy29\hr12\min0\sec0}"
void WriteDateGroup(Output& output, std::string_view word, const Date& date) {
    output.WriteGroupStart();
    output.WriteControlWord(word);
    output.WriteControlWord("yr", date.year);
    output.WriteControlWord("mo", date.month);
    output.WriteControlWord("dy", date.day);
    output.WriteControlWord("hr", date.hour);
    output.WriteControlWord("min", date.minute);
    output.WriteControlWord("sec", date.second);
    output.WriteGroupEnd();
}

/// One of the information group. In the order of the enumeration.
void EmitBuiltIn(Output& output, std::int32_t position, const Variant& value) {
    static constexpr std::string_view Words[] = {"title",     "subject",  "author",   "manager",  "company",
                                                 "operator",  "category", "keywords", "comment",  "doccomm",
                                                 "hlinkbase", "creatim",  "revtim",   "printim",  "buptim",
                                                 "version",   "edmins",   "nofpages", "nofwords", "nofchars"};
    const std::string_view word = WordList{Words}[position];
    if (const auto* text = std::get_if<std::string>(&value)) {
        WriteTextGroup(output, word, *text);
    } else if (const auto* date = std::get_if<Date>(&value)) {
        WriteDateGroup(output, word, *date);
    } else {
        output.WriteGroupStart();
        output.WriteControlWord(word, std::get<std::int32_t>(value));
        output.WriteGroupEnd();
    }
}

void AppendDigits(std::string& text, std::int32_t number, std::size_t width) {
    const std::string digits = std::to_string(number);
    text.append(width - digits.size(), '0').append(digits);
}

/// 2024-02-29T12:00:00
std::string DateText(const Date& date) {
    std::string text;
    AppendDigits(text, date.year, 4);
    AppendDigits(text += '-', date.month, 2);
    AppendDigits(text += '-', date.day, 2);
    AppendDigits(text += 'T', date.hour, 2);
    AppendDigits(text += ':', date.minute, 2);
    AppendDigits(text += ':', date.second, 2);
    return text;
}

std::string ValueText(const Variant& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return std::to_string(*whole);
    if (const auto* real = std::get_if<double>(&value)) return NumberText(*real);
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "1" : "0";
    return DateText(std::get<Date>(value));
}

/// "{\propname Client}\proptype30{\staticval Smith}{\linkval client}"
void EmitCustom(Output& output, const Property& property) {
    static constexpr std::int32_t TypeNumbers[] = {3, 5, 64, 11, 30};
    WriteTextGroup(output, "propname", property.Name());
    output.WriteControlWord("proptype", TypeNumbers[property.Type() - 1]);
    WriteTextGroup(output, "staticval", ValueText(property.Value()));
    if (!property.LinkTo().empty()) WriteTextGroup(output, "linkval", property.LinkTo());
}

/// Whether a property from one position to another has a value.
bool AnyValue(const Properties& properties, std::int32_t first, std::int32_t last) {
    for (std::int32_t position = first; position <= last; ++position) {
        if (HasValue(properties.At(position - 1))) return true;
    }
    return false;
}

}  // namespace

void EmitProperties(WritingContext& context, const Properties& properties) {
    Output& output = context.output;
    if (AnyValue(properties, 1, dwBIPCharacters)) {
        output.WriteGroupStart();
        output.WriteControlWord("info");
        for (std::int32_t position = 1; position <= dwBIPCharacters; ++position) {
            const Property& property = properties.At(position - 1);
            if (HasValue(property)) EmitBuiltIn(output, position, property.Value());
        }
        output.WriteGroupEnd();
    }
    if (AnyValue(properties, dwBIPCharacters + 1, properties.Count())) {
        output.WriteDestinationStart();
        output.WriteControlWord("userprops");
        for (std::int32_t position = dwBIPCharacters + 1; position <= properties.Count(); ++position) {
            const Property& property = properties.At(position - 1);
            if (HasValue(property)) EmitCustom(output, property);
        }
        output.WriteGroupEnd();
    }
}

}  // namespace draftwick
