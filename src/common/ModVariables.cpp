#include "common/ModVariables.h"

#include <atomic>
#include <utility>

namespace common {

namespace {

// Each thread's set is owned here, not by a thread_local object: in a Windows DLL built by
// mingw, a thread_local object with a destructor is destroyed at process exit after its
// emulated thread storage has been freed, a use after free that ended the host's process as it
// closed. The thread keeps a plain pointer; the sets, chained, go with the module.
struct Conjunto {
    ModVariables variables;
    Conjunto* siguiente = nullptr;
};

class Conjuntos {
  public:
    ~Conjuntos() {
        for (Conjunto* c = primero_.load(); c != nullptr;) delete std::exchange(c, c->siguiente);
    }
    ModVariables& nuevo() {
        auto* c = new Conjunto;
        c->siguiente = primero_.load();
        while (!primero_.compare_exchange_weak(c->siguiente, c)) {
        }
        return c->variables;
    }

  private:
    std::atomic<Conjunto*> primero_{nullptr};
};

Conjuntos conjuntos;

}  // namespace

ModVariables& modVariables() {
    thread_local ModVariables* variables = nullptr;
    if (variables == nullptr) variables = &conjuntos.nuevo();
    return *variables;
}

}  // namespace common
