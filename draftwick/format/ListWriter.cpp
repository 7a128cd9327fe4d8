#include <draftwick/format/FontFormatWriter.h>
#include <draftwick/format/Lists.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/text/Utf8.h>

namespace draftwick {

namespace {

constexpr std::string_view StyleWords[] = {"levelnfc6", "levelnfc0", "levelnfc3", "levelnfc4",  "levelnfc1",
                                           "levelnfc2", "levelnfc5", "levelnfc7", "levelnfc22", "levelnfc23"};
constexpr std::string_view AlignWords[] = {"leveljc0", "leveljc2", "leveljc1"};
constexpr std::string_view FollowWords[] = {"levelfollow2", "levelfollow1", "levelfollow0"};

/// \' and two decimal digits, three from 100 on. Decimal although the escape is hexadecimal in form: promised so.
std::string DecimalEscape(std::int32_t number) {
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? "\\'0" + digits : "\\'" + digits;
}

struct LevelText {
    std::string text;       // with \'00 to \'08 for the numbers of the levels
    std::string positions;  // where these stand, counted in characters from 1
    std::int32_t length = 0;
};

LevelText ReadLevelFormat(std::string_view format) {
    LevelText result;
    std::size_t at = 0;
    while (at < format.size()) {
        ++result.length;
        if (format.compare(at, 2, "\\L") == 0 && at + 2 < format.size() && format[at + 2] >= '1'
            && format[at + 2] <= '9') {
            result.text += "\\'0";
            result.text += static_cast<char>(format[at + 2] - 1);
            result.positions += DecimalEscape(result.length);
            at += 3;
        } else {
            AppendUtf8(result.text, DecodeUtf8(format, at));
        }
    }
    return result;
}

void WriteTextGroup(Output& output, std::string_view word, const std::string& text) {
    output.WriteGroupStart();
    output.WriteControlWord(word);
    output.WriteText(text);
    output.WriteGroupEnd();
}

void EmitListLevel(WritingContext& context, const ListLevel& level, bool writeStartAt) {
    const ListLevel::Values& values = level.Stored();
    const LevelText text = ReadLevelFormat(values.format);
    Output& output = context.output;
    output.FlushLine();
    output.WriteGroupStart();
    output.WriteControlWord("listlevel");
    output.WriteWord(StyleWords, values.style);
    output.WriteWord(AlignWords, values.align);
    output.WriteWord(FollowWords, values.follow);
    if (writeStartAt) output.WriteControlWord("levelstartat", values.startAt);
    output.WriteControlWord("levelspace", 0);
    output.WriteControlWord("levelindent", 0);
    if (values.legal) output.WriteControlWord("levellegal", 1);
    if (values.noLevelRestart) output.WriteControlWord("levelnorestart", 1);
    WriteTextGroup(output, "leveltext", DecimalEscape(text.length) + text.text + ";");
    WriteTextGroup(output, "levelnumbers", text.positions + ";");
    output.WriteControlWord("jclisttab");
    output.WriteControlWord("tx", values.tabPosition.Twips());
    EmitFontFormat(context, level.StoredFontFormat().Stored(), false);
    output.WriteGroupEnd();
}

void EmitList(WritingContext& context, const List& list, std::int32_t listCount) {
    Output& output = context.output;
    output.WriteGroupStart();
    output.WriteControlWord("list");
    output.WriteControlWord("listtemplateid", list.Identifier() + listCount);
    WriteTextGroup(output, "listname", list.Name() + ";");
    output.WriteControlWord("listid", list.Identifier());
    if (list.UsesLevels()) {
        for (std::int32_t level = 1; level <= 9; ++level) EmitListLevel(context, list.LevelAt(level), true);
    } else {
        output.WriteControlWord("listsimple");
        EmitListLevel(context, list.LevelAt(1), true);
    }
    output.WriteGroupEnd();
}

/// The list in the look of another one, level by level.
void EmitPairing(WritingContext& context, const List& list, const List& look, std::int32_t overrideNumber) {
    Output& output = context.output;
    output.WriteGroupStart();
    output.WriteControlWord("listoverride");
    output.WriteControlWord("listid", list.Identifier());
    output.WriteControlWord("listoverridecount", 9);
    output.WriteControlWord("ls", overrideNumber);
    for (std::int32_t level = 1; level <= 9; ++level) {
        output.WriteGroupStart();
        output.WriteControlWord("lfolevel");
        output.WriteControlWord("listoverrideformat");
        EmitListLevel(context, look.LevelAt(level), true);
        output.WriteGroupEnd();
    }
    output.WriteGroupEnd();
}

void EmitListOverrideTable(WritingContext& context, const Lists& lists) {
    Output& output = context.output;
    output.WriteDestinationStart();
    output.WriteControlWord("listoverridetable");
    for (const auto& list : lists) {
        output.WriteGroupStart();
        output.WriteControlWord("listoverride");
        output.WriteControlWord("listid", list->Identifier());
        output.WriteControlWord("listoverridecount");  // without a number: promised so
        output.WriteControlWord("ls", list->OwnOverrideNumber());
        output.WriteGroupEnd();
    }
    for (const auto& list : lists) {
        for (const auto& [other, number] : list->Pairings())
            EmitPairing(context, *list, lists.At(other), number);
    }
    output.WriteGroupEnd();
}

}  // namespace

void EmitListTable(WritingContext& context, const Lists& lists) {
    if (lists.Count() == 0) return;
    Output& output = context.output;
    output.WriteDestinationStart();
    output.WriteControlWord("listtable");
    for (const auto& list : lists) EmitList(context, *list, lists.Count());
    output.WriteGroupEnd();
    EmitListOverrideTable(context, lists);
}

}  // namespace draftwick
