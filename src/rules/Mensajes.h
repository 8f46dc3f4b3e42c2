#pragma once
// The notices of the special-size rules: the measures message and the ST-programme notice.
#include <cstdint>

#include "platform/Platform.h"
#include "vb/Variant.h"

namespace rules {

using vb::String;

// Shows the measures message for the rejected flags (laFuncion 1 to 3); returns its text, ""
// when nothing was shown.
String construyeMensaje(platform::Platform& platform, bool valAncho, bool valAlto, bool valFondo,
                        int16_t tipoFuncion);

// The ST-programme notice for a door-model name in the fixed list (translated).
void programaST2(platform::Platform& platform, const String& nombreModelo);

// The same notice from an object's catalogue number and front code (not translated).
void programaST(platform::Platform& platform, int32_t elId);

}  // namespace rules
