#include <draftwick/base/Error.h>
#include <draftwick/base/Version.h>
#include <draftwick/base/internal/MessageTable.h>
#include <draftwick/platform/Platform.h>

#include <atomic>
#include <chrono>
#include <ctime>
#include <vector>

namespace draftwick {

namespace {

constexpr std::int32_t FirstMessage = -2147220991;  // a library number is this plus its message number
constexpr std::int32_t OwnRangeFirst = -2147220990;
constexpr std::int32_t OwnRangeEnd = -2147155456;
constexpr std::int32_t TextInParameters = -2147210989;  // the first parameter is the message itself
constexpr std::string_view Product = "Draftwick";
constexpr std::string_view ProductWithoutText = "Draftwick Except";
constexpr std::string_view HelpFileName = "Draftwick.chm";

std::atomic<bool> logging{false};

void ReplaceAll(std::string& text, std::string_view what, std::string_view with) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
        text.replace(at, what.size(), with);
    }
}

std::string_view RuntimeErrorText(dwRuntimeError number) {
    switch (number) {
    case dwRunInvalidCall: return "Invalid procedure call or argument";
    case dwRunOverflow: return "Overflow";
    case dwRunSubscriptOutOfRange: return "Subscript out of range";
    case dwRunDivisionByZero: return "Division by zero";
    case dwRunTypeMismatch: return "Type mismatch";
    case dwRunOutOfStackSpace: return "Out of stack space";
    case dwRunObjectGone: return "The document of this object is gone";
    case dwRunCannotCreateObject: return "The object cannot be created";
    case dwRunDuplicateKey: return "The collection already has an item of this name";
    case dwRunInvalidPicture: return "Invalid picture";
    }
    return "Run-time error";
}

[[noreturn]] void Raise(const Error& error) {
    detail::LogError(error);
    throw error;
}

}  // namespace

void detail::RaiseError(std::int32_t number, std::initializer_list<Variant> parameters, std::string advice) {
    std::string_view source = Product;
    std::string text;
    std::vector<Variant> values{parameters};
    if (number == TextInParameters) {
        if (!values.empty() && std::holds_alternative<std::string>(values.front())) {
            text = std::get<std::string>(values.front());
            values.erase(values.begin());
        } else {
            source = ProductWithoutText;
        }
    } else if (number >= OwnRangeFirst && number < OwnRangeEnd) {
        text = MessageText(number - FirstMessage);
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (const auto* value = std::get_if<std::string>(&values[i])) {
            ReplaceAll(text, "%" + std::to_string(i + 1), *value);
        }
    }
    if (text.empty()) text = "There is no message for this error";
    Raise(Error(number, text, source, HelpFileName, std::move(advice)));
}

void detail::RaiseRuntimeError(dwRuntimeError number, const std::string& detail, std::string advice) {
    std::string text{RuntimeErrorText(number)};
    if (!detail.empty()) text += ": " + detail;
    Raise(Error(number, text, {}, {}, advice.empty() ? detail : std::move(advice)));
}

Error::Error(std::int32_t number, const std::string& description, std::string_view source,
             std::string_view helpFile, std::string advice)
    : std::runtime_error(description), number_(number), source_(source), helpFile_(helpFile),
      advice_(std::make_shared<const std::string>(advice.empty() ? description : std::move(advice))) {}

void Error::SetAdvice(std::string advice) {
    advice_ = std::make_shared<const std::string>(std::move(advice));
}

std::string ErrorNumberText(std::int32_t number) {
    if (number >= OwnRangeFirst && number < OwnRangeEnd) return "X" + std::to_string(number - FirstMessage);
    return std::to_string(number);
}

void SetErrorLogging(bool on) noexcept { logging = on; }

void detail::LogError(const Error& error) {
    if (!logging) return;
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::string text = platform::LocalTimeText(now) + "\r\nProduct: " + std::string{Product}
                             + "\r\nVersion: " + std::to_string(VersionMajor) + "."
                             + std::to_string(VersionMinor) + "." + std::to_string(VersionRevision)
                             + "\r\nNumber: " + ErrorNumberText(error.Number())
                             + "\r\nSource: " + error.Source() + "\r\n" + error.what();
    platform::CurrentEventLog().Report(text);
}

}  // namespace draftwick
