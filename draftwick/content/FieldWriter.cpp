#include <draftwick/content/internal/Writers.h>

namespace draftwick {

namespace {

/// PAGE \# "0" \@ "d.M.yyyy" \* Arabic \* Upper \* MERGEFORMAT \* CHARFORMAT
std::string InstructionOf(const Field::Values& field) {
    static constexpr std::string_view NumberWords[] = {"",        "Arabic", "alphabetic", "ALPHABETIC",
                                                       "roman",   "ROMAN",  "Ordinal",    "CardText",
                                                       "OrdText", "Hex",    "DollarText"};
    static constexpr std::string_view TextWords[] = {"", "Caps", "FirstCap", "Lower", "Upper"};
    std::string instruction = field.code;
    const auto picture = [&](std::string_view option, const std::string& text) {
        if (!text.empty()) instruction.append(option).append(text).append("\"");
    };
    const auto format = [&](std::string_view word) {
        if (!word.empty()) instruction.append(" \\* ").append(word);
    };
    picture(" \\# \"", field.numberPicture);
    picture(" \\@ \"", field.datePicture);
    format(WordList{NumberWords}[field.numberFormat]);
    format(WordList{TextWords}[field.textFormat]);
    if (field.mergeFormat) format("MERGEFORMAT");
    if (field.charFormat) format("CHARFORMAT");
    return instruction;
}

}  // namespace

void EmitField(RtfWriter& writer, const RunSettings& run, const Field::Values& field,
               const DocumentSettings& document) {
    const Scripts scripts = writer.Standard() ? ScriptsOf(field.text) : Scripts{};
    EmitDirection(writer, scripts);
    writer.Group([&] {
        EmitRunFormat(writer, run, scripts, document);
        writer.Group("field", [&] {
            if (field.dirty) writer.Word("flddirty");
            if (field.edited) writer.Word("fldedit");
            if (field.locked) writer.Word("fldlock");
            if (field.isPrivate) writer.Word("fldpriv");
            writer.Destination("fldinst", [&] { writer.Line(InstructionOf(field)); });
            writer.Group("fldrslt", [&] { writer.Text(field.text); });
        });
    });
}

}  // namespace draftwick
