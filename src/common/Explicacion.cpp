#include "common/Explicacion.h"

#include "common/ModVariables.h"
#include "vb/Conversions.h"

namespace common {

namespace {

thread_local Explicacion* sinkActual = nullptr;

}  // namespace

Explicacion* explicacion() {
    return sinkActual;
}

unsigned llamadaExplicada() {
    return modVariables().llamadasExplicadas;
}

ExplicacionActiva::ExplicacionActiva(Explicacion* sink) : anterior_(sinkActual) {
    if (sink && !anterior_) ++modVariables().llamadasExplicadas;
    sinkActual = sink;
}

ExplicacionActiva::~ExplicacionActiva() {
    sinkActual = anterior_;
}

String mayusculaInicial(String texto) {
    if (!texto.empty() && texto[0] >= u'a' && texto[0] <= u'z') texto[0] -= u'a' - u'A';
    return texto;
}

String textoDe(const vb::Variant& valor) {
    if (valor.isNull()) return u"Null";
    return vb::CStr(valor);
}

String entreComillas(const String& texto) {
    return u"\"" + texto + u"\"";
}

}  // namespace common
