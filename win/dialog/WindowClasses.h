#pragma once
// The dialog's own window classes (the frame, the pictures and containers, the shapes) and the
// subclassing of the standard controls, all routed to the DialogWindow that owns them.
#include <windows.h>

namespace quorbel {

inline constexpr const wchar_t* kPictureClass = L"QuorbelPicture";
inline constexpr const wchar_t* kShapeClass = L"QuorbelShape";
inline constexpr const wchar_t* kFrameClass = L"QuorbelFrame";

// The module whose code this is (the DLL, or a test program that links the view).
HINSTANCE viewModule();

// Registers the classes for one showing of the dialog; unregisters them when destroyed, so
// that no class outlives the module's code.
class WindowClasses {
  public:
    WindowClasses();
    ~WindowClasses();
    WindowClasses(const WindowClasses&) = delete;
    WindowClasses& operator=(const WindowClasses&) = delete;
};

// Routes a standard control's messages to the dialog first.
void subclassControl(HWND h);

}  // namespace quorbel
