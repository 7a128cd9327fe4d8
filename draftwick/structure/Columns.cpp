#include <draftwick/model/internal/Advice.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/structure/Columns.h>

#include <limits>

namespace draftwick {

namespace {

constexpr std::int32_t MostColumns = std::numeric_limits<std::uint8_t>::max();

}  // namespace

std::shared_ptr<Column> Columns::Add(Measure width, Measure spacing) {
    const dwScaleMode scale = OpenForChange();
    if (Listed() == MostColumns) {
        RaiseRuntimeError(dwRunOverflow, "a section has at most 255 columns",
                          "Columns.Add: there are 255 columns; add no more, or call Clear before");
    }
    Column::Values values{.number = static_cast<std::uint8_t>(Listed() + 1)};
    values.width.Set(width, scale);
    values.spacing.Set(spacing, scale);
    return list_.emplace_back(std::make_shared<Column>(OriginOfChild(), values));
}

void Columns::Auto(std::int32_t count, Measure spacing) {
    Length converted{0};
    converted.Set(spacing, OpenForChange());
    list_.clear();
    values_.automatic = count;
    values_.spacing = converted;
}

void Columns::Clear() {
    OpenForChange();
    list_.clear();
    values_ = {.lineBetween = values_.lineBetween};
}

std::int32_t Columns::Count() const noexcept { return list_.empty() ? values_.automatic : Listed(); }

std::shared_ptr<Column> Columns::Items(std::int32_t index) const {
    CheckByte(index);
    if (list_.empty()) return nullptr;
    if (index < 1 || index > Listed()) {
        RaiseRuntimeError(dwRunSubscriptOutOfRange, std::to_string(index),
                          AdviceOnPosition(*this, index, Listed()));
    }
    return ItemAt(index);
}

// The length in twips is assigned again as a length in the document's unit, and so on. Hosts know how that ends.
void Columns::SetSpacing(double length) {
    const dwScaleMode scale = OpenForChange();
    for (;;) {
        const double twips = ToShort(ToTwips(length, scale));
        if (twips == length) {
            RaiseRuntimeError(dwRunOutOfStackSpace, "Columns.Spacing is set by Columns.Auto",
                              "Columns.Spacing: give the spacing to Columns.Auto");
        }
        length = twips;
    }
}

const Class& Column::Describe() {
    using C = Column;
    using V = Values;
    static const Class description{
        "Column",
        "{2936F283-8B8D-4957-BCA2-0081B04426EC}",
        "{FECDAF70-75A5-43D4-9CFA-44AB61EF9363}",
        {
            PropertyOf<&C::Spacing, &C::SetSpacing, &V::spacing>("Spacing").DefaultDepends(),
            PropertyOf<&C::Width, &C::SetWidth, &V::width>("Width").DefaultDepends(),
        },
        {}};
    return description;
}

const Class& Columns::Describe() {
    using C = Columns;
    using V = Values;
    static const Class description =
        CollectionOf({"Columns",
                      "{B72F9836-9192-4FEE-83D8-F8B9765EB17C}",
                      "{1B822AED-3874-4EB2-9AD0-30D658935DCA}",
                      {
                          PropertyOf<&C::Count>("Count"),
                          PropertyOf<&C::LineBetween, &C::SetLineBetween, &V::lineBetween>("LineBetween"),
                          PropertyOf<&C::Spacing, &C::SetSpacing>("Spacing").As(Kind::Length),
                      },
                      {
                          MethodOf<&C::Items>("Items", {{"Index"}}).OrNothing(),
                          MethodOf<&C::Add>("Add", {{"Width"}, {"Spacing"}}),
                          MethodOf<&C::Auto>("Auto", {{"Count"}, {"Spacing"}}),
                          MethodOf<&C::Clear>("Clear"),
                      }});
    return description;
}

}  // namespace draftwick
