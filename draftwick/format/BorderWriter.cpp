#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

namespace draftwick {

namespace {

constexpr std::string_view StyleWords[] = {"",
                                           "brdrs",
                                           "brdrsh",
                                           "brdrdb",
                                           "brdrdot",
                                           "brdrdash",
                                           "brdrdashsm",
                                           "brdrdashd",
                                           "brdrdashdd",
                                           "brdrtriple",
                                           "brdrtnthsg",
                                           "brdrthtnsg",
                                           "brdrtnthtnsg",
                                           "brdrtnthmg",
                                           "brdrthtnmg",
                                           "brdrtnthtnmg",
                                           "brdrtnthlg",
                                           "brdrthtnlg",
                                           "brdrtnthtnlg",
                                           "brdrwavy",
                                           "brdrwavydb",
                                           "brdrdashdotstr",
                                           "brdremboss",
                                           "brdrengrave"};

constexpr std::string_view SideWords[] = {"brdrt", "brdrl", "brdrr", "brdrb", "brdrbtw", "brdrbar"};

}  // namespace

std::string_view BorderStyleWord(std::int32_t style) noexcept { return WordList{StyleWords}[style]; }

void EmitBorderLine(RtfWriter& writer, std::int32_t style, std::int32_t twips, std::string_view colorWord,
                    std::int32_t color) {
    writer.Word(StyleWords, style);
    writer.Word("brdrw", twips);
    writer.Color(colorWord, color);
}

void EmitTextBorder(RtfWriter& writer, const TextBorder::Values& border) {
    if (border.style == dwBSNone) return;
    writer.Word("chbrdr");
    // The colour of a text border is spelled brdrref, the one of rows and cells brdref: all three are promised.
    EmitBorderLine(writer, border.style, border.width.Written(), "brdrref", border.color);
}

void EmitParagraphBorders(RtfWriter& writer, const ParagraphBorders& borders) {
    borders.ForEach([&](dwParagraphBorder side, const ParagraphBorder& border) {
        const ParagraphBorder::Values& values = Stored(border);
        if (values.style == dwBSNone) return;
        writer.Word(SideWords, side);
        writer.Word(StyleWords, values.style);
        writer.Word("brsp", values.spacing.Written());
        writer.Word("brdrw", values.width.Written());
        writer.Color("brdrcf", values.color);
    });
}

}  // namespace draftwick
