#include <draftwick/drawing/internal/Writers.h>
#include <draftwick/text/Escape.h>

#include <charconv>

namespace draftwick {

namespace {

template <class Value>
void WriteProperty(RtfWriter& writer, std::string_view name, Value&& value) {
    writer.Group("sp", [&] {
        writer.Group("sn", [&] { writer.Raw(name); });
        writer.Group("sv", value);
    });
}

}  // namespace

void WriteShapeProperty(RtfWriter& writer, std::string_view name, std::string_view value) {
    WriteProperty(writer, name, [&] { writer.Text(value); });
}

void WriteShapeProperty(RtfWriter& writer, std::string_view name, std::int32_t value) {
    char digits[12];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    WriteProperty(writer, name, [&] { writer.Raw({digits, static_cast<std::size_t>(end - digits)}); });
}

void WriteShapeProperty(RtfWriter& writer, std::string_view name, double value) {
    WriteProperty(writer, name, [&] { writer.Raw(NumberText(value)); });
}

void WriteShapeProperty(RtfWriter& writer, std::string_view name, const OpenPicture& picture,
                        const PictureSize& size) {
    WriteProperty(writer, name, [&] {
        writer.Raw("");
        writer.Group("pict", [&] { EmitPicture(writer, picture, size); });
    });
}

}  // namespace draftwick
