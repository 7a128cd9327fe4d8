#include "tests/support/Documents.h"

#include <cctype>

namespace draftwick::test {
namespace {

const std::string Start = "\\levelstartat1\\levelspace0\\levelindent0";
const std::string End = "\\jclisttab\\tx360\\fs24\\cf0}";

/// A level as it is by default.
std::string Level(int number) {
    return "{\\listlevel\\levelnfc0\\leveljc0\\levelfollow0" + Start + "{\\leveltext\\'02\\'0"
           + std::to_string(number - 1) + ".;}{\\levelnumbers\\'01;}" + End;
}

std::string Levels(const std::string& before = "", const std::string& after = "") {
    std::string levels;
    for (int number = 1; number <= 9; ++number) levels += before + Level(number) + after;
    return levels;
}

/// The first entries of the override table, with three lists.
const std::string OwnNumbers = "{\\listoverride\\listid1\\listoverridecount\\ls1}"
                               "{\\listoverride\\listid2\\listoverridecount\\ls2}"
                               "{\\listoverride\\listid3\\listoverridecount\\ls3}";

/// The words of the list tables.
std::string Tables(TestDocument& document) {
    const std::string header = document.Header();
    return header.substr(std::min(header.find("{\\*\\listtable"), header.size()));
}

/// The words of the text and the numbers of a level with this format.
std::string LevelText(std::string_view format) {
    TestDocument document;
    document->Lists()->Add("L")->Levels(1)->SetFormat(format);
    std::string bytes = document.Finish();
    // A line break delimits a control word as well as a space does.
    for (std::size_t end = bytes.find("\r\n"); end != std::string::npos; end = bytes.find("\r\n", end)) {
        bytes.replace(end, 2, std::isalpha(static_cast<unsigned char>(bytes[end - 1])) != 0 ? " " : "");
    }
    const std::size_t start = bytes.find("{\\leveltext");
    return bytes.substr(start, bytes.find("\\jclisttab") - start);
}

void Join(TestDocument& document, const std::string& list, std::int32_t level, const std::string& look = "") {
    const auto format = document.AddParagraph()->Format();
    format->SetListName(list);
    format->SetListFormatName(look);
    format->SetListLevel(level);
}

}  // namespace

TEST(Lists, AreWrittenSimplyWhileOnlyTheirFirstLevelIsUsed) {
    TestDocument document;
    for (const char* name : {"unused", "first", "third"}) document->Lists()->Add(name);
    Join(document, "FIRST", 1);
    Join(document, "third", 3);
    Join(document, "third", 1);
    EXPECT_EQ(Tables(document),
              "{\\*\\listtable{\\list\\listtemplateid4{\\listname unused;}\\listid1\\listsimple" + Level(1)
                  + "}{\\list\\listtemplateid5{\\listname first;}\\listid2\\listsimple" + Level(1)
                  + "}{\\list\\listtemplateid6{\\listname third;}\\listid3" + Levels()
                  + "}}{\\*\\listoverridetable" + OwnNumbers + "}");
}

TEST(Lists, BeginALineWithEachLevel) {
    TestDocument document;
    document->Lists()->Add("L");
    EXPECT_TRUE(document.Finish().starts_with(
        "{\\rtf1{\\colortbl\\red0\\green0\\blue0;}{\\*\\listtable{\\list\\listtemplateid2{\\listname "
        "L;}\\listid1"
        "\\listsimple\r\n"
        "{\\listlevel\\levelnfc0\\leveljc0\\levelfollow0\\levelstartat1\\levelspace0\\levelindent0"
        "{\\leveltext \\'02\\'00.;}{\\levelnumbers \\'01;}\\jclisttab\r\n"
        "\\tx360\\fs24\\cf0}}}{\\*\\listoverridetable{\\listoverride\\listid1\\listoverridecount\\ls1}}\r\n"
        "\\deftab720"));
}

TEST(Lists, HaveANumberAndTheLevelsOfTheOtherListForEachPairing) {
    TestDocument document;
    for (const char* name : {"A", "B", "C"}) document->Lists()->Add(name);
    Join(document, "B", 1, "A");
    Join(document, "A", 1, "C");
    Join(document, "A", 1, "b");
    Join(document, "a", 2, "c");  // as the second
    Join(document, "A", 1, "A");
    Join(document, "A", 1);
    document->Lists()->Items("C")->Levels(2)->SetStyle(dwLNSBullet);  // what holds at the end is written
    const std::string words = Words(document.Finish());
    const std::string next = "\\par\\pard\\plain\\fs24\\cf0" + Spacing;
    EXPECT_TRUE(words.ends_with("\\ls10001\\ilvl0" + next + "\\ls10002\\ilvl0" + next + "\\ls10003\\ilvl0"
                                + next + "\\ls10002\\ilvl1" + next + "\\ls10004\\ilvl0" + next
                                + "\\ls1\\ilvl0}"));

    std::string bullets = Levels("{\\lfolevel\\listoverrideformat", "}");
    const std::string numbers = bullets;
    bullets.replace(bullets.find("nfc0", bullets.find("nfc0") + 1), 4, "nfc23");
    // By list, then in the order in which the pairings were made.
    EXPECT_NE(words.find("{\\*\\listoverridetable" + OwnNumbers
                         + "{\\listoverride\\listid1\\listoverridecount9\\ls10002" + bullets
                         + "}{\\listoverride\\listid1\\listoverridecount9\\ls10003" + numbers
                         + "}{\\listoverride\\listid1\\listoverridecount9\\ls10004" + numbers
                         + "}{\\listoverride\\listid2\\listoverridecount9\\ls10001" + numbers + "}}"),
              std::string::npos);
}

TEST(Lists, AreJoinedByStylesToo) {
    TestDocument document;
    document->Lists()->Add("A");
    document->Lists()->Add("B");
    const auto style = document->ParagraphStyles()->Add("S")->Format();
    style->SetListName("A");
    style->SetListFormatName("B");
    style->SetListLevel(9);
    EXPECT_EQ(Refusal([&] { style->SetListName("Z"); }), "X112 Item not found 'Z'.");
    EXPECT_EQ(style->ListName(), "A");
    Join(document, "B", 1, "A");
    document.AddParagraph()->Format()->SetListFormatName("A");  // without a list: no look
    const std::string words = Words(document.Finish());
    EXPECT_NE(words.find("\\slmult1\\ls10002\\ilvl8\\fs24\\cf0 S;}"), std::string::npos);
    EXPECT_NE(words.find("{\\listname A;}\\listid1{\\listlevel"),
              std::string::npos);  // a ninth level is in use
    EXPECT_NE(words.find("{\\listname B;}\\listid2\\listsimple{\\listlevel"), std::string::npos);
    EXPECT_TRUE(words.ends_with("\\slmult1\\ls10001\\ilvl0\\par\\pard\\plain\\fs24\\cf0" + Spacing + "}"));
}

TEST(ListLevel, WritesAllWordsInOrder) {
    TestDocument document;
    const auto list = document->Lists()->Add("L");
    document->AddSection();  // levels never refuse
    const auto level = list->Levels(1);
    Apply({{"Style", dwLNSBullet}, {"Align", dwLNACenter}, {"Follow", dwLNFSpace}, {"Format", "*"}}, *level);
    Apply({{"Legal", true}, {"NoLevelRestart", true}, {"StartAt", -7}, {"TabPosition", 0.5}}, *level);
    level->FontFormat()->SetBold(true);
    EXPECT_EQ(Refusal([&] { list->Levels(10); }).substr(0, 2), "9 ");
    EXPECT_NE(Tables(document).find(
                  "\\listsimple{\\listlevel\\levelnfc23\\leveljc1\\levelfollow1\\levelstartat-7\\levelspace0"
                  "\\levelindent0\\levellegal1\\levelnorestart1{\\leveltext\\'01*;}{\\levelnumbers ;}"
                  "\\jclisttab\\tx720\\b\\fs24\\cf0}}"),
              std::string::npos);
}

TEST(ListLevel, HasAWordForEveryStyleAlignmentAndFollow) {
    const auto word = [](const char* property, const std::string& name) {
        return [=](std::int32_t value) {
            TestDocument document;
            Set(*document->Lists()->Add("L")->Levels(1), property, value);
            return name + Between(Tables(document), name, "\\");
        };
    };
    ExpectWords("levelnfc6 levelnfc0 levelnfc3 levelnfc4 levelnfc1 levelnfc2 levelnfc5 levelnfc7 levelnfc22 "
                "levelnfc23",
                word("Style", "\\levelnfc"));
    ExpectWords("leveljc0 leveljc2 leveljc1", word("Align", "\\leveljc"));
    ExpectWords("levelfollow2 levelfollow1 levelfollow0", word("Follow", "\\levelfollow"));
}

TEST(ListLevel, CountsTheCharactersOfItsFormat) {
    struct Case {
        std::string format, text, numbers;
    };
    const Case cases[] = {
        {"", "00", ""},
        {"\\L1.\\L2", "03\\'00.\\'01", "\\'01\\'03"},
        {"\\L9\\L1", "02\\'08\\'00", "\\'01\\'02"},
        {"(\\L1) - abcd", "10(\\'00) - abcd", "\\'02"},  // ten characters, in decimal
        {"12345678901\\L3", "1212345678901\\'02", "\\'12"},
        {"|\\L1|", "03|\\'00|", "\\'02"},  // a bar is no placeholder
        {"\\L0\\l1\\L", "08\\L0\\l1\\L", ""},
        {"\\\\L1", "02\\\\'00", "\\'02"},
        {"\\L12", "02\\'002", "\\'01"},
        {"§\\L1€", "03\xA7\\'00\x80", "\\'02"},  // characters, not bytes of UTF-8
        {"😀\\L1", "02?\\'00", "\\'02"},
        {std::string(99, 'x') + "\\L1", "100" + std::string(99, 'x') + "\\'00", "\\'100"},
    };
    for (const auto& [format, text, numbers] : cases) {
        EXPECT_EQ(LevelText(format), "{\\leveltext \\'" + text + ";}{\\levelnumbers " + numbers + ";}")
            << format;
    }
}

}  // namespace draftwick::test
