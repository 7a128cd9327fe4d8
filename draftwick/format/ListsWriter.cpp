#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
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

void EmitListLevel(RtfWriter& writer, const ListLevel& level) {
    const ListLevel::Values& values = Stored(level);
    const LevelText text = ReadLevelFormat(values.format);
    writer.output.FlushLine();
    writer.Group("listlevel", [&] {
        writer.Word(StyleWords, values.style);
        writer.Word(AlignWords, values.align);
        writer.Word(FollowWords, values.follow);
        writer.Word("levelstartat", values.startAt);
        writer.Word("levelspace", 0);
        writer.Word("levelindent", 0);
        if (values.legal) writer.Word("levellegal", 1);
        if (values.noLevelRestart) writer.Word("levelnorestart", 1);
        writer.Group("leveltext", [&] { writer.Raw(DecimalEscape(text.length) + text.text + ";"); });
        writer.Group("levelnumbers", [&] { writer.Raw(text.positions + ";"); });
        writer.Word("jclisttab");
        writer.Word("tx", values.tabPosition.Twips());
        EmitFontFormat(writer, Stored(StoredParts(level).fontFormat), false);
    });
}

void EmitList(RtfWriter& writer, const List& list, std::int32_t position, std::int32_t listCount) {
    const std::int32_t identifier = position + 1;
    writer.Group("list", [&] {
        writer.Word("listtemplateid", identifier + listCount);
        writer.Group("listname", [&] { writer.Raw(list.Name() + ";"); });
        writer.Word("listid", identifier);
        if (writer.lists.UsesLevels(position)) {
            for (const ListLevel& level : StoredParts(list).levels) EmitListLevel(writer, level);
        } else {
            writer.Word("listsimple");
            EmitListLevel(writer, StoredParts(list).levels.front());
        }
    });
}

/// The list in the look of another one, level by level.
void EmitPairing(RtfWriter& writer, std::int32_t position, const List& look, std::int32_t overrideNumber) {
    writer.Group("listoverride", [&] {
        writer.Word("listid", position + 1);
        writer.Word("listoverridecount", 9);
        writer.Word("ls", overrideNumber);
        for (const ListLevel& level : StoredParts(look).levels) {
            writer.Group("lfolevel", [&] {
                writer.Word("listoverrideformat");
                EmitListLevel(writer, level);
            });
        }
    });
}

void EmitListOverrideTable(RtfWriter& writer, const Lists& lists) {
    writer.Destination("listoverridetable", [&] {
        for (std::int32_t position = 0; position < lists.Count(); ++position) {
            writer.Group("listoverride", [&] {
                writer.Word("listid", position + 1);
                writer.Word("listoverridecount");  // without a number: promised so
                writer.Word("ls", ListNumbers::OverrideNumber(position));
            });
        }
        for (std::int32_t position = 0; position < lists.Count(); ++position) {
            for (const auto& [look, number] : writer.lists.Pairings(position))
                EmitPairing(writer, position, lists.At(look), number);
        }
    });
}

}  // namespace

void EmitListTable(RtfWriter& writer, const Lists& lists) {
    if (lists.Count() == 0) return;
    writer.Destination("listtable", [&] {
        for (std::int32_t position = 0; position < lists.Count(); ++position)
            EmitList(writer, lists.At(position), position, lists.Count());
    });
    EmitListOverrideTable(writer, lists);
}

}  // namespace draftwick
