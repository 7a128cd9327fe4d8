#include "tests/support/Documents.h"

namespace draftwick::test {

TEST(TabStops, AreJudgedWhenTheyAreAdded) {
    const TestDocument document;
    const auto stops = document.AddParagraph()->TabStops();
    EXPECT_EQ(Refusal([&] { stops->Add(1.5); }),
              "X101 Property TabStops.Add.Leader set to out of range value.");
    EXPECT_EQ(Refusal([&] { stops->Add(1.5, static_cast<dwTabAlign>(6), static_cast<dwTabLeader>(5)); }),
              "X101 Property TabStops.Add.Align set to out of range value.");
    for (const double tooFar : {22.76, 1e300}) {
        EXPECT_EQ(RefusalNumber([&] { stops->Add(tooFar, dwTabLeft, dwTabLeaderNone); }), dwRunOverflow);
    }
    EXPECT_EQ(stops->Count(), 0);
    stops->Add(0.1, dwTabLeft, dwTabLeaderNone);
    EXPECT_EQ(stops->Items(1)->Position(), static_cast<double>(0.1F));
    EXPECT_EQ(RefusalNumber([&] { stops->Items(256); }), dwRunOverflow);
}

}  // namespace draftwick::test
