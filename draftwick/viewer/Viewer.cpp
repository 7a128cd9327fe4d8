#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>
#include <draftwick/base/internal/Required.h>
#include <draftwick/viewer/internal/Registry.h>
#include <draftwick/viewer/internal/Viewer.h>

#include <stdexcept>
#include <string_view>
#include <system_error>

namespace draftwick {

namespace {

constexpr const char* WordClass = "Word.Application";
constexpr const char* NoViewerAdvice = "install a program that shows RTF; the file itself is written";
constexpr const char* NoWordAdvice =
    "Word of the version that was asked for is not there; give dwViewerAuto for any viewer";

/// Makes the word processor's window visible and brings it to the front.
void Show(platform::AutomationObject& word) {
    word.Put("Visible", true);
    word.Call("Activate", {});
}

bool Open(platform::AutomationObject& word, const std::string& file) {
    try {
        const platform::AutomationValue documents = word.Get("Documents");
        const auto* object = std::get_if<std::shared_ptr<platform::AutomationObject>>(&documents);
        if (object == nullptr || *object == nullptr) return false;
        const platform::AutomationValue name = file;
        (*object)->Call("Open", {&name, 1});
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

void RemoveAll(std::string& text, std::string_view what) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at)) {
        text.erase(at, what.size());
    }
}

}  // namespace

dwViewer Viewer::RunViewer(const Origin& owner, const std::string& file, dwViewer program, bool printIt) {
    CheckRange(program, dwViewerAuto, dwViewerWordView97, "Viewer");
    app_.reset();
    taskId_ = 0;
    const Request request{owner, file, printIt};
    switch (program) {
    case dwViewerAuto: return ViewWithAnyViewer(request);
    case dwViewerWord97: ViewWithWord97(request); break;
    case dwViewerWord2000: ViewWithWord2000(request); break;
    case dwViewerWordView97: ViewWithWordViewer97(request); break;
    }
    return program;
}

/// The failure of one viewer is no more than a reason to try the next.
dwViewer Viewer::ViewWithAnyViewer(const Request& request) {
    const auto works = [&](void (Viewer::*view)(const Request&)) {
        try {
            (this->*view)(request);
            return true;
        } catch (const std::runtime_error&) {
            return false;
        }
    };
    if (works(&Viewer::ViewWithWord2000)) return dwViewerWord2000;
    if (works(&Viewer::ViewWithWord97)) return dwViewerWord97;
    if (works(&Viewer::ViewWithWordViewer97)) return dwViewerWordView97;
    RaiseError(dwErrNoViewer, {}, NoViewerAdvice);
}

void Viewer::ViewWithWord(const Request& request, char majorVersion) {
    Word app = GetWordApplication(false, majorVersion);
    Show(*app);
    while (!Open(*app, request.file)) {
        // A fresh word processor that cannot open the file either is left to the user, who sees why.
        if (wordStartedHere_) return;
        app = GetWordApplication(true, majorVersion);
    }
    Show(*app);
    if (request.printIt) app->Call("PrintOut", {});
    app_ = std::make_shared<AutomationObject>(request.owner, std::move(app));
}

/// "Started here" means on explicit request: a word processor that had to be started because none was running does
/// not count.
Viewer::Word Viewer::GetWordApplication(bool forceNew, char majorVersion) {
    const auto create = [this] {
        try {
            return Required(platform_.automation, "automation").Create(WordClass);
        } catch (const std::system_error& failure) {
            RaiseRuntimeError(dwRunCannotCreateObject, failure.what(), NoWordAdvice);
        }
    };
    Word app;
    if (forceNew) {
        app = create();
        wordStartedHere_ = true;
    } else {
        try {
            app = Required(platform_.automation, "automation").Attach(WordClass);
        } catch (const std::system_error&) {
            wordStartedHere_ = true;
            app = create();
        }
        wordStartedHere_ = false;
    }
    const platform::AutomationValue version = app->Get("Version");
    const auto* text = std::get_if<std::string>(&version);
    if (text == nullptr || !text->starts_with(majorVersion))
        RaiseError(dwRunCannotCreateObject, {}, NoWordAdvice);
    return app;
}

void Viewer::ViewWithWordViewer97(const Request& request) {
    const std::string command = FindViewerCommand();
    if (command.empty()) RaiseError(dwErrNoViewer, {}, NoViewerAdvice);
    platform::Programs& programs = Required(platform_.programs, "programs");
    const std::string printCommand = request.printIt ? programs.PrintCommand() : std::string{};
    taskId_ = programs.Start(printCommand.empty() ? command : printCommand, request.file);
    if (!request.printIt || !printCommand.empty()) return;
    programs.ProcessEvents();
    programs.Activate(taskId_);
    programs.SendKeys("^p");
    programs.SendKeys("~");
}

/// The command line of the viewer, from the first of the places where it or its setup program leaves one.
std::string Viewer::FindViewerCommand() const {
    Registry registry(Required(platform_.registry, "registry"));
    registry.SetRoot(platform::RegistryRoot::LocalMachine);
    registry.SetPath("SOFTWARE\\Classes\\Word.Document.8\\shell\\wordview");
    if (std::string command = registry.ReadString("command", "", ""); !command.empty()) return command;

    registry.SetRoot(platform::RegistryRoot::CurrentUser);
    registry.SetPath("Software\\Microsoft\\Word Viewer\\8.0");
    if (std::string folder = registry.ReadString("Options", "PROGRAMDIR", ""); !folder.empty()) {
        if (folder.ends_with('/') || folder.ends_with('\\')) folder.pop_back();
        return ProgramIn(folder + Required(platform_.files, "files").Separator());
    }

    registry.SetRoot(platform::RegistryRoot::LocalMachine);
    registry.SetPath("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
    if (std::string setup = registry.ReadString("Viewer97", "UninstallString", ""); !setup.empty()) {
        RemoveAll(setup, "setup\\setup.exe");
        return ProgramIn(setup);
    }

    registry.SetPath("SOFTWARE\\Microsoft\\MS Setup (ACME)");
    if (std::string table =
            registry.ReadString("Table Files", "Microsoft Word Viewer 97@v96.11.18.01 (1033)", "");
        !table.empty()) {
        RemoveAll(table, "setup\\setup.stf");
        return ProgramIn(table);
    }
    return {};
}

/// The command line for the first program in a folder; without a program it cannot be started, and that says so.
std::string Viewer::ProgramIn(const std::string& folder) const {
    return Required(platform_.programs, "programs").FirstProgram(folder) + " \"%1\"";
}

}  // namespace draftwick
