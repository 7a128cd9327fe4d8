#pragma once

#include <draftwick/platform/Platform.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace draftwick::test {

/// A desktop that does what a test says: its settings, a word processor, and programs that can be started. It
/// writes down what it is asked to do, one line each.
class FakeDesktop final : public platform::RegistryStore,
                          public platform::Automation,
                          public platform::Programs,
                          public std::enable_shared_from_this<FakeDesktop> {
public:
    /// What happened, in order: "attach", "create", "Version", "Visible=1", "Activate", "Open NAME", "PrintOut";
    /// "start LINE of FILE", "events", "activate TASK", "keys KEYS".
    std::vector<std::string> log;
    /// The log in one line, and a new one begins.
    std::string TakeLog();

    /// Texts by root, path of the key and name of the value. They can only be read.
    using Setting = std::tuple<platform::RegistryRoot, std::string, std::string>;
    std::map<Setting, std::string> settings;
    /// Where a viewer is looked for first.
    static inline const Setting viewerCommand{platform::RegistryRoot::LocalMachine,
                                              R"(SOFTWARE\Classes\Word.Document.8\shell\wordview\command)",
                                              ""};

    std::string runningVersion;    ///< of the word processor that runs; empty: none does
    std::string installedVersion;  ///< of the word processor that can be started; empty: there is none
    int failingOpens = 0;          ///< so many documents cannot be opened

    std::map<std::string, std::string> programs;  ///< the first one of a folder
    std::string printCommand;
    bool startFails = false;
    std::int32_t lastTask = 100;  // counted up before use

    std::error_code QueryValue(platform::RegistryRoot root, const std::string& path, const std::string& name,
                               platform::RegistryType& type, std::string& bytes) override;
    std::error_code SetValue(platform::RegistryRoot, const std::string&, const std::string&,
                             platform::RegistryType, std::string_view) override {
        return std::make_error_code(std::errc::permission_denied);
    }
    std::vector<std::string> SubKeys(platform::RegistryRoot, const std::string&) override { return {}; }
    std::vector<std::string> ValueNames(platform::RegistryRoot, const std::string&) override { return {}; }
    std::error_code CreateKey(platform::RegistryRoot, const std::string&) override { return {}; }
    std::error_code DeleteKey(platform::RegistryRoot, const std::string&) override { return {}; }

    std::shared_ptr<platform::AutomationObject> Attach(const std::string& className) override {
        return Offer("attach", className, runningVersion);
    }
    std::shared_ptr<platform::AutomationObject> Create(const std::string& className) override {
        return Offer("create", className, installedVersion);
    }

    std::int32_t Start(const std::string& commandLine, const std::string& file) override;
    std::string PrintCommand() override { return printCommand; }
    void ProcessEvents() override { log.emplace_back("events"); }
    void Activate(std::int32_t task) override { log.push_back("activate " + std::to_string(task)); }
    void SendKeys(const std::string& keys) override { log.push_back("keys " + keys); }
    std::string FirstProgram(const std::string& start) override { return start + programs[start]; }

private:
    class Word;
    std::shared_ptr<platform::AutomationObject> Offer(const std::string& how, const std::string& className,
                                                      const std::string& version);
};

}  // namespace draftwick::test
