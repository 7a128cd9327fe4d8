#pragma once

#include "Com.h"

#include <string>
#include <string_view>

namespace draftwick::automation {

/// The file of this DLL, in which the type library lies.
std::wstring ModuleFile();

/// What the type library says of an interface. `info` must be empty.
HRESULT FindTypeInfo(std::string_view interfaceId, ITypeInfo** info);

/// Lets the type library go, before the DLL is unloaded.
void CloseTypeLibrary();

}  // namespace draftwick::automation
