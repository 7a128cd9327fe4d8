#pragma once

#include <draftwick/base/Error.h>

#include <memory>
#include <string>

namespace draftwick {

/// A service of the platform. Error 5 when the document was made without.
template <class Service>
Service& Required(const std::shared_ptr<Service>& service, const char* name) {
    if (service == nullptr) {
        detail::RaiseRuntimeError(dwRunInvalidCall, std::string{"the document has no service for "} + name,
                                  std::string{"Platform."} + name
                                      + ": set it before Document::Create, or begin with SystemPlatform()");
    }
    return *service;
}

}  // namespace draftwick
