#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

#include <bitset>

namespace draftwick {

namespace {

constexpr Words<dwBorderStyle> StyleWords{"",
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

constexpr Words<dwParagraphBorder> SideWords{"brdrt", "brdrl", "brdrr", "brdrb", "brdrbtw", "brdrbar"};

}  // namespace

void EmitBorderLine(RtfWriter& writer, const BorderLine& line) {
    if (line.art != 0) {
        writer.Word("brdrart", line.art);
    } else {
        // A shadow is none without its line.
        if (line.style == dwBSShadow) writer.Word(Spelled{"", "brdrs"});
        writer.Word(StyleWords, line.style);
    }
    if (line.spacing) writer.Word("brsp", *line.spacing);
    writer.Word("brdrw", line.width);
    writer.Color(line.colorWord, line.color);
}

void EmitTextBorder(RtfWriter& writer, const TextBorder::Values& border, const TextBorder::Values* style) {
    if (border.style == dwBSNone) {
        if (style == nullptr || style->style == dwBSNone) return;
        writer.Word("chbrdr");
        writer.Word("brdrnone");
        return;
    }
    writer.Word("chbrdr");
    EmitBorderLine(writer, {.style = border.style,
                            .width = border.width.Written(),
                            .color = border.color,
                            .colorWord = {"brdrref", "brdrcf"}});
}

void EmitParagraphBorders(RtfWriter& writer, const ParagraphBorders& borders, const ParagraphBorders* style) {
    std::bitset<7> drawn;
    if (style != nullptr) {
        style->ForEach([&](dwParagraphBorder side, const ParagraphBorder& border) {
            drawn[static_cast<std::size_t>(side)] = Stored(border).style != dwBSNone;
        });
    }
    borders.ForEach([&](dwParagraphBorder side, const ParagraphBorder& border) {
        const ParagraphBorder::Values& values = Stored(border);
        if (values.style != dwBSNone) {
            writer.Word(SideWords, side);
            EmitBorderLine(writer, {.style = values.style,
                                    .width = values.width.Written(),
                                    .color = values.color,
                                    .spacing = values.spacing.Written()});
        } else if (drawn[static_cast<std::size_t>(side)]) {
            writer.Word(SideWords, side);
            writer.Word("brdrnone");
        }
    });
}

}  // namespace draftwick
