#pragma once
// Captures the plug-in's message boxes on this thread: as soon as a box has initialised its
// controls, its text, caption and icon go to the recorder (at that moment, so the event keeps its
// place among the host calls) and the box is answered OK. The hook watches the box's messages
// after its window procedure (WH_CALLWNDPROCRET): a WH_CBT hook sees the box activated before
// its WM_INITDIALOG under Wine, when text and icon are still empty.
#include "sim/Recorder.h"

namespace hostdriver {

class MessageBoxHook {
  public:
    // Raises std::runtime_error when the hook cannot be set.
    explicit MessageBoxHook(sim::Recorder& recorder);
    ~MessageBoxHook();
    MessageBoxHook(const MessageBoxHook&) = delete;
    MessageBoxHook& operator=(const MessageBoxHook&) = delete;
};

// True while a captured message box is on screen (a dialog player waits for it to close).
bool messageBoxOpen();

}  // namespace hostdriver
