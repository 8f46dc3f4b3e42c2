#pragma once
// The dialog's controls as plain values: what the form's procedures read and write, and what a
// view shows. Positions and heights are in twips, as the form was designed.
#include <cstdint>
#include <vector>

#include "dialog/UserAction.h"

namespace dialog {

constexpr int32_t kNegro = 0;
constexpr int32_t kRojo = 255;
constexpr int32_t kAzulMarino = 0x800000;

// What every control has.
struct Control {
    String Tag;
    bool Enabled = true;
    bool Visible = true;
    int32_t Top = 0;
    int32_t Height = 0;
};

struct Label : Control {
    String Caption;
    int32_t ForeColor = kNegro;
};

struct CommandButton : Control {
    String Caption;
};

struct Frame : Control {
    String Caption;
};

struct TextBox : Control {
    String Text;
    int32_t SelStart = 0;
    int32_t SelLength = 0;
    int32_t TabIndex = 0;
};

struct ListBox : Control {
    std::vector<ListEntry> entries;
    int32_t ListIndex = -1;
    int32_t ListCount() const { return static_cast<int32_t>(entries.size()); }
};

// A picture box or an image: a border and the file of the picture it shows ("" = none).
struct PictureBox : Control {
    int32_t BorderStyle = 1;
    String Picture;
};

struct Shape : Control {};

struct ScrollBar : Control {
    int32_t Value = 0;
    int32_t Max = 0;
};

}  // namespace dialog
