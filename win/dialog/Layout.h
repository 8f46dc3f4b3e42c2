#pragma once
// Where each control of the form goes, in pixels, measured from the captions the form holds
// after loading (so a longer translation widens or wraps instead of clipping) and from the
// dialog font. Three areas side by side: components, special types, recesses. The recess rows
// and `picin` take their top and height from the form (twips), so that they scroll as the
// form says; the layout gives them left and width only.
#include <windows.h>

#include <map>
#include <string>

#include "dialog/frmEspEnc.h"

namespace quorbel {

struct Place {
    std::wstring parent;  // key of the parent control, "" for the dialog itself
    RECT rect{};          // in the parent's client coordinates
    int group = 0;        // controls of one group are drawn on top of each other on purpose
};

struct Layout {
    int dpi = 96;
    SIZE client{};
    std::map<std::wstring, Place> places;  // by key "Name#index"

    // Twips of the form to pixels at this layout's resolution.
    int px(int32_t twips) const { return MulDiv(twips, dpi, 1440); }
};

std::wstring keyOf(const std::u16string& name, int index);

// `dc` has the dialog font selected.
Layout computeLayout(const dialog::frmEspEnc& form, HDC dc, int dpi);

}  // namespace quorbel
