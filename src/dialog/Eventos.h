#pragma once
// The form's event wiring: which handler a user's action on a named control fires. Both views
// use it, so neither holds dialog logic. An unknown control name or index raises a runtime
// error (438 or 340), as a late-bound call to a missing control would.
#include "dialog/frmEspEnc.h"

namespace dialog {

// The control `name`(index); raises for an unknown name or index.
Control& controlDe(frmEspEnc& form, const String& name, int index);
// The text box `name`(index); raises when it is not one.
TextBox& cajaDe(frmEspEnc& form, const String& name, int index);

// Whether a user can reach the control: it and its container are enabled and visible.
bool alcanzable(frmEspEnc& form, const String& name, int index);

void disparaMouseDown(frmEspEnc& form, const String& name, int index);
void disparaMouseUp(frmEspEnc& form, const String& name, int index);
void disparaClick(frmEspEnc& form, const String& name, int index);
void disparaGotFocus(frmEspEnc& form, const String& name, int index);
void disparaKeyPress(frmEspEnc& form, const String& name, int index, int& keyAscii);
void disparaLostFocus(frmEspEnc& form, const String& name, int index);

// What a text box does with a key that its filter let through: backspace (8) deletes the
// selection or the character before the caret; any other key replaces the selection.
void aplicaTecla(TextBox& caja, int keyAscii);
// Focus, the whole text replaced without the key filter, and leaving the box.
void pegaTexto(frmEspEnc& form, const String& name, int index, const String& texto);

}  // namespace dialog
