#include <draftwick/core/internal/Writers.h>
#include <draftwick/text/Escape.h>

namespace draftwick {

namespace {

bool HasValue(const Property& property) { return !std::holds_alternative<std::monostate>(property.Value()); }

/// "{\title Report}"
void WriteTextGroup(RtfWriter& writer, std::string_view word, std::string_view text) {
    writer.Group(word, [&] { writer.Line(text); });
}

/// "{\creatim\yr2024\mo2\dy29\hr12\min0\sec0}"
void WriteDateGroup(RtfWriter& writer, std::string_view word, const Date& date) {
    writer.Group(word, [&] {
        writer.Word("yr", date.year);
        writer.Word("mo", date.month);
        writer.Word("dy", date.day);
        writer.Word("hr", date.hour);
        writer.Word("min", date.minute);
        writer.Word("sec", date.second);
    });
}

/// One of the information group. In the order of the enumeration.
void WriteBuiltIn(RtfWriter& writer, std::int32_t position, const Variant& value) {
    static constexpr std::string_view Words[] = {"title",     "subject",  "author",   "manager",  "company",
                                                 "operator",  "category", "keywords", "comment",  "doccomm",
                                                 "hlinkbase", "creatim",  "revtim",   "printim",  "buptim",
                                                 "version",   "edmins",   "nofpages", "nofwords", "nofchars"};
    const std::string_view word = WordList{Words}[position];
    if (const auto* text = std::get_if<std::string>(&value)) {
        WriteTextGroup(writer, word, *text);
    } else if (const auto* date = std::get_if<Date>(&value)) {
        WriteDateGroup(writer, word, *date);
    } else {
        writer.Group([&] { writer.Word(word, std::get<std::int32_t>(value)); });
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
void WriteCustom(RtfWriter& writer, const Property& property) {
    static constexpr std::int32_t TypeNumbers[] = {3, 5, 64, 11, 30};
    WriteTextGroup(writer, "propname", property.Name());
    writer.Word("proptype", TypeNumbers[property.Type() - 1]);
    WriteTextGroup(writer, "staticval", ValueText(property.Value()));
    if (!property.LinkTo().empty()) WriteTextGroup(writer, "linkval", property.LinkTo());
}

/// Whether a property from one position to another has a value.
bool AnyValue(const Properties& properties, std::int32_t first, std::int32_t last) {
    for (std::int32_t position = first; position <= last; ++position) {
        if (HasValue(properties.At(position - 1))) return true;
    }
    return false;
}

}  // namespace

void EmitProperties(RtfWriter& writer, const Properties& properties) {
    const auto writeAll = [&](std::int32_t first, std::int32_t last, auto write) {
        for (std::int32_t position = first; position <= last; ++position) {
            const Property& property = properties.At(position - 1);
            if (HasValue(property)) write(position, property);
        }
    };
    if (AnyValue(properties, 1, dwBIPCharacters)) {
        writer.Group("info", [&] {
            writeAll(1, dwBIPCharacters, [&](std::int32_t position, const Property& property) {
                WriteBuiltIn(writer, position, property.Value());
            });
        });
    }
    if (AnyValue(properties, dwBIPCharacters + 1, properties.Count())) {
        writer.Destination("userprops", [&] {
            writeAll(dwBIPCharacters + 1, properties.Count(),
                     [&](std::int32_t, const Property& property) { WriteCustom(writer, property); });
        });
    }
}

}  // namespace draftwick
