#pragma once
// The dialog's drawings, made with GDI when painted (no image files): a cabinet with arrows on
// the dimensions each special type changes, and the two ways of giving a diagonal cut.
#include <windows.h>

namespace quorbel {

// Special type k (0 width, 1 height, 2 depth, 3 width-height, 4 width-depth, 5 height-depth,
// 6 all three) inside `box`; greyed when not enabled.
void drawSpecialType(HDC dc, const RECT& box, int k, bool enabled);

// Diagonal cut given by lengths L1, L2, L3 (mode 0) or by an angle (mode 1).
void drawDiagonal(HDC dc, const RECT& box, int mode, bool enabled);

}  // namespace quorbel
