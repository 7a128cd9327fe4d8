#include <draftwick/format/Fonts.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

std::shared_ptr<Font> Fonts::Add(std::string_view name) {
    OpenForChange();
    return AddItem(name, "Fonts");
}

const Class& Font::Describe() {
    static const Class description{
        "Font",
        "{8643412B-C7DF-4466-9F59-8824B0C4891F}",
        "{E3D6105F-3C49-43BB-A0C4-91778B2FE05F}",
        {
            PropertyOf<&Font::Name>("Name"),
            PropertyOf<&Font::AltName, &Font::SetAltName, &Values::altName>("AltName"),
            PropertyOf<&Font::Family, &Font::SetFamily, &Values::family>("Family"),
        },
        {}};
    return description;
}

const Class& Fonts::Describe() {
    static const Class description =
        CollectionOf({"Fonts",
                      "{C40907E5-9A70-4FC4-B88B-4785BD9D6B1F}",
                      "{58612EAE-74FC-4639-A4EC-7A4D70606954}",
                      {PropertyOf<&Fonts::Count>("Count")},
                      {ItemsByKey<Fonts>(), MethodOf<&Fonts::Add>("Add", {{"Name"}})}});
    return description;
}

}  // namespace draftwick
