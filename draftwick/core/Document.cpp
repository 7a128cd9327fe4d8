#include <draftwick/base/Version.h>
#include <draftwick/content/Section.h>
#include <draftwick/core/Document.h>
#include <draftwick/core/Properties.h>
#include <draftwick/core/internal/OutputFiles.h>
#include <draftwick/core/internal/Writers.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/format/Lists.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/text/Escape.h>
#include <draftwick/viewer/AutomationObject.h>
#include <draftwick/viewer/internal/Viewer.h>

#include <limits>
#include <ostream>
#include <utility>

namespace draftwick {

struct Document::Inside {
    Collections collections;
    OutputFiles files;
    Viewer viewer;
};

std::shared_ptr<Document> Document::Create() { return Create(platform::SystemPlatform()); }

std::shared_ptr<Document> Document::Create(platform::Platform services) {
    const auto session = std::make_shared<detail::Session>(std::move(services));
    auto document = std::make_shared<Document>(Origin(session), session->settings);
    document->Open();
    return document;
}

Document::Document(const Origin& origin, DocumentSettings& settings)
    : Content(origin), settings_(settings),
      inside_(new Inside{.collections = {}, .files = {}, .viewer = Viewer(SharedSession()->platform)}) {}

/// Children need a reference to their parent, so they come after the constructor.
void Document::Open() {
    const Origin origin = OriginOfChild();
    Collections& collections = inside_->collections;
    collections.fonts = std::make_shared<draftwick::Fonts>(origin);
    collections.lists = std::make_shared<draftwick::Lists>(origin);
    collections.paragraphStyles = std::make_shared<draftwick::ParagraphStyles>(origin);
    collections.textStyles = std::make_shared<draftwick::TextStyles>(origin);
    detail::Session& session = *SharedSession();
    session.document = this;
    session.usable = true;
    session.documentLink = weak_from_this();
    session.collections = &collections;
    session.writer.names = &collections;
}

Document::~Document() {
    detail::Session& session = *SharedSession();
    if (settings_.discardOnRelease && !Finished()) inside_->files.Discard();
    inside_->files.LetGo();
    session.writer.output.SetStream(nullptr);
    session.writer.names = nullptr;
    session.document = nullptr;
    session.usable = false;
    session.collections = nullptr;
}

std::shared_ptr<draftwick::Fonts> Document::Fonts() const { return inside_->collections.fonts; }
std::shared_ptr<draftwick::Lists> Document::Lists() const { return inside_->collections.lists; }
std::shared_ptr<draftwick::ParagraphStyles> Document::ParagraphStyles() const {
    return inside_->collections.paragraphStyles;
}
std::shared_ptr<draftwick::TextStyles> Document::TextStyles() const {
    return inside_->collections.textStyles;
}
/// There are many built-in ones, and most documents set none.
std::shared_ptr<draftwick::Properties> Document::Properties() const {
    std::shared_ptr<draftwick::Properties>& properties = inside_->collections.properties;
    if (properties == nullptr) properties = std::make_shared<draftwick::Properties>(OriginOfChild());
    return properties;
}

std::shared_ptr<Section> Document::AddSection() {
    // Once the file's last brace is written nothing can follow it, even if Finish failed after that.
    if (inside_->files.Ended()) {
        RaiseError(dwErrTargetEmitted, {std::string{Description().name}},
                   "Document.AddSection: the text was ended by Finish already; call that again");
    }
    return Add(currentSection_);
}

void Document::Finish() {
    CheckNotDelivering();
    Close();
}

void Document::FinishTo(std::ostream& stream) {
    const auto check = [&] {
        if (!stream)
            throw FileError(std::make_error_code(std::errc::io_error), "cannot write the stream", {});
    };
    FinishInto({.write =
                    [&](std::string_view bytes) {
                        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
                        check();
                    },
                .end =
                    [&] {
                        stream.flush();
                        check();
                    }});
}

void Document::FinishTo(const Sink& sink) {
    if (!sink)
        RaiseRuntimeError(dwRunInvalidCall, "there is no function", "Document.FinishTo: give a function");
    FinishInto({.write = sink, .end = {}});
}

void Document::CheckNotDelivering(const char* method) const {
    if (sink_ == nullptr) return;
    RaiseError(dwErrTargetEmitted, {"Document"},
               std::string{"Document."} + method + ": FinishTo is at work; call it after that has returned");
}

void Document::FinishInto(const detail::Sink& sink) {
    Session();
    CheckNotFinished("FinishTo");
    CheckNotDelivering("FinishTo");
    const auto self = Self();  // the sink may let the document go
    struct Scope {
        const detail::Sink*& sink;
        ~Scope() { sink = nullptr; }
    } const scope{sink_ = &sink};
    Close();
}

void Document::Discard() {
    detail::Session& session = *SharedSession();
    if (Finished() || !session.usable) return;
    CheckNotDelivering();
    session.usable = false;
    session.writer.output.SetStream(nullptr);
    const std::error_code error = inside_->files.Discard();
    if (error) RaiseFileError(error, "delete", inside_->files.BodyFileName());
}

void Document::SetDiscardOnRelease(bool on) {
    Session();
    CheckNotFinished();
    settings_.discardOnRelease = on;
}

std::int32_t Document::LostCharacters() const {
    const std::uint64_t lost = SharedSession()->writer.output.Lost() + inside_->files.LostInHeader();
    constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
    return lost < Most ? static_cast<std::int32_t>(lost) : Most;
}

void Document::WriteStart() {
    inside_->files.OpenBody(Session());
    if (settings_.spelling == dwSpellingStandard) Writer().UseStandardSpelling();
    WriteDocumentFormatting(Writer(), settings_);
}

void Document::WriteEnd() {
    if (sink_ != nullptr) {
        inside_->files.AssembleInto(Session(), *sink_);
    } else {
        inside_->files.AssembleOutputFile(Session());
    }
}

dwViewer Document::Preview(dwViewer program) { return RunViewer(program, false); }
dwViewer Document::PrintOut(dwViewer program) { return RunViewer(program, true); }

dwViewer Document::RunViewer(dwViewer program, bool printIt) {
    Finish();
    if (inside_->files.FullFileName().empty()) {
        RaiseRuntimeError(dwRunInvalidCall, "the document was finished into a stream",
                          "Document.Preview: there is no file to show; call Finish in place of FinishTo");
    }
    // Other programs have a current folder of their own.
    return inside_->viewer.RunViewer(OriginOfChild(), inside_->files.FullFileName(), program, printIt);
}

std::shared_ptr<AutomationObject> Document::ViewerApp() const { return inside_->viewer.App(); }
std::int32_t Document::ViewerTaskID() const { return inside_->viewer.TaskID(); }
const std::string& Document::ActualFileName() const { return inside_->files.ActualFileName(); }

std::string Document::DefaultFontName() const {
    return settings_.defaultFont.Name(*inside_->collections.fonts);
}

void Document::SetDefaultFontName(std::string_view name) {
    OpenForChange();
    settings_.defaultFont.Set(*inside_->collections.fonts, name);
}

void Document::SetPaperSize(dwPaperSize paper) {
    OpenForChange();
    settings_.page.SetPaper(paper, settings_.orientation, "Document.PaperSize");
}

void Document::SetOrientation(dwOrientation orientation) {
    const dwOrientation before = settings_.orientation;
    Change(settings_.orientation, orientation);
    if (orientation != before) std::swap(settings_.page.pageWidth, settings_.page.pageHeight);
}

/// File names are the system's bytes, not necessarily UTF-8.
void Document::SetPath(std::string& field, std::string_view path, const char* setter) {
    OpenForChange(setter);
    field = path;
}

std::int32_t Document::VerMajor() const { return VersionMajor; }
std::int32_t Document::VerMinor() const { return VersionMinor; }
std::int32_t Document::VerRevision() const { return VersionRevision; }

std::string Document::ASCIIChar(std::int32_t byte) const { return draftwick::ASCIIChar(byte); }

const Class& Document::Describe() {
    using D = Document;
    using V = DocumentSettings;
    using P = PageSetup;
    static const Class description{
        "Document",
        "{A8C1E672-BFE8-4FE2-90B0-4C5CE45CD648}",
        "{BD7B1DD0-EAFD-4C2D-BD88-CD1EC9EA7B64}",
        {
            PropertyOf<&D::ActualFileName>("ActualFileName").As(Kind::Path),
            PropertyOf<&D::LostCharacters>("LostCharacters"),
            PropertyOf<&D::ViewerApp>("ViewerApp").OrNothing(),
            PropertyOf<&D::ViewerTaskID>("ViewerTaskID"),
            PropertyOf<&D::VerMajor>("VerMajor"),
            PropertyOf<&D::VerMinor>("VerMinor"),
            PropertyOf<&D::VerRevision>("VerRevision"),
            PropertyOf<&D::Emitted>("Emitted"),
            PropertyOf<&D::Finished>("Finished"),
            PropertyOf<&D::CurrentSection>("CurrentSection").OrNothing(),
            PropertyOf<&D::Fonts>("Fonts"),
            PropertyOf<&D::Lists>("Lists"),
            PropertyOf<&D::ParagraphStyles>("ParagraphStyles"),
            PropertyOf<&D::Properties>("Properties"),
            PropertyOf<&D::TextStyles>("TextStyles"),
            PropertyOf<&D::Filename, &D::SetFilename, &V::filename>("Filename").As(Kind::Path),
            PropertyOf<&D::TempPath, &D::SetTempPath, &V::tempPath>("TempPath").As(Kind::Path),
            PropertyOf<&D::BodyInMemory, &D::SetBodyInMemory, &V::bodyInMemory>("BodyInMemory"),
            PropertyOf<&D::DiscardOnRelease, &D::SetDiscardOnRelease, &V::discardOnRelease>(
                "DiscardOnRelease"),
            PropertyOf<&D::Durable, &D::SetDurable, &V::durable>("Durable"),
            PropertyOf<&D::ScaleMode, &D::SetScaleMode, &V::scaleMode>("ScaleMode"),
            PropertyOf<&D::Spelling, &D::SetSpelling, &V::spelling>("Spelling"),
            PropertyOf<&D::MarginTop, &D::SetMarginTop, &P::marginTop>("MarginTop"),
            PropertyOf<&D::MarginLeft, &D::SetMarginLeft, &P::marginLeft>("MarginLeft"),
            PropertyOf<&D::MarginRight, &D::SetMarginRight, &P::marginRight>("MarginRight"),
            PropertyOf<&D::MarginBottom, &D::SetMarginBottom, &P::marginBottom>("MarginBottom"),
            PropertyOf<&D::MarginMirror, &D::SetMarginMirror, &V::marginMirror>("MarginMirror"),
            PropertyOf<&D::Gutter, &D::SetGutter, &P::gutter>("Gutter"),
            PropertyOf<&D::PageWidth, &D::SetPageWidth, &P::pageWidth>("PageWidth"),
            PropertyOf<&D::PageHeight, &D::SetPageHeight, &P::pageHeight>("PageHeight"),
            PropertyOf<&D::FacingPage, &D::SetFacingPage, &V::facingPage>("FacingPage"),
            PropertyOf<&D::PageNumberStart, &D::SetPageNumberStart, &V::pageNumberStart>("PageNumberStart"),
            PropertyOf<&D::PageBorderAroundHeader, &D::SetPageBorderAroundHeader, &V::pageBorderAroundHeader>(
                "PageBorderAroundHeader"),
            PropertyOf<&D::PageBorderAroundFooter, &D::SetPageBorderAroundFooter, &V::pageBorderAroundFooter>(
                "PageBorderAroundFooter"),
            PropertyOf<&D::TabWidth, &D::SetTabWidth, &V::tabWidth>("TabWidth"),
            PropertyOf<&D::WidowOrphanControl, &D::SetWidowOrphanControl, &V::widowOrphanControl>(
                "WidowOrphanControl"),
            PropertyOf<&D::HyphenAuto, &D::SetHyphenAuto, &V::hyphenAuto>("HyphenAuto"),
            PropertyOf<&D::HyphenCaps, &D::SetHyphenCaps, &V::hyphenCaps>("HyphenCaps"),
            PropertyOf<&D::HyphenConsecutiveLines, &D::SetHyphenConsecutiveLines, &V::hyphenConsecutiveLines>(
                "HyphenConsecutiveLines"),
            PropertyOf<&D::HyphenHotZone, &D::SetHyphenHotZone, &V::hyphenHotZone>("HyphenHotZone"),
            PropertyOf<&D::Caption, &D::SetCaption, &V::caption>("Caption"),
            PropertyOf<&D::ViewKind, &D::SetViewKind, &V::viewKind>("ViewKind"),
            PropertyOf<&D::ZoomKind, &D::SetZoomKind, &V::zoomKind>("ZoomKind"),
            PropertyOf<&D::ZoomScale, &D::SetZoomScale, &V::zoomScale>("ZoomScale"),
            PropertyOf<&D::FootnoteFormat, &D::SetFootnoteFormat, &V::footnoteFormat>("FootnoteFormat"),
            PropertyOf<&D::EndnoteFormat, &D::SetEndnoteFormat, &V::endnoteFormat>("EndnoteFormat"),
            PropertyOf<&D::FootnoteLocation, &D::SetFootnoteLocation, &V::footnoteLocation>(
                "FootnoteLocation"),
            PropertyOf<&D::EndnoteLocation, &D::SetEndnoteLocation, &V::endnoteLocation>("EndnoteLocation"),
            PropertyOf<&D::FootnoteRestart, &D::SetFootnoteRestart, &V::footnoteRestart>("FootnoteRestart"),
            PropertyOf<&D::EndnoteRestart, &D::SetEndnoteRestart, &V::endnoteRestart>("EndnoteRestart"),
            PropertyOf<&D::FootnoteStartAt, &D::SetFootnoteStartAt, &V::footnoteStartAt>("FootnoteStartAt"),
            PropertyOf<&D::EndnoteStartAt, &D::SetEndnoteStartAt, &V::endnoteStartAt>("EndnoteStartAt"),
            PropertyOf<&D::PaperSize, &D::SetPaperSize>("PaperSize"),
            PropertyOf<&D::Orientation, &D::SetOrientation, &V::orientation>("Orientation"),
            PropertyOf<&D::DefaultFontName, &D::SetDefaultFontName>("DefaultFontName"),
        },
        {
            MethodOf<&D::AddSection>("AddSection"),
            MethodOf<&D::Discard>("Discard"),
            MethodOf<&D::Finish>("Finish"),
            MethodOf<&D::Preview>("Preview", {{"Program", dwViewerAuto}}),
            MethodOf<&D::PrintOut>("PrintOut", {{"Program", dwViewerAuto}}),
            MethodOf<&D::ASCIIChar>("ASCIIChar", {{"ASCII"}}),
        },
        []() -> std::shared_ptr<Object> { return Create(); }};
    return description;
}

}  // namespace draftwick
