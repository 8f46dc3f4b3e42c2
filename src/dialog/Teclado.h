#pragma once
// Keyboard rules shared by the dialog's text boxes.
#include "dialog/Controles.h"
#include "vb/Strings.h"

namespace dialog {

// Keys of the value boxes: backspace, "+", ",", "-", "." and the digits.
inline bool teclaDeValor(int key) {
    return key == 8 || (key >= 43 && key <= 46) || (key >= 48 && key <= 57);
}

// Keys of the measure boxes: backspace and the digits.
inline bool teclaDeMedida(int key) {
    return key == 8 || (key >= 48 && key <= 57);
}

// On focus the whole text is selected.
inline void seleccionaTodo(TextBox& caja) {
    caja.SelStart = 0;
    caja.SelLength = vb::Len(caja.Text);
}

}  // namespace dialog
