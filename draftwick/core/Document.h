#pragma once

#include <draftwick/model/Content.h>
#include <draftwick/model/DocumentSettings.h>
#include <draftwick/viewer/ViewerKind.h>

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace draftwick {

namespace detail {
struct Sink;
}  // namespace detail

namespace platform {
struct Platform;
}  // namespace platform

class AutomationObject;
class Fonts;
class Lists;
class ParagraphStyles;
class Properties;
class Section;
class TextStyles;

/// A document that is written while it is built.
///
/// Set its properties, add sections, fill them, call Finish. What was added is written to a temporary file, in blocks,
/// as soon as its next sibling arrives; Finish puts the tables of fonts, colours, styles and lists in front. The first
/// section writes the document's own settings: from then on its setters refuse ("Document"), except ScaleMode.
///
/// The temporary file is "~dw1.tmp" in TempPath, and is copied behind the header. In the standard spelling, when
/// Filename is set and TempPath is not, it is "~dwout1.tmp" in the folder of the file and becomes the file itself: it
/// begins with a gap for the header, and line ends fill what the header leaves of it. It is copied nevertheless when the
/// header grows out of the gap.
///
/// Your program's reference keeps the document alive; once it is released, everything that belonged to it refuses
/// with error 91. A document that is released without Finish leaves its temporary file behind, with the lines
/// that were written so far, unless DiscardOnRelease is set. One document is for one thread; different documents can be
/// used in different threads at the same time.
class DRAFTWICK_API Document final : public detail::Content {
public:
    /// A new document with the system's services.
    static std::shared_ptr<Document> Create();
    /// A new document with services of your own in place of the system's (draftwick/platform/Platform.h). A service
    /// that is empty is refused with error 5 by the call that needs it.
    static std::shared_ptr<Document> Create(platform::Platform services);
    ~Document() override;

    /// Adds a section and closes the one before. Refuses once the document is finished ("Document");
    /// std::system_error when the temporary file cannot be made or written.
    std::shared_ptr<Section> AddSection();
    /// The section that was added last; empty before the first.
    std::shared_ptr<Section> CurrentSection() const { return currentSection_; }

    /// Writes the file. std::system_error when that fails: the document is then not finished, and a later call
    /// writes the file once the cause is gone. On a finished document it does nothing.
    ///
    /// The file is written under a temporary name ("~dwout1.tmp") in its folder and renamed when it is complete. If
    /// the process ends before that, whenever it is, an old file of the name is what it was; temporary files may be
    /// left, and for a file without a Filename an empty one. The new file replaces the old one: it has the
    /// permissions of new files, a symbolic link becomes a file, other hard links keep what they had. A device or a
    /// pipe is written to as it is. What a system keeps that stops is said by Durable.
    void Finish();

    /// Takes the bytes of a file, one piece after the other. It fails by an exception, which FinishTo passes on.
    using Sink = std::function<void(std::string_view bytes)>;
    /// Finishes the document into a stream, in place of a file: ActualFileName stays empty and Filename does not count.
    /// FileError when the stream fails: the document is then not finished, and a later Finish or FinishTo writes the
    /// whole. Refuses on a document that is finished or is being finished ("Document").
    void FinishTo(std::ostream& stream);
    /// The same, with a function that takes the bytes.
    void FinishTo(const Sink& sink);

    /// Gives the document up: its temporary file is deleted, and everything that belongs to it refuses from then on
    /// (dwErrTargetEmitted, "Document"). A finished document stays what it is, and a second call does nothing.
    /// FileError when the file cannot be deleted; the document is given up nevertheless.
    void Discard();
    /// Whether Finish forces the file and its folder to the disk before it returns, so that both outlast a system that
    /// stops. Default false: the system writes when it sees fit.
    bool Durable() const { return settings_.durable; }
    void SetDurable(bool on) { Change(settings_.durable, on); }
    /// Whether a document that is released unfinished is given up, as by Discard; else its temporary file stays, with
    /// all that was written. Default false. Can be set until the document is finished.
    bool DiscardOnRelease() const { return settings_.discardOnRelease; }
    void SetDiscardOnRelease(bool on);
    /// Whether the document is kept in memory in place of a temporary file until it is finished: for small documents, in
    /// servers above all. Nothing is created in TempPath then, nor for pictures that must be converted. Default false.
    bool BodyInMemory() const { return settings_.bodyInMemory; }
    void SetBodyInMemory(bool on) { Change(settings_.bodyInMemory, on); }

    /// How many characters of your texts the file could not hold, of what is written so far; "?" stands in their
    /// place.
    std::int32_t LostCharacters() const;

    /// Finishes the document and shows it in the viewer. Returns the one that was used.
    /// dwErrPropertyOutOfRange ("Viewer") for a number that is no dwViewer. dwErrNoViewer when no viewer is found.
    /// With a viewer that is asked for by name: error 429 when it cannot be had or is of another version, else what
    /// the system says, as std::system_error. Where there is no automation (POSIX), there is no Word.
    dwViewer Preview(dwViewer program = dwViewerAuto);
    /// Finishes the document and prints it on the default printer. As Preview.
    dwViewer PrintOut(dwViewer program = dwViewerAuto);
    /// The word processor that the last Preview or PrintOut used; empty if it used none.
    std::shared_ptr<AutomationObject> ViewerApp() const;
    /// The task of the viewer program that the last Preview or PrintOut started; 0 if it started none.
    std::int32_t ViewerTaskID() const;

    /// The file that was written; empty before Finish.
    const std::string& ActualFileName() const;
    /// The file to write; empty (default) for "Draftwick1.rtf", or the next free number, in the folder for temporary
    /// files. An existing file is replaced; if it cannot be deleted, a number is put before the extension of four
    /// characters. Error 5 in Finish for a name of less than four characters.
    const std::string& Filename() const { return settings_.filename; }
    void SetFilename(std::string_view name) { SetPath(settings_.filename, name); }
    /// The folder of the temporary file; empty (default) for the system's, or in the standard spelling the file's own.
    const std::string& TempPath() const { return settings_.tempPath; }
    void SetTempPath(std::string_view folder) { SetPath(settings_.tempPath, folder); }

    /// The unit in which lengths are given and taken, in the whole document. Default dwInches. It can be changed at
    /// any time; what is stored stays.
    dwScaleMode ScaleMode() const { return settings_.scaleMode; }
    void SetScaleMode(dwScaleMode scale) { settings_.scaleMode.Set(scale); }

    /// How the file is spelled: dwSpellingStandard is what new programs want. Default dwSpellingClassic.
    dwSpelling Spelling() const { return settings_.spelling; }
    void SetSpelling(dwSpelling spelling) { Change(settings_.spelling, spelling); }

    /// The fonts, lists and styles that the content refers to by name. Fonts and styles must be there before the first
    /// section is added, lists before Finish.
    std::shared_ptr<draftwick::Fonts> Fonts() const;
    std::shared_ptr<draftwick::Lists> Lists() const;
    std::shared_ptr<draftwick::ParagraphStyles> ParagraphStyles() const;
    std::shared_ptr<draftwick::TextStyles> TextStyles() const;
    /// Title, author and the like, and those that you add.
    std::shared_ptr<draftwick::Properties> Properties() const;

    /// The font of everything that has no other; empty (default) leaves it to the reader. It takes the spelling of
    /// the font in Fonts; dwErrItemNotFound when there is none. Formats that exist already do not follow.
    std::string DefaultFontName() const;
    void SetDefaultFontName(std::string_view name);

    // The page. Lengths are 16 bits in twips.

    /// From the edge of the page to the text. Default 720 twips each.
    double MarginTop() const { return Read(settings_.page.marginTop); }
    void SetMarginTop(Measure length) { Change(settings_.page.marginTop, length); }
    double MarginLeft() const { return Read(settings_.page.marginLeft); }
    void SetMarginLeft(Measure length) { Change(settings_.page.marginLeft, length); }
    double MarginRight() const { return Read(settings_.page.marginRight); }
    void SetMarginRight(Measure length) { Change(settings_.page.marginRight, length); }
    double MarginBottom() const { return Read(settings_.page.marginBottom); }
    void SetMarginBottom(Measure length) { Change(settings_.page.marginBottom, length); }
    /// Left and right margins change places on left pages.
    bool MarginMirror() const { return settings_.marginMirror; }
    void SetMarginMirror(bool on) { Change(settings_.marginMirror, on); }
    /// Room for binding. Default 0.
    double Gutter() const { return Read(settings_.page.gutter); }
    void SetGutter(Measure length) { Change(settings_.page.gutter, length); }
    /// The width of the paper. Default 12240 twips (8.5 inches).
    double PageWidth() const { return Read(settings_.page.pageWidth); }
    void SetPageWidth(Measure length) { Change(settings_.page.pageWidth, length); }
    /// The height of the paper. Default 15840 twips (11 inches).
    double PageHeight() const { return Read(settings_.page.pageHeight); }
    void SetPageHeight(Measure length) { Change(settings_.page.pageHeight, length); }
    /// The paper that PageWidth and PageHeight are those of, in either orientation; dwPaperOther when there is none.
    /// Setting it sets both, the way up that Orientation says. dwErrPropertyOutOfRange ("Document.PaperSize") for
    /// dwPaperOther.
    dwPaperSize PaperSize() const { return settings_.page.Paper(); }
    void SetPaperSize(dwPaperSize paper);
    /// A change swaps PageWidth and PageHeight. Default dwPortrait.
    dwOrientation Orientation() const { return settings_.orientation; }
    void SetOrientation(dwOrientation orientation);
    /// Left and right pages differ. Default false.
    bool FacingPage() const { return settings_.facingPage; }
    void SetFacingPage(bool on) { Change(settings_.facingPage, on); }
    /// The number of the first page, 16 bits. Default 1.
    std::int32_t PageNumberStart() const { return settings_.pageNumberStart; }
    void SetPageNumberStart(std::int32_t number) { Change(settings_.pageNumberStart, number); }
    /// Page borders go around headers and footers. Default true.
    bool PageBorderAroundHeader() const { return settings_.pageBorderAroundHeader; }
    void SetPageBorderAroundHeader(bool on) { Change(settings_.pageBorderAroundHeader, on); }
    bool PageBorderAroundFooter() const { return settings_.pageBorderAroundFooter; }
    void SetPageBorderAroundFooter(bool on) { Change(settings_.pageBorderAroundFooter, on); }

    // Text.

    /// The distance of the default tab stops. Default 720 twips.
    double TabWidth() const { return Read(settings_.tabWidth); }
    void SetTabWidth(Measure length) { Change(settings_.tabWidth, length); }
    /// No single first or last lines of paragraphs on a page. Default true.
    bool WidowOrphanControl() const { return settings_.widowOrphanControl; }
    void SetWidowOrphanControl(bool on) { Change(settings_.widowOrphanControl, on); }
    /// The reader hyphenates words. Default false.
    bool HyphenAuto() const { return settings_.hyphenAuto; }
    void SetHyphenAuto(bool on) { Change(settings_.hyphenAuto, on); }
    /// Words in capitals are hyphenated, too. Default true.
    bool HyphenCaps() const { return settings_.hyphenCaps; }
    void SetHyphenCaps(bool on) { Change(settings_.hyphenCaps, on); }
    /// How many lines in a row may end in a hyphen; 0 (default) for any number.
    std::int32_t HyphenConsecutiveLines() const { return settings_.hyphenConsecutiveLines; }
    void SetHyphenConsecutiveLines(std::int32_t lines) { Change(settings_.hyphenConsecutiveLines, lines); }
    /// How much room a line may leave at its end before a word is hyphenated. Default 360 twips.
    double HyphenHotZone() const { return Read(settings_.hyphenHotZone); }
    void SetHyphenHotZone(Measure length) { Change(settings_.hyphenHotZone, length); }

    // The reader's window.

    /// The title of the window. Default empty. In the classic spelling it is written as it is: braces break the file.
    const std::string& Caption() const { return settings_.caption; }
    void SetCaption(std::string_view caption) { Change(settings_.caption, caption); }
    /// Default dwViewNone: this and the two settings below are not written.
    dwViewKind ViewKind() const { return settings_.viewKind; }
    void SetViewKind(dwViewKind kind) { Change(settings_.viewKind, kind); }
    /// Default dwZoomPercent.
    dwZoomKind ZoomKind() const { return settings_.zoomKind; }
    void SetZoomKind(dwZoomKind kind) { Change(settings_.zoomKind, kind); }
    /// How large the reader is asked to show the document: percent, 16 bits, for dwZoomPercent. Default 100.
    std::int32_t ZoomScale() const { return settings_.zoomScale; }
    void SetZoomScale(std::int32_t percent) { Change(settings_.zoomScale, percent); }

    // Notes.

    /// Default dwFFDecimal.
    dwFootnoteFormat FootnoteFormat() const { return settings_.footnoteFormat; }
    void SetFootnoteFormat(dwFootnoteFormat format) { Change(settings_.footnoteFormat, format); }
    dwFootnoteFormat EndnoteFormat() const { return settings_.endnoteFormat; }
    void SetEndnoteFormat(dwFootnoteFormat format) { Change(settings_.endnoteFormat, format); }
    /// Default dwFLBottomOfPage.
    dwFootnoteLocation FootnoteLocation() const { return settings_.footnoteLocation; }
    void SetFootnoteLocation(dwFootnoteLocation location) { Change(settings_.footnoteLocation, location); }
    /// Default dwELSection.
    dwEndnoteLocation EndnoteLocation() const { return settings_.endnoteLocation; }
    void SetEndnoteLocation(dwEndnoteLocation location) { Change(settings_.endnoteLocation, location); }
    /// Default dwFRContinuous.
    dwFootnoteRestart FootnoteRestart() const { return settings_.footnoteRestart; }
    void SetFootnoteRestart(dwFootnoteRestart restart) { Change(settings_.footnoteRestart, restart); }
    /// Default dwFRContinuous. Endnotes cannot start again on each page: dwFRPage is written as dwFRContinuous.
    dwFootnoteRestart EndnoteRestart() const { return settings_.endnoteRestart; }
    void SetEndnoteRestart(dwFootnoteRestart restart) { Change(settings_.endnoteRestart, restart); }
    /// The first number, 16 bits. Default 1.
    std::int32_t FootnoteStartAt() const { return settings_.footnoteStartAt; }
    void SetFootnoteStartAt(std::int32_t number) { Change(settings_.footnoteStartAt, number); }
    std::int32_t EndnoteStartAt() const { return settings_.endnoteStartAt; }
    void SetEndnoteStartAt(std::int32_t number) { Change(settings_.endnoteStartAt, number); }

    /// The version of the library.
    std::int32_t VerMajor() const;
    std::int32_t VerMinor() const;
    std::int32_t VerRevision() const;

    /// The RTF escape of one byte of the file's code page, for TextItem::AddRawText. Error 6 outside of a byte.
    std::string ASCIIChar(std::int32_t byte) const;

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

    /// Only for Create, which alone can make an Origin.
    Document(const detail::Origin& origin, detail::DocumentSettings& settings);

protected:
    void WriteStart() override;
    void WriteEnd() override;

private:
    void Open();
    void FinishInto(const detail::Sink& sink);
    void CheckNotDelivering(const char* method = __builtin_FUNCTION()) const;
    dwViewer RunViewer(dwViewer program, bool printIt);
    void SetPath(std::string& field, std::string_view path, const char* setter = __builtin_FUNCTION());

    struct Inside;

    detail::DocumentSettings& settings_;  // the session's
    std::unique_ptr<Inside> inside_;      // collections, files and viewer
    std::shared_ptr<Section> currentSection_;
    const detail::Sink* sink_ = nullptr;  // while FinishTo runs
};

}  // namespace draftwick
