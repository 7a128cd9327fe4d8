#include "tests/support/FakeDesktop.h"

#include <system_error>

namespace draftwick::test {

namespace {

[[noreturn]] void Fail(std::errc error, const std::string& what) {
    throw std::system_error(std::make_error_code(error), what);
}

}  // namespace

/// The word processor, and its collection of documents.
class FakeDesktop::Word final : public platform::AutomationObject, public std::enable_shared_from_this<Word> {
public:
    Word(std::shared_ptr<FakeDesktop> desktop, std::string version)
        : desktop_(std::move(desktop)), version_(std::move(version)) {}

    platform::AutomationValue Get(const std::string& property) override {
        if (property == "Documents") return shared_from_this();
        desktop_->log.push_back(property);
        if (property != "Version") Fail(std::errc::function_not_supported, property);
        return version_;
    }
    void Put(const std::string& property, const platform::AutomationValue& value) override {
        desktop_->log.push_back(property + "=" + std::to_string(std::get<bool>(value)));
    }
    platform::AutomationValue Call(const std::string& method,
                                   std::span<const platform::AutomationValue> arguments) override {
        std::string line = method;
        for (const auto& argument : arguments) line += " " + std::get<std::string>(argument);
        desktop_->log.push_back(line);
        if (method == "Open" && desktop_->failingOpens > 0) {
            --desktop_->failingOpens;
            Fail(std::errc::no_such_file_or_directory, line);
        }
        return {};
    }

private:
    std::shared_ptr<FakeDesktop> desktop_;
    std::string version_;
};

std::string FakeDesktop::TakeLog() {
    std::string line;
    for (const std::string& entry : log) line += (line.empty() ? "" : "; ") + entry;
    log.clear();
    return line;
}

std::error_code FakeDesktop::QueryValue(platform::RegistryRoot root, const std::string& path,
                                        const std::string& name, platform::RegistryType& type,
                                        std::string& bytes) {
    const auto found = settings.find({root, path, name});
    if (found == settings.end()) return std::make_error_code(std::errc::no_such_file_or_directory);
    type = platform::RegistryType::Text;
    bytes = found->second + '\0';
    return {};
}

std::shared_ptr<platform::AutomationObject> FakeDesktop::Offer(const std::string& how,
                                                               const std::string& className,
                                                               const std::string& version) {
    log.push_back(how);
    if (className != "Word.Application" || version.empty()) Fail(std::errc::not_supported, className);
    return std::make_shared<Word>(shared_from_this(), version);
}

std::int32_t FakeDesktop::Start(const std::string& commandLine, const std::string& file) {
    log.push_back("start " + commandLine + " of " + file);
    if (startFails) Fail(std::errc::no_such_file_or_directory, "cannot start '" + commandLine + "'");
    return ++lastTask;
}

}  // namespace draftwick::test
