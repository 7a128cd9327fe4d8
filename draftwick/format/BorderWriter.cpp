#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

#include <array>

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

/// The sides that have a line, by their numbers; null for the others.
using Sides = std::array<const ParagraphBorder::Values*, dwPBorderOutside + 1>;

Sides DrawnSides(const ParagraphBorders* borders) {
    Sides sides{};
    if (borders == nullptr) return sides;
    borders->ForEach([&](dwParagraphBorder side, const ParagraphBorder& border) {
        if (Stored(border).style != dwBSNone) sides[static_cast<std::size_t>(side)] = &Stored(border);
    });
    return sides;
}

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
    const Sides own = DrawnSides(&borders), styles = DrawnSides(style);
    for (std::size_t side = dwPBorderTop; side < own.size(); ++side) {
        if (own[side] == nullptr && styles[side] == nullptr) continue;
        writer.Word(SideWords, static_cast<std::int32_t>(side));
        if (own[side] == nullptr) {
            writer.Word("brdrnone");
        } else {
            EmitBorderLine(writer, {.style = own[side]->style,
                                    .width = own[side]->width.Written(),
                                    .color = own[side]->color,
                                    .spacing = own[side]->spacing.Written()});
        }
    }
}

}  // namespace draftwick
