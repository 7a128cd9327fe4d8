#include <draftwick/base/Units.h>
#include <draftwick/drawing/ShapeProperty.h>
#include <draftwick/rtf/Output.h>
#include <draftwick/text/Escape.h>

#include <charconv>
#include <string>

namespace draftwick {

void WriteShapePropertyStart(Output& output, std::string_view name) {
    output.WriteGroupStart();
    output.WriteControlWord("sp");
    output.WriteGroupStart();
    output.WriteControlWord("sn");
    output.WriteText(name);
    output.WriteGroupEnd();
    output.WriteGroupStart();
    output.WriteControlWord("sv");
}

void WriteShapePropertyEnd(Output& output) {
    output.WriteGroupEnd();
    output.WriteGroupEnd();
}

void WriteShapeProperty(Output& output, std::string_view name, std::string_view value) {
    WriteShapePropertyStart(output, name);
    output.WriteText(EscapeText(value));
    WriteShapePropertyEnd(output);
}

void WriteShapeProperty(Output& output, std::string_view name, std::int32_t value) {
    char digits[12];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    WriteShapePropertyStart(output, name);
    output.WriteText({digits, static_cast<std::size_t>(end - digits)});
    WriteShapePropertyEnd(output);
}

void WriteShapeProperty(Output& output, std::string_view name, double value) {
    WriteShapePropertyStart(output, name);
    output.WriteText(NumberText(value));
    WriteShapePropertyEnd(output);
}

std::int32_t TwipsToEmu(std::int32_t twips) { return RoundHalfEven(twips * 635.0); }

}  // namespace draftwick
