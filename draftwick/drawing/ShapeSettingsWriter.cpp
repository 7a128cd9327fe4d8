#include <draftwick/drawing/ShapeFill.h>
#include <draftwick/drawing/ShapeLine.h>
#include <draftwick/drawing/ShapeProperty.h>
#include <draftwick/drawing/ShapeShadow.h>
#include <draftwick/model/WritingContext.h>

#include <cmath>
#include <string>

namespace draftwick {

namespace {

/// Percent as a fraction of 65536.
double Fraction(double percent) { return percent / 100 * 65536; }

/// Full opacity is not written.
void EmitOpacity(Output& output, std::string_view name, double percent) {
    if (percent < 100) WriteShapeProperty(output, name, Fraction(percent));
}

/// 8;2;(255,0);(16711680,65536): the size of an element in bytes, their number, colours and positions.
void EmitShapeFillShadeColors(Output& output, const std::string& shadeArray) {
    const auto colors = ShapeFill::ReadShadeArray(shadeArray);
    std::string value = "8;" + std::to_string(colors.size());
    for (const auto& [color, position] : colors) {
        value += ";(" + std::to_string(color) + "," + std::to_string(position) + ")";
    }
    WriteShapeProperty(output, "fillShadeColors", value);
}

struct ArrowNames {
    std::string_view head, width, length;
};

void EmitArrow(Output& output, const ArrowNames& names, std::int32_t arrow, std::int32_t width,
               std::int32_t length) {
    if (arrow == dwSLANone) return;
    WriteShapeProperty(output, names.head, arrow - 1);
    WriteShapeProperty(output, names.width, width - 1);
    WriteShapeProperty(output, names.length, length - 1);
}

}  // namespace

void EmitShapeFill(WritingContext& context, const ShapeFill::Values& fill) {
    static constexpr std::int32_t Types[] = {0, 1, 2, 3, 7, 6};  // from dwSFSSolid
    Output& output = context.output;
    if (fill.style == dwSFSNone) return;
    WriteShapeProperty(output, "fFilled", 1);
    // Twice: readers that go by the first number and readers that go by the second are both promised theirs.
    WriteShapeProperty(output, "fillType", Types[fill.style - dwSFSSolid]);
    WriteShapeProperty(output, "fillType", fill.style - dwSFSSolid);
    WriteShapeProperty(output, "fillColor", fill.color);
    EmitOpacity(output, "fillOpacity", fill.opacity);
    WriteShapeProperty(output, "fillBackColor", fill.backColor);
    EmitOpacity(output, "fillBackOpacity", fill.backOpacity);
    if (fill.style == dwSFSShade) {
        WriteShapeProperty(output, "fillAngle", fill.shadeAngle * 65536);
        if (fill.shadeFocus) WriteShapeProperty(output, "fillFocus", 50);
    }
    WriteShapeProperty(output, "fillToTop", std::abs((fill.shadeToTop - 100) / 100) * 65536);
    WriteShapeProperty(output, "fillToLeft", std::abs(fill.shadeToLeft - 100) / 100 * 65536);
    WriteShapeProperty(output, "fillToRight", Fraction(fill.shadeToRight));
    WriteShapeProperty(output, "fillToBottom", Fraction(fill.shadeToBottom));
    if (!fill.shadeArray.empty()) EmitShapeFillShadeColors(output, fill.shadeArray);
}

void EmitShapeLine(WritingContext& context, const ShapeLine::Values& line) {
    Output& output = context.output;
    if (line.style == dwSLSNone) return;
    WriteShapeProperty(output, "lineColor", line.color);
    WriteShapeProperty(output, "lineBackColor", line.backColor);
    WriteShapeProperty(output, "lineType", line.texture - 1);
    WriteShapeProperty(output, "lineWidth", TwipsToEmu(RoundHalfEven(line.width * 20)));
    WriteShapeProperty(output, "lineStyle", line.style - dwSLSSingle);
    if (line.dash != dwSLDSolid) WriteShapeProperty(output, "lineDashing", line.dash - 1);
    EmitArrow(output, {"lineStartArrowhead", "lineStartArrowWidth", "lineStartArrowLength"}, line.startArrow,
              line.startArrowWidth, line.startArrowLength);
    EmitArrow(output, {"lineEndArrowhead", "lineEndArrowWidth", "lineEndArrowLength"}, line.endArrow,
              line.endArrowWidth, line.endArrowLength);
    WriteShapeProperty(output, "fLine", 1);
}

void EmitShapeShadow(WritingContext& context, const ShapeShadow::Values& shadow) {
    Output& output = context.output;
    const auto emu = [&](std::string_view name, Length length) {
        WriteShapeProperty(output, name, TwipsToEmu(length.Twips()));
    };
    if (shadow.style == dwSSSNone) return;
    WriteShapeProperty(output, "fShadow", 1);
    static constexpr std::string_view Types[] = {"", "0", "1"};
    WriteShapeProperty(output, "shadowType", WordList{Types}[shadow.style]);
    WriteShapeProperty(output, "shadowColor", shadow.color);
    EmitOpacity(output, "shadowOpacity", shadow.opacity);
    emu("shadowOffsetX", shadow.offsetX);
    emu("shadowoffsetY", shadow.offsetY);  // the spelling is part of the format we promise
    if (shadow.style == dwSSSDouble) {
        WriteShapeProperty(output, "shadowHighlight", shadow.color2);
        emu("shadowSecondOffsetX", shadow.offsetX2);
        emu("shadowSecondOffsetY", shadow.offsetY2);
    }
}

}  // namespace draftwick
