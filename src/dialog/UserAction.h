#pragma once
// What a user does while the dialog is open, as a scenario scripts it, and what a view reports
// back. The headless view plays these; the Windows test host turns them into window messages.
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "vb/Variant.h"

namespace dialog {

using vb::String;

struct UserAction {
    enum class Kind { Click, MouseDown, MouseUp, ListClick, Type, Paste, Scroll, Snapshot, Close };
    Kind kind = Kind::Snapshot;
    String control;  // Click, MouseDown, MouseUp, Type, Paste
    int index = 0;   // element of a control array (0 for a single control)
    int list = 0;    // ListClick: which listComponentes
    int entry = 0;   // ListClick: which entry
    String text;     // Type ("\b" is backspace), Paste
    int value = 0;   // Scroll
};

struct ListEntry {
    String text;
    bool selected = false;
};

// One element of a control as a person would see it; only what the control has is set.
struct ControlElement {
    std::optional<String> caption, text, tag;
    std::optional<bool> enabled, visible;
    std::optional<int32_t> foreColor, borderStyle, top, height, value, max, listIndex;
    std::optional<std::vector<ListEntry>> entries;
};

struct Snapshot {
    String title;
    // Every control under its own name, in a fixed order; a single control has one element.
    std::vector<std::pair<String, std::vector<ControlElement>>> controls;
};

// Receives what happens to the dialog, for the transcript.
class DialogObserver {
  public:
    virtual ~DialogObserver() = default;
    virtual void dialogShown(const String& title) = 0;
    virtual void snapshot(const Snapshot& snapshot) = 0;
    // how: "unload" (the program closed it), "closeBox" (the user's close action),
    // "endOfActions" (the scenario's actions ran out and the runner closed it), or "error"
    // (a runtime error closed it on its way to the handler's error trap).
    virtual void dialogClosed(const std::string& how) = 0;
};

}  // namespace dialog
