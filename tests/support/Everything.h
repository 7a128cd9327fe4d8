#pragma once

#include <draftwick/draftwick.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace draftwick::test {

/// Fills a document with every construct there is. Each step that may reach a file goes through `attempt`, which gives
/// the step's result. It is longer than what is kept in memory, if that is asked for. The pictures are a bitmap, which becomes a metafile on the way, and a JPEG.
inline void AddEverything(const std::shared_ptr<Document>& document, const std::string& bmp,
                          const std::string& jpg,
                          const std::function<Variant(const std::function<Variant()>&)>& attempt,
                          bool moreThanABlock = true) {
    using Pointer = std::shared_ptr<Object>;
    const auto add = [&](const Pointer& to, const char* method, std::vector<Variant> arguments = {}) {
        return std::get<Pointer>(attempt([&] { return Call(*to, method, arguments); }));
    };
    const auto part = [](const Pointer& of, const char* name) { return std::get<Pointer>(Get(*of, name)); };
    const auto set = [&](const Pointer& of, const char* name, const char* property, const Variant& value) {
        Set(*part(of, name), property, value);
    };
    const auto write = [&](const Pointer& container, std::string text) {
        add(add(container, "AddParagraph"), "AddTextItem", {std::move(text)});
    };

    for (const char* collection : {"Fonts", "ParagraphStyles", "TextStyles", "Lists"}) {
        add(part(document, collection), "Add", {"A"});
    }
    add(part(document, "Properties"), "Add", {"A", "a{b}"});
    document->Properties()->Items(dwBIPTitle)->SetValue("T");
    document->SetDefaultFontName("A");
    document->SetCaption("C");
    document->ParagraphStyles()->Items(1)->Borders()->Items(dwPBorderLeft)->SetStyle(dwBSSingle);
    document->ParagraphStyles()->Items(1)->FontFormat()->SetColor(255);

    const auto section = add(document, "AddSection");
    add(part(section, "Columns"), "Add", {2.0, 0.5});
    Set(*std::get<Pointer>(Call(*part(section, "PageBorders"), "Items", {1})), "Style", dwBSSingle);
    write(add(section, "AddHeader", {dwHeader}), "h");
    const auto styled = add(section, "AddParagraph");
    Set(*styled, "StyleName", "A");
    set(styled, "Format", "ListName", "A");
    set(styled, "Background", "Color", 0xFF00);
    set(styled, "Frame", "Width", 1.0);
    add(part(styled, "TabStops"), "Add", {1.0, dwTabLeft, dwTabLeaderDots});
    add(styled, "AddBookmark", {"b"});
    Set(*add(styled, "AddField", {"PAGE", "1"}), "StyleName", "A");
    write(add(styled, "AddFootnote"), "n");
    write(add(styled, "AddFootnote", {true}), "e");
    set(add(styled, "AddTextItem", {"t"}), "Border", "Style", dwBSSingle);
    attempt([&] { return Call(*styled, "AddText", {"u", "A"}); });
    const auto table = add(section, "AddTable");
    for (int cells = 0; cells < 2; ++cells) {
        const auto cell = add(table, "AddCell");
        Set(*cell, "Width", 1.0);
        write(cell, "c");
    }
    const auto drawing = add(section, "AddParagraph");
    const auto shape = add(drawing, "AddShape", {dwSKRectangle});
    set(shape, "Fill", "Style", dwSFSPicTile);
    set(shape, "Fill", "Picture", bmp);
    set(shape, "Line", "Texture", dwSLTPicture);
    set(shape, "Line", "Picture", jpg);
    set(shape, "Shadow", "Style", 2);
    set(shape, "ThreeD", "Visible", true);
    write(shape, "s");
    const auto picture = add(drawing, "AddShape", {dwSKPictureFrame});
    Set(*picture, "InLine", true);
    set(picture, "Fill", "Picture", bmp);
    const auto art = add(drawing, "AddShape", {dwSKRectangle});
    set(art, "WordArt", "Text", "w");
    for (int paragraphs = 0; paragraphs < (moreThanABlock ? 15 : 0); ++paragraphs)
        write(section, std::string(10000, 'a'));
    write(add(document, "AddSection"), "z");
}

}  // namespace draftwick::test
