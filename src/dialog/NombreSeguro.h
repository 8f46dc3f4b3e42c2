#pragma once
// Whether a picture name from a script may be used as a file name in the temporary folder.
#include "vb/Variant.h"

namespace dialog {

// False for a name that is empty, could leave the folder ("\", "/", ":", "..") or stand for the
// folder itself (only dots and blanks), holds a control character (a NUL would cut it short), or
// names a Windows device (CON, PRN, AUX, NUL, CONIN$, CONOUT$, COM0..9, LPT0..9 and COM or LPT
// with a superscript digit; with or without an extension, surrounding blanks or trailing dots).
// Characters that a narrow code page's best fit turns into ASCII (fullwidth forms, the yen and
// won signs that are "\" in Japanese and Korean code pages, slash look-alikes) are judged as
// what they become.
bool nombreSeguro(const vb::String& nombre);

}  // namespace dialog
