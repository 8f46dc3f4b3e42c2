// The walk of the edited object's component tree that fills the five lists, the recess rows
// and the diagonal component.
#include <algorithm>
#include <unordered_set>
#include <vector>

#include "common/Explicacion.h"
#include "dialog/Explicaciones.h"
#include "dialog/frmEspEnc.h"
#include "vb/Conversions.h"
#include "vb/Strings.h"

namespace dialog {

using host::use;
using vb::CStr;

namespace {

constexpr int kListaDiagonal = 5;
constexpr int16_t kMaximoEntero = 32767;

// List of a component by its code: 0..4, kListaDiagonal, or -1 when it is not listed.
int listaDeCodigo(const String& code) {
    static const char16_t* const marcas[] = {u"CS_", u"FR_", u"EQ_", u"O_", u"_CJ", u"_DG"};
    for (int l = 0; l < 6; ++l)
        if (vb::InStr(code, marcas[l], vb::Compare::Text) > 0) return l;
    return -1;
}

// Deeper levels than the five prefixes keep the last one.
String sangria(int16_t nivel) {
    static const char16_t* const sangrias[] = {u"", u"==>", u"  ==>", u"      ==>", u"        ==>"};
    return sangrias[std::clamp<int>(nivel, 0, 4)];
}

bool esUnoODos(const vb::Variant& v) {
    if (!vb::IsNumeric(v)) return false;
    double d = vb::CDbl(v);
    return d == 1 || d == 2;
}

// The depth counter is a 16-bit integer: one level more than it holds overflows, as VB's
// integer arithmetic does.
void bajaNivel(int16_t& nivel) {
    if (nivel == kMaximoEntero) throw vb::RuntimeError(vb::err::kOverflow);
    ++nivel;
}

}  // namespace

// The levels being walked, innermost last: each one the object whose children are read, their
// number, and the position read last. A vector on the heap instead of the call stack, so no
// depth of the host's tree can exhaust the thread's stack.
struct frmEspEnc::Recorrido {
    struct Nivel {
        int32_t id;
        int32_t hijos;
        int32_t posicion;
    };
    std::vector<Nivel> niveles;
    std::unordered_set<int32_t> visitados;
    int bajoMenosUno = 0;  // -1 stands for no object: repeated only as its own ancestor

