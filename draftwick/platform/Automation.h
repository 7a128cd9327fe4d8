#pragma once

#include <draftwick/platform/Export.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <variant>

namespace draftwick::platform {

class AutomationObject;

/// A value that goes to or comes from another program: nothing, a Boolean, a whole number, a real number, a UTF-8
/// text or an object.
using AutomationValue =
    std::variant<std::monostate, bool, std::int32_t, double, std::string, std::shared_ptr<AutomationObject>>;

/// An object of another program, used by the names of its members. For the thread that it was made on.
/// Whatever fails raises std::system_error with the system's code and the name of the member.
class DRAFTWICK_API AutomationObject {
public:
    virtual ~AutomationObject() = default;

    /// The value of a property.
    virtual AutomationValue Get(const std::string& property) = 0;
    /// Sets a property.
    virtual void Put(const std::string& property, const AutomationValue& value) = 0;
    /// Calls a method and gives its result, or nothing.
    virtual AutomationValue Call(const std::string& method, std::span<const AutomationValue> arguments) = 0;
};

/// How the objects of other programs are reached: OLE automation on Windows; POSIX has none.
class DRAFTWICK_API Automation {
public:
    virtual ~Automation() = default;

    /// The object of that class name that a running program offers; std::system_error when there is none.
    virtual std::shared_ptr<AutomationObject> Attach(const std::string& className) = 0;
    /// A new object of that class name; std::system_error when it cannot be made.
    virtual std::shared_ptr<AutomationObject> Create(const std::string& className) = 0;
};

}  // namespace draftwick::platform
