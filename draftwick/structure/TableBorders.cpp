#include <draftwick/format/internal/BorderTable.h>
#include <draftwick/structure/TableBorders.h>

namespace draftwick {

const Class& TableBorder::Describe() {
    static const Class description{"TableBorder",
                                   "{67524C15-BA91-434E-BEC3-93F73E05DF07}",
                                   "{9131F0B6-5394-441C-956B-736B9E4AF31B}",
                                   BorderRows<TableBorder>(),
                                   {}};
    return description;
}

const Class& TableBorders::Describe() {
    using B = TableBorders;
    static const Class description = CollectionOf({"TableBorders",
                                                   "{97644C59-4918-480B-AD38-3D2584BF3A59}",
                                                   "{2516E12E-C3C9-4591-B0E9-38A5B9ACD25A}",
                                                   {PropertyOf<&B::Count>("Count")},
                                                   {MethodOf<&B::Items>("Items", {{"Index"}})}});
    return description;
}

}  // namespace draftwick
