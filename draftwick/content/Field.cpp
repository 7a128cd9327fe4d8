#include <draftwick/content/Field.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/text/Utf8.h>

namespace draftwick {

Field::Field(const Origin& origin, std::string_view code, std::string_view text) : Run(origin) {
    values_.code = ToValidUtf8(code);
    values_.text = ToValidUtf8(text);
}

void Field::WriteStart() { EmitField(Writer(), Settings(), values_, Session().settings); }

const Class& Field::Describe() {
    using F = Field;
    using V = Values;
    static const Class description{
        "Field",
        "{9E32B748-CFCE-4832-B079-8486A3056263}",
        "{1A6C887A-1029-4FB2-B183-E634B7FF7162}",
        {
            PropertyOf<&F::Emitted>("Emitted"),
            PropertyOf<&F::Finished>("Finished"),
            PropertyOf<&F::Code, &F::SetCode, &V::code>("Code").DefaultDepends(),
            PropertyOf<&F::Text, &F::SetText, &V::text>("Text").DefaultDepends(),
            PropertyOf<&F::StyleName, &F::SetStyleName>("StyleName"),
            PropertyOf<&F::NumberFormat, &F::SetNumberFormat, &V::numberFormat>("NumberFormat"),
            PropertyOf<&F::TextFormat, &F::SetTextFormat, &V::textFormat>("TextFormat"),
            PropertyOf<&F::NumberPicture, &F::SetNumberPicture, &V::numberPicture>("NumberPicture"),
            PropertyOf<&F::DatePicture, &F::SetDatePicture, &V::datePicture>("DatePicture"),
            PropertyOf<&F::MergeFormat, &F::SetMergeFormat, &V::mergeFormat>("MergeFormat"),
            PropertyOf<&F::CharFormat, &F::SetCharFormat, &V::charFormat>("CharFormat"),
            PropertyOf<&F::Dirty, &F::SetDirty, &V::dirty>("Dirty"),
            PropertyOf<&F::Edited, &F::SetEdited, &V::edited>("Edited"),
            PropertyOf<&F::Locked, &F::SetLocked, &V::locked>("Locked"),
            PropertyOf<&F::Private, &F::SetPrivate, &V::isPrivate>("Private"),
            PropertyOf<&F::FontFormat>("FontFormat"),
            PropertyOf<&F::Background>("Background"),
            PropertyOf<&F::Border>("Border"),
        },
        {}};
    return description;
}

}  // namespace draftwick
