#pragma once
// Registry entries of the two classes (apartment-threaded, by ProgID) and the type library.
#include <windows.h>

namespace quorbel {

HRESULT registerServer();
HRESULT unregisterServer();

}  // namespace quorbel
