#pragma once

#include <draftwick/model/Object.h>

#include <memory>
#include <string_view>

namespace draftwick {

namespace platform {
class AutomationObject;
}  // namespace platform

/// An object of another program, such as the word processor that shows a document. Its members are that program's;
/// they are used by name. For the thread that the document is used on; it stays usable when the document is gone.
///
/// What the other program refuses is std::system_error with the system's code. A date, and an object that is not an
/// AutomationObject, cannot be sent: error 13.
class DRAFTWICK_API AutomationObject final : public detail::Node {
public:
    AutomationObject(const detail::Origin& origin, std::shared_ptr<platform::AutomationObject> object);

    /// Reads or sets a property of the object.
    Variant GetProperty(std::string_view name) const;
    void SetProperty(std::string_view name, const Variant& value) const;
    /// Calls a method. The first empty argument ends the list of arguments.
    Variant CallMethod(std::string_view name, const Variant& first = {}, const Variant& second = {},
                       const Variant& third = {}, const Variant& fourth = {}) const;

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    struct Exchange;

    std::shared_ptr<platform::AutomationObject> object_;
};

}  // namespace draftwick
