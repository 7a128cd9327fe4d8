#include <draftwick/format/internal/Writers.h>

#include <algorithm>
#include <iterator>

namespace draftwick {

namespace {

/// 2 for fonts of symbols, whose characters have numbers of their own; 0 for Windows-1252, which Unicode adds to.
std::int32_t CharacterSet(std::string_view name) {
    static constexpr std::string_view Symbols[] = {"Symbol", "Webdings", "Wingdings", "Wingdings 2",
                                                   "Wingdings 3"};
    return std::find(std::begin(Symbols), std::end(Symbols), name) == std::end(Symbols) ? 0 : 2;
}

}  // namespace

void EmitFontTable(RtfWriter& writer, const Fonts& fonts) {
    static constexpr std::string_view FamilyWords[] = {"fnil",    "froman", "fswiss", "fmodern",
                                                       "fscript", "fdecor", "ftech"};
    if (fonts.Count() == 0) return;
    writer.Group("fonttbl", [&] {
        for (const auto& font : fonts) {
            writer.Group([&] {
                writer.Word("f", font->FontIndex());
                writer.Word(FamilyWords, font->Family());
                writer.Word(Spelled{"", "fcharset"}, CharacterSet(font->Name()));
                const auto alternative = [&] {
                    if (!font->AltName().empty())
                        writer.Destination("falt", [&] { writer.Name(font->AltName()); });
                };
                if (writer.Standard()) {
                    writer.Name(font->Name());
                    alternative();
                    writer.Raw(";");
                } else {
                    alternative();
                    writer.Entry(font->Name());
                }
            });
        }
    });
}

}  // namespace draftwick
