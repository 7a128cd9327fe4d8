#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

namespace draftwick {

void EmitTabStops(RtfWriter& writer, const TabStops& tabStops) {
    static constexpr std::string_view AlignWords[] = {"", "tqr", "tqc", "tqdec"};
    static constexpr std::string_view LeaderWords[] = {"", "tldot", "tlhyph", "tlul"};
    for (const auto& stop : tabStops) {
        const TabStop::Values& values = Stored(*stop);
        if (values.align == dwTabBar) {
            writer.Word("tb", values.position.Twips());
        } else {
            writer.Word(AlignWords, values.align);
            writer.Word(LeaderWords, values.leader);
            writer.Word("tx", values.position.Twips());
        }
    }
}

}  // namespace draftwick
