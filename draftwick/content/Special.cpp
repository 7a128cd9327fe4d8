#include <draftwick/content/Special.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/text/Escape.h>

namespace draftwick {

std::string Special::ASCII(std::int32_t value) { return ASCIIChar(value); }

const Class& Special::Describe() {
    using S = Special;
    static const Class description{"Special",
                                   "{E5D8A517-23A5-4086-A2C9-E066E04192B9}",
                                   "{6E191F4A-0E8F-4683-B5F7-8DCF05CF25A1}",
                                   {
                                       PropertyOf<&S::Annotation>("Annotation"),
                                       PropertyOf<&S::Bullet>("Bullet"),
                                       PropertyOf<&S::ColumnBreak>("ColumnBreak"),
                                       PropertyOf<&S::ColumnBreakSoft>("ColumnBreakSoft"),
                                       PropertyOf<&S::CurrentDate>("CurrentDate"),
                                       PropertyOf<&S::CurrentDateLong>("CurrentDateLong"),
                                       PropertyOf<&S::CurrentDateShort>("CurrentDateShort"),
                                       PropertyOf<&S::CurrentTime>("CurrentTime"),
                                       PropertyOf<&S::EmDash>("EmDash"),
                                       PropertyOf<&S::EnDash>("EnDash"),
                                       PropertyOf<&S::NonBreakingSpaceEm>("NonBreakingSpaceEm"),
                                       PropertyOf<&S::NonBreakingSpaceEn>("NonBreakingSpaceEn"),
                                       PropertyOf<&S::Footnote>("Footnote"),
                                       PropertyOf<&S::FootnoteContinue>("FootnoteContinue"),
                                       PropertyOf<&S::FootnoteSep>("FootnoteSep"),
                                       PropertyOf<&S::LeftDoubleQuote>("LeftDoubleQuote"),
                                       PropertyOf<&S::LeftQuote>("LeftQuote"),
                                       PropertyOf<&S::LineBreak>("LineBreak"),
                                       PropertyOf<&S::LineBreakSoft>("LineBreakSoft"),
                                       PropertyOf<&S::NonBreakingHyphen>("NonBreakingHyphen"),
                                       PropertyOf<&S::NonBreakingSpace>("NonBreakingSpace"),
                                       PropertyOf<&S::OptionalHyphen>("OptionalHyphen"),
                                       PropertyOf<&S::PageBreak>("PageBreak"),
                                       PropertyOf<&S::PageBreakSoft>("PageBreakSoft"),
                                       PropertyOf<&S::PageNumber>("PageNumber"),
                                       PropertyOf<&S::RightDoubleQuote>("RightDoubleQuote"),
                                       PropertyOf<&S::RightQuote>("RightQuote"),
                                       PropertyOf<&S::SectionNumber>("SectionNumber"),
                                       PropertyOf<&S::TabChar>("TabChar"),
                                   },
                                   {MethodOf<&S::ASCII>("ASCII", {{"Value"}})},
                                   []() -> std::shared_ptr<Object> { return std::make_shared<Special>(); }};
    return description;
}

}  // namespace draftwick
