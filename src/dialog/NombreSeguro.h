#pragma once
// Whether a picture name from a script may be used as a file name in the temporary folder.
#include "vb/Variant.h"

namespace dialog {

// False for a name that is empty, could leave the folder ("\", "/", ":", "..") or names a
// Windows device (CON, PRN, AUX, NUL, COM1..9, LPT1..9, with or without an extension).
bool nombreSeguro(const vb::String& nombre);

}  // namespace dialog
