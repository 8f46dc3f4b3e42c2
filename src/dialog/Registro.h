#pragma once
// Every control of the form under its own name, in a fixed order: a single control as one
// element, a control array as all its elements. Translation, snapshots and the views use it.
#include "dialog/frmEspEnc.h"

namespace dialog {

// fn(name, pointer to the first element, number of elements)
template <typename Form, typename F>
void paraCadaControl(Form& f, F&& fn) {
    auto uno = [&](const char16_t* n, auto& c) { fn(n, &c, size_t{1}); };
    auto varios = [&](const char16_t* n, auto& c) { fn(n, c.data(), c.size()); };
    uno(u"Label8", f.Label8);
    uno(u"Label11", f.Label11);
    uno(u"Label9", f.Label9);
    uno(u"Label13", f.Label13);
    varios(u"listComponentes", f.listComponentes);
    uno(u"btnAcptComp", f.btnAcptComp);
    uno(u"btnCnlComps", f.btnCnlComps);
    varios(u"TextValores", f.TextValores);
    varios(u"EtiqValores", f.EtiqValores);
    uno(u"BotonCnlValores", f.BotonCnlValores);
    uno(u"EtiqCnlValores", f.EtiqCnlValores);
    uno(u"Label14", f.Label14);
    uno(u"ImagePreview", f.ImagePreview);
    uno(u"Label12", f.Label12);
    uno(u"Label3", f.Label3);
    varios(u"PictureEsp", f.PictureEsp);
    varios(u"PictureEspOc", f.PictureEspOc);
    varios(u"btnNoDisponible", f.btnNoDisponible);
    varios(u"EtiqCuadEsp", f.EtiqCuadEsp);
    varios(u"FormaSelect", f.FormaSelect);
    uno(u"EtiqInfoEsp", f.EtiqInfoEsp);
    uno(u"PanelMedEsp", f.PanelMedEsp);
    varios(u"EtiqMedEsp", f.EtiqMedEsp);
    varios(u"TextMedEsp", f.TextMedEsp);
    uno(u"BotonCnlMed", f.BotonCnlMed);
    uno(u"EtiqCnlMed", f.EtiqCnlMed);
    uno(u"Label2", f.Label2);
    uno(u"picout", f.picout);
    uno(u"picin", f.picin);
    uno(u"barraScrolEnc", f.barraScrolEnc);
    varios(u"EtiqTituloEnc", f.EtiqTituloEnc);
    varios(u"EtiqValorEnc", f.EtiqValorEnc);
    varios(u"TxtValoresEnc", f.TxtValoresEnc);
    uno(u"EtiqEncNoDisp", f.EtiqEncNoDisp);
    uno(u"Label5", f.Label5);
    varios(u"ImageDiagonal", f.ImageDiagonal);
    varios(u"FormaDiagonal", f.FormaDiagonal);
    uno(u"EtiqInfoDiag", f.EtiqInfoDiag);
}

// The caption of a control that has one, else null.
inline String* captionDe(Label& c) {
    return &c.Caption;
}
inline String* captionDe(CommandButton& c) {
    return &c.Caption;
}
inline String* captionDe(Frame& c) {
    return &c.Caption;
}
inline String* captionDe(Control&) {
    return nullptr;
}

}  // namespace dialog
