#include "dialog/Instantanea.h"

#include "dialog/Registro.h"

namespace dialog {

namespace {

ControlElement comun(const Control& c) {
    ControlElement e;
    e.tag = c.Tag;
    e.enabled = c.Enabled;
    e.visible = c.Visible;
    e.top = c.Top;
    e.height = c.Height;
    return e;
}

ControlElement elemento(const Label& c) {
    ControlElement e = comun(c);
    e.caption = c.Caption;
    e.foreColor = c.ForeColor;
    return e;
}

ControlElement elemento(const CommandButton& c) {
    ControlElement e = comun(c);
    e.caption = c.Caption;
    return e;
}

ControlElement elemento(const Frame& c) {
    ControlElement e = comun(c);
    e.caption = c.Caption;
    return e;
}

ControlElement elemento(const TextBox& c) {
    ControlElement e = comun(c);
    e.text = c.Text;
    return e;
}

ControlElement elemento(const ListBox& c) {
    ControlElement e = comun(c);
    e.entries = c.entries;
    e.listIndex = c.ListIndex;
    return e;
}

ControlElement elemento(const PictureBox& c) {
    ControlElement e = comun(c);
    e.borderStyle = c.BorderStyle;
    return e;
}

ControlElement elemento(const Shape& c) {
    ControlElement e = comun(c);
    e.enabled.reset();  // a shape has no Enabled
    return e;
}

ControlElement elemento(const ScrollBar& c) {
    ControlElement e = comun(c);
    e.value = c.Value;
    e.max = c.Max;
    return e;
}

}  // namespace

Snapshot instantanea(frmEspEnc& form) {
    Snapshot s;
    s.title = form.Caption;
    paraCadaControl(form, [&](const char16_t* nombre, auto* c, size_t n) {
        std::vector<ControlElement> elementos;
        for (size_t i = 0; i < n; ++i) elementos.push_back(elemento(c[i]));
        s.controls.emplace_back(nombre, std::move(elementos));
    });
    return s;
}

}  // namespace dialog
