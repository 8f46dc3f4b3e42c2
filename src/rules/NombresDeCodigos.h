#pragma once
// Whether a permission line's list of codes names a door model, for every model in turn, when
// the catalogue keeps its reads: each listed code is looked up in table 8 once, in list order
// and only as far as some model needs, and the names found so far answer the models after.
// The host is asked exactly what looking the list up anew for every model asks (every later
// look-up would be answered from the kept reads), in the same order, and every answer is the
// same; only the kept reads are not asked again and again.
#include <unordered_set>
#include <vector>

#include "rules/LecturaReglas.h"

namespace rules {

using vb::String;

class NombresDeCodigos {
  public:
    NombresDeCodigos(const std::vector<String>& codes, const NombreDeCodigo& nombreDe)
        : codes_(codes), nombreDe_(nombreDe) {}

    // Some listed code, looked up in list order, names `model`.
    bool nombra(const String& model);

  private:
    const std::vector<String>& codes_;
    const NombreDeCodigo& nombreDe_;
    size_t buscados_ = 0;                 // codes looked up so far, from the first
    std::unordered_set<String> nombres_;  // the names they gave
};

}  // namespace rules
