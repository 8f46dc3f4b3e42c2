#pragma once
// The plug-in's dialog as a person finds it on screen: its controls by the names the window
// tags them with, whether a person can reach them, and what they show (the snapshot), read
// from the real windows.
#include <windows.h>

#include "dialog/UserAction.h"
#include "dialog/WindowProps.h"

namespace hostdriver {

// The dialog window of this thread, or null.
HWND findDialog();

// The control `name`(index) of the dialog, or null when it has none.
HWND findControl(HWND dialog, const vb::String& name, int index);

quorbel::props::ControlKind kindOf(HWND control);

// Shown, and neither it nor a container of it disabled.
bool reachable(HWND dialog, HWND control);

dialog::Snapshot readSnapshot(HWND dialog);

}  // namespace hostdriver
