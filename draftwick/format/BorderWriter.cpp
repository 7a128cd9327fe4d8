#include <draftwick/format/BorderWriter.h>
#include <draftwick/model/WritingContext.h>

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

void EmitBorderLine(WritingContext& context, std::int32_t style, double width, std::string_view colorWord,
                    std::int32_t color) {
    context.output.WriteWord(StyleWords, style);
    context.output.WriteControlWord("brdrw", RoundDown(width * 20));
    context.output.WriteControlWord(colorWord, context.colors.GetColorIndex(color));
}

void EmitTextBorder(WritingContext& context, const TextBorder::Values& border) {
    if (border.style == dwBSNone) return;
    context.output.WriteControlWord("chbrdr");
    // The colour of a text border is spelled brdrref, the one of rows and cells brdref: all three are promised.
    EmitBorderLine(context, border.style, border.width, "brdrref", border.color);
}

void EmitParagraphBorder(WritingContext& context, dwParagraphBorder side,
                         const ParagraphBorder::Values& border) {
    if (border.style == dwBSNone) return;
    Output& output = context.output;
    output.WriteWord(SideWords, side);
    output.WriteWord(StyleWords, border.style);
    output.WriteControlWord("brsp", RoundDown(border.spacing * 20));
    output.WriteControlWord("brdrw", RoundDown(border.width * 20));
    output.WriteControlWord("brdrcf", context.colors.GetColorIndex(border.color));
}

void EmitParagraphBorders(WritingContext& context, const ParagraphBorders& borders) {
    borders.ForEach([&](dwParagraphBorder side, const ParagraphBorder& border) {
        EmitParagraphBorder(context, side, border.Stored());
    });
}

}  // namespace draftwick
