#include <draftwick/format/internal/BorderTable.h>
#include <draftwick/structure/CellBorders.h>

namespace draftwick {

const Class& CellBorder::Describe() {
    static const Class description{"CellBorder",
                                   "{432D6CF8-01A3-4E6C-80A3-0E89F28C3639}",
                                   "{FF94DB4C-F62B-4A50-B11E-D4B51975CE16}",
                                   BorderRows<CellBorder>(),
                                   {}};
    return description;
}

const Class& CellBorders::Describe() {
    using B = CellBorders;
    static const Class description = CollectionOf({"CellBorders",
                                                   "{418CFCDB-E7EA-4CC9-AEB5-422869863C4A}",
                                                   "{7F493304-F003-4675-B900-89E1F24EB74B}",
                                                   {PropertyOf<&B::Count>("Count")},
                                                   {MethodOf<&B::Items>("Items", {{"Index"}})}});
    return description;
}

}  // namespace draftwick
