#include "tests/support/Documents.h"
#include "tests/support/Script.h"

namespace draftwick::test {

TEST(Numbers, AreRefusedWhenWhatIsWrittenDoesNotFit32Bits) {
    const std::string paragraph = "AddSection.AddParagraph";
    const std::string shape = "AddSection.AddParagraph.AddShape dwSKRectangle ThreeD.Visible=true "
                              "Fill.Style=dwSFSShadeRect Shadow.Style=dwSSSSingle WordArt.Text='x'";
    const struct {
        std::string steps;
        std::vector<const char*> fits, refused;
    } cases[] = {
        // Times 20, rounded down.
        {paragraph,
         {"Format.SpaceBefore=-107374182.4", "Format.SpaceBefore=107374182.38",
          "Format.SpaceAfter=-107374182.4", "Format.SpaceAfter=107374182.38"},
         {"Format.SpaceBefore=-107374182.41", "Format.SpaceBefore=107374182.4",
          "Format.SpaceAfter=-107374182.41", "Format.SpaceAfter=107374182.4"}},
        {paragraph + " Borders.dwPBorderTop.Style=dwBSSingle",
         {"Borders.dwPBorderTop.Width=-107374182.4", "Borders.dwPBorderTop.Spacing=107374182.38"},
         {"Borders.dwPBorderTop.Width=-107374182.41", "Borders.dwPBorderTop.Spacing=107374182.4"}},
        // To the nearest number; a distance may be written with the other sign.
        {paragraph + " Format.LineSpacingStyle=dwSpacingExactly",
         {"Format.LineSpacingDistance=107374182.35", "Format.LineSpacingDistance=-107374182.35"},
         {"Format.LineSpacingDistance=107374182.4", "Format.LineSpacingDistance=-107374182.4"}},
        {paragraph,
         {"Format.LineSpacingMultiple=8947848.53", "Format.LineSpacingMultiple=-8947848.533"},
         {"Format.LineSpacingMultiple=8947848.533", "Format.LineSpacingMultiple=-8947848.536"}},
        // Times 2, rounded down.
        {paragraph,
         {"FontFormat.Size=-1073741824.0", "FontFormat.Size=1073741823.9"},
         {"FontFormat.Size=-1073741824.1", "FontFormat.Size=1073741824.0"}},
        // Times 65536; the distance from 100 percent; twips times 635.
        {shape,
         {"ThreeD.RotationX=-32768.0", "ThreeD.RotationX=32767.9999", "WordArt.Size=-32768.0",
          "Fill.ShadeToRight=-3276800.0", "Fill.ShadeToRight=3276799.99", "Fill.ShadeToLeft=3276799.99",
          "Fill.ShadeToLeft=3276899.99", "Fill.ShadeToLeft=-3276699.99", "Fill.ShadeToTop=3276899.99",
          "Line.Width=169093.2", "Line.Width=-169093.2"},
         {"ThreeD.RotationX=-32768.001", "ThreeD.RotationX=32768.0", "WordArt.Size=32768.0",
          "Fill.ShadeToRight=-3276800.1", "Fill.ShadeToRight=3276800.0", "Fill.ShadeToLeft=3276900.0",
          "Fill.ShadeToLeft=-3276700.0", "Fill.ShadeToTop=-3276700.0", "Line.Width=169093.25",
          "Line.Width=-169093.25"}},
    };
    for (const auto& [steps, fits, refused] : cases) {
        for (const char* setting : fits) {
            const TestDocument built;
            Script script(built.document);
            script.Run(steps);
            EXPECT_EQ(Refusal([&] { script.Run(setting); }), "accepted") << setting;
            built.Finish();
        }
        for (const char* setting : refused) {
            const TestDocument built;
            Script script(built.document);
            script.Run(steps);
            EXPECT_EQ(RefusalNumber([&] { script.Run(setting); }), dwRunOverflow) << setting;
        }
    }
}

}  // namespace draftwick::test
