#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/text/Escape.h>
#include <draftwick/text/Utf8.h>

#include <array>
#include <charconv>

namespace draftwick {

namespace {

constexpr std::string_view StyleWords[] = {"levelnfc6", "levelnfc0", "levelnfc3", "levelnfc4",  "levelnfc1",
                                           "levelnfc2", "levelnfc5", "levelnfc7", "levelnfc22", "levelnfc23"};
constexpr std::string_view AlignWords[] = {"leveljc0", "leveljc2", "leveljc1"};
constexpr std::string_view FollowWords[] = {"levelfollow2", "levelfollow1", "levelfollow0"};

/// \' and two hexadecimal digits: a length or position, at most 255. Classic: two or three decimal digits.
std::string NumberEscape(std::int32_t number, bool standard) {
    std::array<char, 4> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), number, standard ? 16 : 10).ptr;
    const std::string_view text{digits.data(), static_cast<std::size_t>(end - digits.data())};
    return std::string{"\\'"}.append(text.size() < 2 ? "0" : "").append(text);
}

struct LevelText {
    std::string text;       // with \'00 to \'08 for the numbers of the levels
    std::string positions;  // where these stand, counted in characters from 1
    std::int32_t length = 0;
};

/// The standard spelling escapes what stands between the numbers and counts in UTF-16 units, of which the format knows
/// 255.
LevelText ReadLevelFormat(std::string_view format, bool standard) {
    constexpr std::int32_t MostUnits = 255;
    LevelText result;
    std::size_t at = 0;
    while (at < format.size() && !(standard && result.length >= MostUnits - 1)) {
        ++result.length;
        if (format.compare(at, 2, "\\L") == 0 && at + 2 < format.size() && format[at + 2] >= '1'
            && format[at + 2] <= '9') {
            result.text += "\\'0";
            result.text += static_cast<char>(format[at + 2] - 1);
            result.positions += NumberEscape(result.length, standard);
            at += 3;
        } else if (standard) {
            if (format.compare(at, 2, "\r\n") == 0) ++at;
            const std::size_t first = at;
            const char32_t character = DecodeUtf8(format, at);
            if (character > 0xFFFF) ++result.length;
            // The characters 0 to 8 would stand for the numbers of levels.
            AppendEscaped(result.text, character <= 8 ? "\uFFFD" : format.substr(first, at - first),
                          Escaping::OneLine);
        } else {
            AppendUtf8(result.text, DecodeUtf8(format, at));
        }
    }
    return result;
}

void EmitListLevel(RtfWriter& writer, const ListLevel& level) {
    const ListLevel::Values& values = Stored(level);
    const bool standard = writer.Standard();
    const LevelText text = ReadLevelFormat(values.format, standard);
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
        writer.Group("leveltext", [&] { writer.Raw(NumberEscape(text.length, standard) + text.text + ";"); });
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
        writer.Group("listname", [&] { writer.Entry(list.Name()); });
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
                if (writer.Standard()) {
                    writer.Word("listoverridecount", 0);
                } else {
                    writer.Word("listoverridecount");
                }
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
