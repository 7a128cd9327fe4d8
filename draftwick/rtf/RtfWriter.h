#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/rtf/ColorTable.h>
#include <draftwick/rtf/LayoutState.h>
#include <draftwick/rtf/ListNumbers.h>
#include <draftwick/rtf/Output.h>
#include <draftwick/rtf/Words.h>
#include <draftwick/text/Escape.h>
#include <draftwick/text/Scripts.h>

#include <cstdint>
#include <string>
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
    /// Words that are written again and again, once they are known.
    using WordsByIndex = std::vector<std::string>;

    Output output;
    ColorTable colors;
    LayoutState layout;
    ListNumbers lists;
    const Collections* names = nullptr;
    WordsByIndex plainParagraphs;  ///< of paragraphs without a format of their own
    WordsByIndex styledRuns;       ///< of runs that have nothing but a text style, by its index
    bool hasFrame = false;  ///< a paragraph was written that stands in a frame

    /// From now on all is spelled as RTF 1.9.1 has it. Before the first word.
    void UseStandardSpelling() {
        output.UseStandardSpelling();
        colors.ReserveFirst();
        lists.CountDown();
    }
    /// Another one for the header, which goes nowhere yet: it knows what this one has noted, and changes nothing of it.
    RtfWriter ForHeader() const {
        RtfWriter writer;
        if (Standard()) writer.output.UseStandardSpelling();
        writer.colors = colors;
        writer.lists = lists;
        writer.names = names;
        writer.hasFrame = hasFrame;
        return writer;
    }
    /// Where the spellings differ in more than a word.
    bool Standard() const noexcept { return output.Standard(); }

    std::string_view Of(const Spelled& word) const noexcept {
        return Standard() ? word.standard : word.classic;
    }

    /// "\word"
    void Word(std::string_view word) { output.WriteControlWord(word); }
    /// "\li-360"
    void Word(std::string_view word, std::int32_t number) { output.WriteControlWord(word, number); }
    void Word(const Spelled& word) {
        if (!Of(word).empty()) Word(Of(word));
    }
    void Word(const Spelled& word, std::int32_t number) {
        if (!Of(word).empty()) Word(Of(word), number);
    }
    /// The word of an enumeration value; nothing when it has none.
    void Word(const WordList& words, std::int32_t value) {
        const std::string_view word = words[value];
        if (!word.empty()) Word(word);
    }
    /// What the format calls a flag, which is on where its word stands: "\facingp" or nothing. Classic: "\facingp1" or
    /// "\facingp0".
    void Flag(std::string_view word, bool on) {
        if (!Standard()) {
            Word(word, on ? 1 : 0);
        } else if (on) {
            Word(word);
        }
    }
    /// What the format calls a toggle: "\b" or "\b0". Classic: "\b1" or "\b0".
    void Toggle(const Spelled& word, bool on) {
        if (Standard() && on) {
            Word(word.standard);
        } else {
            Word(Of(word), on ? 1 : 0);
        }
    }
    void Toggle(std::string_view word, bool on) { Toggle(Spelled{word, word}, on); }
    /// What `write` writes, which is control words and the same each time: from the second time on it is copied.
    template <class Write>
    void RepeatWords(WordsByIndex& known, std::size_t index, Write&& write) {
        if (index < known.size() && !known[index].empty()) return output.WriteControlWords(known[index]);
        if (index >= known.size()) known.resize(index + 1);
        const Output::Place start = output.Here();
        std::forward<Write>(write)();
        known[index] = output.WordsSince(start);
    }
    /// "\word" with the index of a colour, which is registered if it is new.
    void Color(const Spelled& word, std::int32_t color) {
        if (!Of(word).empty()) Word(Of(word), colors.GetColorIndex(color));
    }
    void Color(std::string_view word, std::int32_t color) { Word(word, colors.GetColorIndex(color)); }

    /// UTF-8 text, escaped.
    void Text(std::string_view text);
    /// Likewise of one line: in the standard spelling a line break is a blank.
    void Line(std::string_view text);
    /// A name: of one line, escaped with its semicolons. Classic: as it is, so that braces in it break the file.
    void Name(std::string_view name);
    /// Likewise with the semicolon that ends it in a table.
    void Entry(std::string_view name);
    /// Calls with the text in its RTF form and what characters that has.
    template <class Use>
    void WithEscaped(std::string_view text, Use&& use) {
        escaped_.clear();
        const Letters letters =
            AppendEscaped(escaped_, text, Standard() ? Escaping::Lines : Escaping::Classic);
        std::forward<Use>(use)(std::string_view{escaped_}, letters);
        if (escaped_.capacity() > MostEscapedKept) std::string{}.swap(escaped_);
    }
    /// UTF-8 text as it is: RTF already.
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
    void OpenDestination(std::string_view word) {
        output.WriteDestinationStart();
        Word(word);
    }
    void CloseGroup() { output.WriteGroupEnd(); }

    /// A row begins, perhaps within the cell of another one; where the writers stood comes back with LeaveRow. In the
    /// standard spelling its text is kept until then and comes behind what `definition` writes.
    void EnterRow() {
        outerRows_.push_back(layout.row);
        layout.row = {};
        if (Standard()) output.Keep();
    }
    template <class Definition>
    void LeaveRow(Definition&& definition) {
        if (Standard()) {
            const std::string text = output.TakeKept();
            std::forward<Definition>(definition)();
            output.PutLines(text);
        }
        layout.row = outerRows_.back();
        outerRows_.pop_back();
    }
    /// A text of its own begins within another one: a note, a header, a shape. In the standard spelling it begins anew,
    /// and where the writers stood comes back with LeaveStory. In the classic one the two flow into each other, and the
    /// caller takes back what it wants of what LeaveStory gives.
    void EnterStory() {
        outerStories_.push_back(layout);
        if (Standard()) layout = {.FirstSection = layout.FirstSection, .SuppressNextParagraphMark = true};
    }
    LayoutState LeaveStory() {
        const LayoutState outer = outerStories_.back();
        outerStories_.pop_back();
        if (Standard()) layout = outer;
        return outer;
    }

private:
    static constexpr std::size_t MostEscapedKept = 16 * 1024;

    std::string escaped_;  // its memory serves one text after the other
    std::vector<RowState> outerRows_;
    std::vector<LayoutState> outerStories_;
};

}  // namespace draftwick::detail
