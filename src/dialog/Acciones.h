#pragma once
// One scripted user action played against the form, as a person would do it: a click presses
// and releases the mouse, then clicks; typing focuses the box, sends each key through its
// filter and leaves it; a list click toggles the entry, makes it current and releases the
// mouse. Controls a person cannot reach (disabled or hidden) ignore the action; an unknown
// control name or index raises a runtime error. The close box is the view's own business.
#include "dialog/UserAction.h"

namespace dialog {

class frmEspEnc;

void realizaAccion(frmEspEnc& form, const UserAction& action, DialogObserver& observer);

}  // namespace dialog
