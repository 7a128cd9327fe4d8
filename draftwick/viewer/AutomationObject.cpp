#include <draftwick/base/Error.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/platform/Automation.h>
#include <draftwick/viewer/AutomationObject.h>

#include <string>
#include <utility>
#include <vector>

namespace draftwick {

AutomationObject::AutomationObject(const Origin& origin, std::shared_ptr<platform::AutomationObject> object)
    : Node(origin), object_(std::move(object)) {}

namespace {

[[noreturn]] void RaiseCannotSend() {
    RaiseRuntimeError(dwRunTypeMismatch, "this cannot be sent to another program",
                      "give a Boolean, a number, a text or an AutomationObject");
}

}  // namespace

/// Values as they go to another program and come from it.
struct AutomationObject::Exchange {
    static platform::AutomationValue Send(const Variant& value) {
        return std::visit(
            [](const auto& plain) -> platform::AutomationValue {
                using Plain = std::decay_t<decltype(plain)>;
                if constexpr (std::is_same_v<Plain, std::shared_ptr<Object>>) {
                    const auto other = std::dynamic_pointer_cast<AutomationObject>(plain);
                    if (other == nullptr) RaiseCannotSend();
                    return other->object_;
                } else if constexpr (std::is_same_v<Plain, Date>) {
                    RaiseCannotSend();
                } else {
                    return plain;
                }
            },
            value);
    }

    /// An object belongs to the one that gave it.
    static Variant Receive(const AutomationObject& from, const platform::AutomationValue& value) {
        return std::visit(
            [&](const auto& plain) -> Variant {
                if constexpr (std::is_convertible_v<decltype(plain),
                                                    std::shared_ptr<platform::AutomationObject>>) {
                    if (plain == nullptr) return {};
                    return std::make_shared<AutomationObject>(from.OriginOfChild(), plain);
                } else {
                    return plain;
                }
            },
            value);
    }
};

Variant AutomationObject::GetProperty(std::string_view name) const {
    return Exchange::Receive(*this, object_->Get(std::string{name}));
}

void AutomationObject::SetProperty(std::string_view name, const Variant& value) const {
    object_->Put(std::string{name}, Exchange::Send(value));
}

Variant AutomationObject::CallMethod(std::string_view name, const Variant& first, const Variant& second,
                                     const Variant& third, const Variant& fourth) const {
    std::vector<platform::AutomationValue> arguments;
    for (const Variant* argument : {&first, &second, &third, &fourth}) {
        if (std::holds_alternative<std::monostate>(*argument)) break;
        arguments.push_back(Exchange::Send(*argument));
    }
    return Exchange::Receive(*this, object_->Call(std::string{name}, arguments));
}

const Class& AutomationObject::Describe() {
    using A = AutomationObject;
    static const Class description{"AutomationObject",
                                   "{22FA3297-77DC-46D9-9BB6-9367A557012F}",
                                   "{CB801F4E-5872-46F4-84C2-0A085B634B20}",
                                   {},
                                   {
                                       MethodOf<&A::GetProperty>("GetProperty", {{"Name"}}),
                                       MethodOf<&A::SetProperty>("SetProperty", {{"Name"}, {"Value"}}),
                                       MethodOf<&A::CallMethod>("CallMethod", {{"Name"},
                                                                               {"First", Variant{}},
                                                                               {"Second", Variant{}},
                                                                               {"Third", Variant{}},
                                                                               {"Fourth", Variant{}}}),
                                   }};
    return description;
}

}  // namespace draftwick
