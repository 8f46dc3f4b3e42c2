#pragma once
// One scenario user action done to the plug-in's dialog with real window messages, as a
// person's mouse and keyboard would: button clicks, presses and releases on pictures and
// labels, list clicks with their notifications, focus changes and typed characters, scroll
// bar moves. Controls a person cannot reach are left alone; an action no real control can
// take (an unknown control or list entry) is handed to the dialog, whose form raises the
// error a late-bound call would.
#include <windows.h>

#include "dialog/UserAction.h"

namespace hostdriver {

void doRealAction(HWND dialog, const dialog::UserAction& action);

}  // namespace hostdriver
