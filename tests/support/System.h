#pragma once

#include <optional>
#include <string>

namespace draftwick::test {

/// Sets a variable of this process's environment for as long as it lives.
class EnvironmentValue {
public:
    EnvironmentValue(std::string name, const std::string& value);
    ~EnvironmentValue();
    EnvironmentValue(const EnvironmentValue&) = delete;
    EnvironmentValue& operator=(const EnvironmentValue&) = delete;

private:
    std::string name_;
    std::optional<std::string> before_;
};

}  // namespace draftwick::test
