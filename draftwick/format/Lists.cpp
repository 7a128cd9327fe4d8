#include <draftwick/format/Lists.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

ListLevel::ListLevel(Owner list, std::int32_t number) : Part(list), parts_{draftwick::FontFormat(AsOwner())} {
    values_.format = "\\L" + std::to_string(number) + ".";
}

std::shared_ptr<draftwick::FontFormat> ListLevel::FontFormat() { return Share(parts_.fontFormat); }

List::List(const Origin& origin, std::string name, std::int32_t)
    : Node(origin), name_(std::move(name)), parts_{{ListLevel{AsOwner(), 1}, ListLevel{AsOwner(), 2},
                                                    ListLevel{AsOwner(), 3}, ListLevel{AsOwner(), 4},
                                                    ListLevel{AsOwner(), 5}, ListLevel{AsOwner(), 6},
                                                    ListLevel{AsOwner(), 7}, ListLevel{AsOwner(), 8},
                                                    ListLevel{AsOwner(), 9}}} {}

std::shared_ptr<ListLevel> List::Levels(std::int32_t level) {
    if (!InRange(level, 1, 9)) {
        RaiseRuntimeError(dwRunSubscriptOutOfRange, std::to_string(level),
                          "List.Levels " + std::to_string(level) + ": give 1 to 9");
    }
    return Share(parts_.levels[static_cast<std::size_t>(level - 1)]);
}

std::shared_ptr<List> Lists::Add(std::string_view name) {
    Session();
    return AddItem(name, "Lists");
}

const Class& ListLevel::Describe() {
    using L = ListLevel;
    using V = Values;
    static const Class description{
        "ListLevel",
        "{00A90E71-5852-4E1E-A8BC-EFBDDDF8C492}",
        "{46D4E0CD-81D9-42BB-AC2E-FB6C26295294}",
        {
            PropertyOf<&L::Style, &L::SetStyle, &V::style>("Style"),
            PropertyOf<&L::Align, &L::SetAlign, &V::align>("Align"),
            PropertyOf<&L::Follow, &L::SetFollow, &V::follow>("Follow"),
            PropertyOf<&L::Format, &L::SetFormat, &V::format>("Format").DefaultDepends(),
            PropertyOf<&L::Legal, &L::SetLegal, &V::legal>("Legal"),
            PropertyOf<&L::NoLevelRestart, &L::SetNoLevelRestart, &V::noLevelRestart>("NoLevelRestart"),
            PropertyOf<&L::StartAt, &L::SetStartAt, &V::startAt>("StartAt"),
            PropertyOf<&L::TabPosition, &L::SetTabPosition, &V::tabPosition>("TabPosition"),
            PropertyOf<&L::FontFormat>("FontFormat"),
        },
        {}};
    return description;
}

const Class& List::Describe() {
    static const Class description{
        "List",
        "{3E8FBE4C-8B32-4726-9FB6-BD95CE30AF29}",
        "{6CB4E9B2-BEB5-4118-A531-0B57FAD58084}",
        {PropertyOf<&List::Name>("Name"), IndexedPropertyOf<&List::Levels>("Levels", {{"Index"}})},
        {}};
    return description;
}

const Class& Lists::Describe() {
    static const Class description =
        CollectionOf({"Lists",
                      "{E85F0AFE-C48C-4501-A889-B45FCEBDD2D3}",
                      "{16DD6CF7-234E-4321-8070-7836F7A3845F}",
                      {PropertyOf<&Lists::Count>("Count")},
                      {ItemsByKey<Lists>(), MethodOf<&Lists::Add>("Add", {{"Name"}})}});
    return description;
}

}  // namespace draftwick
