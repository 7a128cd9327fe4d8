#pragma once

#include "Com.h"

#include <string>
#include <string_view>

namespace draftwick::automation {

/// The file of this DLL, in which the type library lies.
std::wstring ModuleFile();

/// Raises std::system_error for a result that is a failure.
void Check(HRESULT result);

/// The type library in this DLL.
Pointer<ITypeLib> OpenTypeLibrary();

/// What the type library says of an interface.
HRESULT FindTypeInfo(std::string_view interfaceId, ITypeInfo** info);

/// Lets the type library go, before the DLL is unloaded.
void CloseTypeLibrary();

}  // namespace draftwick::automation
