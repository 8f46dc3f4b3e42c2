#include "rules/Refresco.h"

#include <algorithm>

#include "common/Explicacion.h"
#include "host/Factory.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace rules {

namespace {

// Marks every kind whose prefix the child's name contains; a later child wins for its kind.
void marcaHijo(common::ModVariables& mv, const std::vector<String>& prefijos, int32_t objectId,
               int32_t child) {
    const String name = vb::CStr(host::use(mv.miScene).ObjectGetInfo(mv.miSessionId, child, 4));
    const size_t kinds = std::min<size_t>(prefijos.size(), common::kNumTipos);
    for (size_t k = 0; k < kinds; ++k) {
        if (vb::InStr(name, prefijos[k], vb::Compare::Text) > 0) {
            mv.idsHijosEsp[k] = child;
            mv.hayHijoEsp[k] = true;
            mv.hijosHallados[k] = {child, objectId, common::llamadaExplicada()};
        }
    }
}

void escaneaHijos(const std::vector<String>& prefijos, int32_t objectId, int32_t porDefecto) {
    auto& mv = common::modVariables();
    for (int k = 0; k < common::kNumTipos; ++k) mv.idsHijosEsp[k] = porDefecto;
    auto& scene = host::use(mv.miScene);
    const int32_t n = vb::CLng(scene.ObjectGetChildrenNb(mv.miSessionId, objectId, 0));
    for (int32_t i = 1; i <= n; ++i) {
        const int32_t child = vb::CLng(scene.ObjectGetChildId(mv.miSessionId, objectId, i, 0));
        marcaHijo(mv, prefijos, objectId, child);
    }
}

}  // namespace

void iniciaPrefijosEsp() {
    common::modVariables().prefijosEsp = {u"EA_",  u"EAl_",  u"EF_",  u"EAA_",
                                          u"EAF_", u"EAlF_", u"EAAF_"};
}

void buscaHijosEsp(const std::vector<String>& prefijos) {
    escaneaHijos(prefijos, -2, -2);
}

void buscaHijosEspDe(const std::vector<String>& prefijos, int32_t objectId) {
    escaneaHijos(prefijos, objectId, objectId);
}

bool estaEnLista(const String& value, const common::ListaExcepciones& lista) {
    // A list needs a highest index of at least 1: a rule text yields an empty first piece.
    if (!lista || lista->size() < 2) return false;
    for (const auto& element : *lista) {
        if (element == value) return true;
    }
    return false;
}

}  // namespace rules
