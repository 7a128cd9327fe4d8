#pragma once

#include "Com.h"

#include <draftwick/model/Object.h>

#include <memory>

namespace draftwick::automation {

/// The automation object of an object, with a reference for the caller. One object has one automation object as long
/// as a host holds it, so that hosts can compare them. It is for the thread that made it: calls of others are refused
/// with RPC_E_WRONG_THREAD, as COM does, which carries calls between threads for hosts that follow its rules.
IDispatch* Wrap(std::shared_ptr<Object> object);

/// The object behind an automation object; empty when it is none of this server.
std::shared_ptr<Object> ObjectOf(IUnknown& unknown);

/// What For Each asks of a collection, with a reference for the caller.
IUnknown* MakeEnumerator(std::shared_ptr<Object> collection);

}  // namespace draftwick::automation
