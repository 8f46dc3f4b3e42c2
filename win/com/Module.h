#pragma once
// Module-wide state of the in-process server: its handle, live object count, type library.
#include <oaidl.h>
#include <windows.h>

#include <string>

namespace quorbel {

HMODULE moduleHandle();
std::wstring modulePath();
void objectCreated();
void objectDestroyed();
LONG liveObjects();
// The embedded type library's description of one interface (owned by the caller).
HRESULT loadTypeInfo(REFGUID iid, ITypeInfo** info);

}  // namespace quorbel
