#pragma once
// Preparing the special-size rules of the catalogue just loaded (marker prefixes, marker
// children, permission codes, door models, exception lists, permission matrix), on this
// thread's shared session and host objects.
#include <cstdint>

namespace handlers {

// For the object of the current event (id -2).
void preparaReglas();

// For a given object: with `prepara` false only its marker children are scanned, and the rules
// of the catalogue prepared before are reused.
void preparaReglasDe(int32_t objectId, bool prepara);

}  // namespace handlers
