#pragma once
// The decisions the rules and the dialog take, in a catalogue author's words, for a trace that
// explains a call. Nobody listens unless a shell sets a sink for the call, and the texts are
// built only then, so a call without a trace costs nothing more. The texts come from the code
// that decides, at the point where it decides: they are never worked out beside it.
#include <utility>

#include "vb/Variant.h"

namespace common {

using vb::String;

class Explicacion {
  public:
    virtual ~Explicacion() = default;
    virtual void decision(const String& texto) = 0;
};

// This thread's sink for the call in progress; null when nobody listens.
Explicacion* explicacion();

// Makes `sink` this thread's sink while it lives; the previous one comes back after.
class ExplicacionActiva {
  public:
    explicit ExplicacionActiva(Explicacion* sink);
    ~ExplicacionActiva();
    ExplicacionActiva(const ExplicacionActiva&) = delete;
    ExplicacionActiva& operator=(const ExplicacionActiva&) = delete;

  private:
    Explicacion* anterior_;
};

// The number of the call being traced on this thread (1 for the first call with a sink since
// the shared context was last set anew), so that a trace can say in which call an earlier
// decision was taken; 0 before any.
unsigned llamadaExplicada();

// Records one decision; `texto` (a callable giving a String) runs only when a sink listens.
// A text that cannot be built is left out: the trace never changes what a call does.
template <class F>
void explica(F&& texto) {
    Explicacion* e = explicacion();
    if (!e) return;
    try {
        e->decision(std::forward<F>(texto)());
    } catch (...) {
    }
}

// A host answer as text for the trace, without the conversion errors CStr would raise.
String textoDe(const vb::Variant& valor);

// The text with its first letter in capitals, to start a sentence with a name.
String mayusculaInicial(String texto);

// "text" in double quotes, as the trace shows names and codes taken from the tables.
String entreComillas(const String& texto);

}  // namespace common