    // A host answer that repeats an object already walked (an ancestor: a cycle; or a subtree
    // met before) is not walked again below it, so no answer can make the walk endless.
    bool yaRecorrido(int32_t id) const {
        return id == -1 ? bajoMenosUno > 0 : visitados.count(id) > 0;
    }
};

// The recursive walk of recorreHijos, written as a loop over an explicit stack: a level's
// children are counted when the level is entered, each child is classified and, while the
// shared flag says it has children, walked at once (depth first); a finished level lowers the
// depth counter when the flag is false at that moment.
void frmEspEnc::recorreHijos(int32_t id, bool& tieneHijos, std::array<int16_t, 5>& cuentas,
                             int16_t& nivel) {
    Recorrido recorrido;
    entraEn(id, recorrido);
    while (!recorrido.niveles.empty()) {
        if (!siguienteHijo(tieneHijos, cuentas, nivel, recorrido)) {
            if (!tieneHijos && nivel > 0) --nivel;
            if (recorrido.niveles.back().id == -1) --recorrido.bajoMenosUno;
            recorrido.niveles.pop_back();
        }
    }
}

void frmEspEnc::entraEn(int32_t id, Recorrido& recorrido) {
    recorrido.visitados.insert(id);
    if (id == -1) ++recorrido.bajoMenosUno;
    int32_t n = vb::CLng(use(mv_.miScene).ObjectGetChildrenNb(mv_.miSessionId, id, 0));
    recorrido.niveles.push_back({id, n, 0});
}

// Reads and classifies the next child of the innermost level, entering it when it has children;
// false when the level has no child left.
bool frmEspEnc::siguienteHijo(bool& tieneHijos, std::array<int16_t, 5>& cuentas, int16_t& nivel,
                              Recorrido& recorrido) {
    auto& actual = recorrido.niveles.back();
    if (actual.posicion >= actual.hijos) return false;
    int32_t padre = actual.id, posicion = ++actual.posicion;
    int32_t child =
        vb::CLng(use(mv_.miScene).ObjectGetChildId(mv_.miSessionId, padre, posicion, 0));
    if (child != -1) clasificaHijo(child, tieneHijos, cuentas, nivel);
    if (!tieneHijos || recorrido.yaRecorrido(child)) return true;
    bajaNivel(nivel);
    entraEn(child, recorrido);
    return true;
}

void frmEspEnc::clasificaHijo(int32_t child, bool& tieneHijos, std::array<int16_t, 5>& cuentas,
                              int16_t& nivel) {
    auto& scene = use(mv_.miScene);
    int32_t& sid = mv_.miSessionId;
    String code = CStr(scene.ObjectGetInfo(sid, child, 4));
    bool fitL = vb::CBool(scene.ObjectGetInfo(sid, child, 15));
    bool fitP = vb::CBool(scene.ObjectGetInfo(sid, child, 16));
    bool fitH = vb::CBool(scene.ObjectGetInfo(sid, child, 17));
    String script = CStr(scene.ObjectGetScript(sid, child));
    bool fits =
        limitesScript(script, fitL, fitH, fitP, mv_.medidaAncho, mv_.medidaAlto, mv_.medidaFondo);
    if (nivel == 0) {
        for (size_t k = 0; k < mv_.prefijosEsp.size() && k < mv_.hayHijoEsp.size(); ++k)
            if (!mv_.prefijosEsp[k].empty() &&
                vb::InStr(code, mv_.prefijosEsp[k], vb::Compare::Text) > 0) {
                mv_.hayHijoEsp[k] = true;
                mv_.hijosHallados[k] = {child, -2, common::llamadaExplicada()};
            }
    }
    if (!fits) {
        common::explica([&] {
            return explicaNoListado(code, child,
                                    u"its script's limits exclude the cabinet's measures");
        });
    } else if (const vb::Variant elegible = scene.ObjectGetInfo(sid, child, 58);
               !vb::equalText(CStr(elegible), u"1")) {
        common::explica([&] {
            return explicaNoListado(code, child,
                                    u"its information 58 is " +
                                        common::entreComillas(common::textoDe(elegible)) +
                                        u", not \"1\"");
        });
    } else {
        int lista = listaDeCodigo(code);
        if (lista == kListaDiagonal) {
            common::explica([&] { return explicaDiagonal(code, child); });
            ImageDiagonal[0].Enabled = ImageDiagonal[1].Enabled = true;
            idDiagonal = child;
        } else if (lista >= 0 && cuentas[lista] < kMaximoEntero - 1) {
            listaComponente(child, lista, cuentas, nivel, script);
        } else {
            common::explica([&] {
                return explicaNoListado(code, child,
                                        lista < 0
                                            ? u"its code holds none of CS_, FR_, EQ_, O_, _CJ, _DG"
                                            : u"its list is full");
            });
        }
    }
    tieneHijos = vb::CLng(scene.ObjectGetChildrenNb(sid, child, 1)) > 0;
}

// Adds a listed component to its list (and, for a recess, its record and rows).
void frmEspEnc::listaComponente(int32_t child, int lista, std::array<int16_t, 5>& cuentas,
                                int16_t nivel, const String& script) {
    auto& scene = use(mv_.miScene);
    int32_t& sid = mv_.miSessionId;
    int16_t nL = ++cuentas[lista];
    idsListas[lista].resize(nL + 1);
    idsListas[lista][nL - 1] = child;
    if (lista == 4) cargaDatosEncastre(child, nL);
    String texto = CStr(scene.ObjectGetInfo(sid, child, 5));
    if (esUnoODos(scene.ObjectGetInfo(sid, child, 11))) {
        texto += u' ';
        texto += CStr(scene.ObjectGetInfo(sid, child, 10));
    }
    ListBox& caja = listComponentes[lista];
    caja.entries.push_back({sangria(nivel) + texto, false});
    if (vb::equalText(CStr(scene.ObjectGetInfo(sid, child, 59)), u"1"))
        caja.entries[nL - 1].selected = true;
    if (lista != 4) return;
    int16_t i = nL - 1;
    if (static_cast<size_t>(i) < encastres.size() &&
        !vb::equalText(encastres[i].titulo, kNoDisponible))
        encastres[i].titulo = texto;
    creaFilasEncastre(texto, i, script);
    habilitaFilasEncastre(i, caja.entries[i].selected);
}

}  // namespace dialog
