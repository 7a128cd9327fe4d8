#include <draftwick/content/Field.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/text/Escape.h>

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

void EmitField(WritingContext& context, const Field::Values& field) {
    Output& output = context.output;
    output.WriteGroupStart();
    output.WriteControlWord("field");
    if (field.dirty) output.WriteControlWord("flddirty");
    if (field.edited) output.WriteControlWord("fldedit");
    if (field.locked) output.WriteControlWord("fldlock");
    if (field.isPrivate) output.WriteControlWord("fldpriv");
    output.WriteDestinationStart();
    output.WriteControlWord("fldinst");
    output.WriteText(EscapeText(InstructionOf(field)));
    output.WriteGroupEnd();
    output.WriteGroupStart();
    output.WriteControlWord("fldrslt");
    output.WriteText(EscapeText(field.text));
    output.WriteGroupEnd();
    output.WriteGroupEnd();
}

}  // namespace draftwick
