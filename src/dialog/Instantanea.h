#pragma once
// The dialog as a person sees it: every control under its own name, arrays as arrays.
#include "dialog/UserAction.h"

namespace dialog {

class frmEspEnc;

Snapshot instantanea(frmEspEnc& form);

}  // namespace dialog
