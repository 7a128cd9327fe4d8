#pragma once

#include "tests/support/Documents.h"

#include <regex>
#include <string>

namespace draftwick::test {

/// "<name=value>" for each {\sp{\sn name}{\sv value}} whose value is a text.
inline std::string Pairs(const std::string& words) {
    static const std::regex pair(R"(\{\\sp\{\\sn (\w+)\}\{\\sv ?([^{}]*)\}\})");
    return std::regex_replace(words, pair, "<$1=$2>");
}

/// What is written of a shape on which nothing was set, part by part: a test replaces the parts that it changes.
struct Drawn {
    std::string head = R"({\shp{\*\shpinst{\shplid1<ShapeType=1>)";
    std::string position =
        R"(\shpleft0\shptop0\shpbottom1440\shpright1440\shpbxmargin\shpbymargin\shpwr3\shpwrk0)";
    std::string wrap = "<dxWrapDistLeft=0><dxWrapDistRight=0><dxWrapDistTop=0><dxWrapDistBottom=0>";
    std::string fill{};
    std::string line = "<lineColor=0><lineBackColor=0><lineType=0><lineWidth=12700><lineStyle=0><fLine=1>";
    std::string shadow{};  // and the pictures after it
    std::string id = "}<lTxid=1>";
    std::string text = "<dxTextLeft=91440><dxTextRight=91440><dxTextTop=45720><dxTextBottom=45720>";
    std::string flow = "<txflTextFlow=0>";
    std::string end = "}}";

    std::string All() const { return head + position + wrap + fill + line + shadow + id + text + flow + end; }
};

}  // namespace draftwick::test
