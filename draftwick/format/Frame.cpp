#include <draftwick/format/Frame.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

const Class& Frame::Describe() {
    using F = Frame;
    using V = Values;
    static const Class description{
        "Frame",
        "{A83AAA31-B3A2-448F-9909-7AE3C7F35E22}",
        "{565E71C1-726D-46DC-812F-9C3A108C98E2}",
        {
            PropertyOf<&F::ReferenceX, &F::SetReferenceX, &V::referenceX>("ReferenceX"),
            PropertyOf<&F::ReferenceY, &F::SetReferenceY, &V::referenceY>("ReferenceY"),
            PropertyOf<&F::AlignX, &F::SetAlignX, &V::alignX>("AlignX"),
            PropertyOf<&F::AlignY, &F::SetAlignY, &V::alignY>("AlignY"),
            PropertyOf<&F::Left, &F::SetLeft, &V::left>("Left"),
            PropertyOf<&F::Top, &F::SetTop, &V::top>("Top"),
            PropertyOf<&F::Width, &F::SetWidth, &V::width>("Width"),
            PropertyOf<&F::Height, &F::SetHeight, &V::height>("Height"),
            PropertyOf<&F::HeightExactly, &F::SetHeightExactly, &V::heightExactly>("HeightExactly"),
            PropertyOf<&F::SpacingX, &F::SetSpacingX, &V::spacingX>("SpacingX"),
            PropertyOf<&F::SpacingY, &F::SetSpacingY, &V::spacingY>("SpacingY"),
            PropertyOf<&F::LockAnchor, &F::SetLockAnchor, &V::lockAnchor>("LockAnchor"),
            PropertyOf<&F::Wrap, &F::SetWrap, &V::wrap>("Wrap"),
            PropertyOf<&F::DropCapLines, &F::SetDropCapLines, &V::dropCapLines>("DropCapLines"),
            PropertyOf<&F::DropCapInMargin, &F::SetDropCapInMargin, &V::dropCapInMargin>("DropCapInMargin"),
        },
        {}};
    return description;
}

}  // namespace draftwick
