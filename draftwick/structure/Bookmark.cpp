#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Bookmark.h>
#include <draftwick/structure/internal/Writers.h>
#include <draftwick/text/Utf8.h>

namespace draftwick {

Bookmark::Bookmark(const Origin& origin, std::string_view name, bool isStart)
    : HeldBy(origin), values_{.name = ToValidUtf8(name), .isStart = isStart} {}

void Bookmark::WriteStart() { EmitBookmark(Writer(), values_); }

const Class& Bookmark::Describe() {
    using B = Bookmark;
    using V = Values;
    static const Class description{
        "Bookmark",
        "{2CACD51E-5C7F-4B57-930F-9C371CB76854}",
        "{8AA0A6A5-3FC7-4826-8191-C0119E6AD305}",
        {
            PropertyOf<&B::Emitted>("Emitted"),
            PropertyOf<&B::IsStart, &B::SetIsStart, &V::isStart>("IsStart").DefaultDepends(),
            PropertyOf<&B::Name, &B::SetName, &V::name>("Name").DefaultDepends(),
        },
        {}};
    return description;
}

}  // namespace draftwick
