#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/rtf/ColorTable.h>
#include <draftwick/rtf/LayoutState.h>
#include <draftwick/rtf/ListNumbers.h>
#include <draftwick/rtf/Output.h>
#include <draftwick/rtf/Words.h>

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace draftwick::detail {

struct Collections;

/// All that the writer of a construct is handed: where its bytes go, the colours that were used, where the writers stand
/// in the document, and the collections whose items the file numbers.
///
/// What a host sends is written with Text, which escapes, or with Raw where it is written as it is; the name at the
/// call says which.
class RtfWriter {
public:
    Output output;
    ColorTable colors;
    LayoutState layout;
    ListNumbers lists;
    const Collections* names = nullptr;

    /// "\word"
    void Word(std::string_view word) { output.WriteControlWord(word); }
    /// "\li-360"
    void Word(std::string_view word, std::int32_t number) { output.WriteControlWord(word, number); }
    /// The word of an enumeration value; nothing when it has none.
    void Word(const WordList& words, std::int32_t value) {
        const std::string_view word = words[value];
        if (!word.empty()) Word(word);
    }
    /// "\word" with 1 or 0.
    void Flag(std::string_view word, bool on) { Word(word, on ? 1 : 0); }
    /// "\word" with the index of a colour, which is registered if it is new.
    void Color(std::string_view word, std::int32_t color) { Word(word, colors.GetColorIndex(color)); }

    /// UTF-8 text, escaped.
    void Text(std::string_view text);
    /// UTF-8 text as it is: RTF already, or a text that the format promised to hosts takes unescaped.
    void Raw(std::string_view text) { output.WriteText(text); }

    /// "{" and "}" around what `content` writes.
    template <class Content>
    void Group(Content&& content) {
        output.WriteGroupStart();
        std::forward<Content>(content)();
        output.WriteGroupEnd();
    }
    /// "{\word" and "}" around what `content` writes.
    template <class Content>
    void Group(std::string_view word, Content&& content) {
        OpenGroup(word);
        std::forward<Content>(content)();
        output.WriteGroupEnd();
    }
    /// "{\*" and "}" around what `content` writes: a group that a reader skips when it does not know its first word.
    template <class Content>
    void Destination(Content&& content) {
        output.WriteDestinationStart();
        std::forward<Content>(content)();
        output.WriteGroupEnd();
    }
    /// "{\*\word" and "}" around what `content` writes.
    template <class Content>
    void Destination(std::string_view word, Content&& content) {
        Destination([&] {
            Word(word);
            std::forward<Content>(content)();
        });
    }
    /// The two halves of a group that takes in other objects: their writers stand between.
    void OpenGroup(std::string_view word) {
        output.WriteGroupStart();
        Word(word);
    }
    void CloseGroup() { output.WriteGroupEnd(); }

    /// A row begins, perhaps within the cell of another one; where the writers stood comes back with LeaveRow.
    void EnterRow() {
        outerRows_.push_back(layout.row);
        layout.row = {};
    }
    void LeaveRow() {
        layout.row = outerRows_.back();
        outerRows_.pop_back();
    }
    /// A shape begins, perhaps within the cell of another one's text; LeaveShape gives back where the writers stood.
    void EnterShape() { outerShapes_.push_back(layout); }
    LayoutState LeaveShape() {
        const LayoutState outer = outerShapes_.back();
        outerShapes_.pop_back();
        return outer;
    }

private:
    std::vector<RowState> outerRows_;
    std::vector<LayoutState> outerShapes_;
};

}  // namespace draftwick::detail
