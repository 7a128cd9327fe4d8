#include <draftwick/format/internal/Writers.h>

namespace draftwick {

void EmitFontTable(RtfWriter& writer, const Fonts& fonts) {
    static constexpr std::string_view FamilyWords[] = {"fnil",    "froman", "fswiss", "fmodern",
                                                       "fscript", "fdecor", "ftech"};
    if (fonts.Count() == 0) return;
    writer.Group("fonttbl", [&] {
        for (const auto& font : fonts) {
            writer.Group([&] {
                writer.Word("f", font->FontIndex());
                writer.Word(FamilyWords, font->Family());
                if (!font->AltName().empty())
                    writer.Destination("falt", [&] { writer.Raw(font->AltName()); });
                writer.Raw(font->Name() + ";");
            });
        }
    });
}

}  // namespace draftwick
