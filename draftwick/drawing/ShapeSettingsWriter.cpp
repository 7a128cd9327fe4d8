#include <draftwick/drawing/internal/ShadeArray.h>
#include <draftwick/drawing/internal/Writers.h>

#include <string>

namespace draftwick {

namespace {

/// Full opacity is not written.
void WriteOpacity(RtfWriter& writer, std::string_view name, Real<PercentToFixedPoint> percent) {
    if (percent < 100) WriteShapeProperty(writer, name, percent.Written());
}

/// 8;2;(255,0);(16711680,65536): the size of an element in bytes, their number, colours and positions.
void EmitShapeFillShadeColors(RtfWriter& writer, const std::string& shadeArray) {
    const auto colors = ReadShadeArray(shadeArray);
    std::string value = "8;" + std::to_string(colors.size());
    for (const auto& [color, position] : colors) {
        value += ";(" + std::to_string(color) + "," + std::to_string(position) + ")";
    }
    WriteShapeProperty(writer, "fillShadeColors", value);
}

struct ArrowNames {
    std::string_view head, width, length;
};

void WriteArrow(RtfWriter& writer, const ArrowNames& names, std::int32_t arrow, std::int32_t width,
                std::int32_t length) {
    if (arrow == dwSLANone) return;
    WriteShapeProperty(writer, names.head, arrow - 1);
    WriteShapeProperty(writer, names.width, width - 1);
    WriteShapeProperty(writer, names.length, length - 1);
}

}  // namespace

void EmitShapeFill(RtfWriter& writer, const ShapeFill::Values& fill) {
    static constexpr std::int32_t Types[] = {0, 1, 2, 3, 7, 6};  // from dwSFSSolid
    if (fill.style == dwSFSNone) {
        if (writer.Standard()) WriteShapeProperty(writer, "fFilled", 0);
        return;
    }
    WriteShapeProperty(writer, "fFilled", 1);
    WriteShapeProperty(writer, "fillType", Types[fill.style - dwSFSSolid]);
    // Classic: twice, for readers that go by the first number and readers that go by the second.
    if (!writer.Standard()) WriteShapeProperty(writer, "fillType", fill.style - dwSFSSolid);
    WriteShapeProperty(writer, "fillColor", fill.color);
    WriteOpacity(writer, "fillOpacity", fill.opacity);
    WriteShapeProperty(writer, "fillBackColor", fill.backColor);
    WriteOpacity(writer, "fillBackOpacity", fill.backOpacity);
    if (fill.style == dwSFSShade) {
        WriteShapeProperty(writer, "fillAngle", fill.shadeAngle.Written());
        if (fill.shadeFocus) WriteShapeProperty(writer, "fillFocus", 50);
    }
    WriteShapeProperty(writer, "fillToTop", fill.shadeToTop.Written());
    WriteShapeProperty(writer, "fillToLeft", fill.shadeToLeft.Written());
    WriteShapeProperty(writer, "fillToRight", fill.shadeToRight.Written());
    WriteShapeProperty(writer, "fillToBottom", fill.shadeToBottom.Written());
    if (!fill.shadeArray.empty()) EmitShapeFillShadeColors(writer, fill.shadeArray);
}

void EmitShapeLine(RtfWriter& writer, const ShapeLine::Values& line) {
    if (line.style == dwSLSNone) {
        if (writer.Standard()) WriteShapeProperty(writer, "fLine", 0);
        return;
    }
    WriteShapeProperty(writer, "lineColor", line.color);
    WriteShapeProperty(writer, "lineBackColor", line.backColor);
    WriteShapeProperty(writer, "lineType", line.texture - 1);
    WriteShapeProperty(writer, "lineWidth", line.width.Written());
    WriteShapeProperty(writer, "lineStyle", line.style - dwSLSSingle);
    if (line.dash != dwSLDSolid) WriteShapeProperty(writer, "lineDashing", line.dash - 1);
    WriteArrow(writer, {"lineStartArrowhead", "lineStartArrowWidth", "lineStartArrowLength"}, line.startArrow,
               line.startArrowWidth, line.startArrowLength);
    WriteArrow(writer, {"lineEndArrowhead", "lineEndArrowWidth", "lineEndArrowLength"}, line.endArrow,
               line.endArrowWidth, line.endArrowLength);
    WriteShapeProperty(writer, "fLine", 1);
}

void EmitShapeShadow(RtfWriter& writer, const ShapeShadow::Values& shadow) {
    const auto emu = [&](std::string_view name, Length length) {
        WriteShapeProperty(writer, name, TwipsToEmu(length.Twips()));
    };
    if (shadow.style == dwSSSNone) return;
    WriteShapeProperty(writer, "fShadow", 1);
    static constexpr Words<dwShapeShadowStyle> Types{"", "0", "1"};
    WriteShapeProperty(writer, "shadowType", Types[shadow.style]);
    WriteShapeProperty(writer, "shadowColor", shadow.color);
    WriteOpacity(writer, "shadowOpacity", shadow.opacity);
    emu("shadowOffsetX", shadow.offsetX);
    emu(writer.Of({"shadowoffsetY", "shadowOffsetY"}), shadow.offsetY);
    if (shadow.style == dwSSSDouble) {
        WriteShapeProperty(writer, "shadowHighlight", shadow.color2);
        emu("shadowSecondOffsetX", shadow.offsetX2);
        emu("shadowSecondOffsetY", shadow.offsetY2);
    }
}

}  // namespace draftwick
