#pragma once
// What the dialog's windows carry besides their real state, as window properties: the model's
// name of each control, and what a real control cannot tell by itself (the Tag, the fore
// colour, the designed top and height in twips, the stacking group). The view writes them; a
// test host in the same process reads them. Strings live in a GlobalAlloc'd block the property
// holds (exact case, any length); integers are stored in the handle itself.
#include <windows.h>

#include <cstdint>
#include <string>

namespace quorbel::props {

inline constexpr const wchar_t* kControl = L"QuorbelControl";  // "Name#index"
inline constexpr const wchar_t* kKind = L"QuorbelKind";        // ControlKind + 1
inline constexpr const wchar_t* kOrder = L"QuorbelOrder";      // position in the form's list + 1
inline constexpr const wchar_t* kTag = L"QuorbelTag";
inline constexpr const wchar_t* kForeColor = L"QuorbelForeColor";  // BGR + 1
inline constexpr const wchar_t* kTop = L"QuorbelTop";              // twips, biased
inline constexpr const wchar_t* kHeight = L"QuorbelHeight";        // twips, biased
inline constexpr const wchar_t* kGroup = L"QuorbelGroup";          // controls meant to stack (> 0)
inline constexpr const wchar_t* kNoCurrent = L"QuorbelNoCurrent";  // list without current entry
inline constexpr const wchar_t* kClosedBy = L"QuorbelClosedBy";    // on the dialog: ClosedBy
inline constexpr const wchar_t* kDialogClass = L"QuorbelDialog";

// The kinds of control of the form, as the snapshot tells them apart.
enum class ControlKind { Label, Button, Frame, TextBox, ListBox, Picture, Shape, ScrollBar };

// How the dialog window ended, written just before it is destroyed.
enum class ClosedBy { Unload = 1, Error = 2 };

// A handle cannot hold 0 distinguishably from "absent", and top may be negative: bias it.
inline constexpr intptr_t kBias = 0x40000000;

inline void setInt(HWND w, const wchar_t* name, int32_t value) {
    SetPropW(w, name, reinterpret_cast<HANDLE>(static_cast<intptr_t>(value) + kBias));
}

inline bool hasInt(HWND w, const wchar_t* name) {
    return GetPropW(w, name) != nullptr;
}

inline int32_t getInt(HWND w, const wchar_t* name) {
    HANDLE h = GetPropW(w, name);
    return h ? static_cast<int32_t>(reinterpret_cast<intptr_t>(h) - kBias) : 0;
}

inline void removeString(HWND w, const wchar_t* name) {
    if (HANDLE h = RemovePropW(w, name)) GlobalFree(h);
}

inline void setString(HWND w, const wchar_t* name, const std::wstring& value) {
    removeString(w, name);
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, (value.size() + 1) * sizeof(wchar_t));
    if (!block) return;
    if (auto* p = static_cast<wchar_t*>(GlobalLock(block))) {
        value.copy(p, value.size());
        p[value.size()] = L'\0';
        GlobalUnlock(block);
    }
    SetPropW(w, name, block);
}

inline std::wstring getString(HWND w, const wchar_t* name) {
    HANDLE h = GetPropW(w, name);
    if (!h) return {};
    std::wstring out;
    if (auto* p = static_cast<const wchar_t*>(GlobalLock(h))) {
        out = p;
        GlobalUnlock(h);
    }
    return out;
}

// Registered message a test host sends to the dialog for an action no real control can take
// (an unknown control or list entry): wParam 0, lParam -> ActionRequest. The view plays it on
// the model, which raises the same runtime error a late-bound call would.
inline UINT actionMessage() {
    static const UINT id = RegisterWindowMessageW(L"QuorbelUnreachableAction");
    return id;
}

struct ActionRequest {
    int kind;  // dialog::UserAction::Kind
    const wchar_t* control;
    int index, list, entry;
};

}  // namespace quorbel::props
