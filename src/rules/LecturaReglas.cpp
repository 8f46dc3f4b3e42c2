#include "rules/LecturaReglas.h"

#include "vb/Strings.h"

namespace rules {

ReglaLeida leeRegla(const String& texto) {
    ReglaLeida r;
    r.resto = texto.size() > 3 ? texto.substr(3) : String();
    r.piezas = vb::Split(r.resto, u" ");
    r.todos = r.resto == u" ALL";
    return r;
}

std::optional<std::vector<String>> leeExcepcion(const String& texto) {
    if (texto.empty()) return std::nullopt;
    return leeRegla(texto).piezas;
}

bool codigosNombran(const std::vector<String>& codigos, const String& modelo,
                    const NombreDeCodigo& nombreDe) {
    for (const auto& codigo : codigos) {
        const auto nombre = nombreDe(codigo);
        if (nombre && *nombre == modelo) return true;
    }
    return false;
}

bool reglaPermite(const std::optional<String>& regla, const String& modelo, bool reglaAll,
                  const NombreDeCodigo& nombreDe) {
    if (!regla) return false;
    const ReglaLeida leida = leeRegla(*regla);
    if (reglaAll && leida.todos) return true;
    return codigosNombran(leida.piezas, modelo, nombreDe);
}

}  // namespace rules
