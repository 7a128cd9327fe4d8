#include <draftwick/rtf/RtfWriter.h>
#include <draftwick/text/Escape.h>

#include <string>

namespace draftwick {

namespace {

/// A semicolon would end the name in a table.
std::string EscapeName(std::string_view name) {
    std::string escaped = EscapeText(name, Escaping::OneLine);
    for (std::size_t at = 0; (at = escaped.find(';', at)) != escaped.npos;) escaped.replace(at, 1, "\\'3b");
    return escaped;
}

}  // namespace

void RtfWriter::Text(std::string_view text) {
    Raw(EscapeText(text, Standard() ? Escaping::Lines : Escaping::Classic));
}

void RtfWriter::Line(std::string_view text) {
    Raw(EscapeText(text, Standard() ? Escaping::OneLine : Escaping::Classic));
}

void RtfWriter::Name(std::string_view name) { Raw(Standard() ? EscapeName(name) : std::string{name}); }

void RtfWriter::Entry(std::string_view name) {
    Raw((Standard() ? EscapeName(name) : std::string{name}) + ";");
}

}  // namespace draftwick
