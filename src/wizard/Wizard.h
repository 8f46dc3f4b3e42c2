#pragma once
// The `Wizard` class: manufacturer cases for catalogues 31, 32 and 33, in the order of the
// `_Wizard` interface.
#include <cstdint>

#include "env/Env.h"
#include "host/Host.h"
#include "vb/Variant.h"

namespace wizard {

using vb::String;
struct Fabricante;

class Wizard {
  public:
    explicit Wizard(env::Env& env) : env_(env) {}

    bool casoForma(int32_t lCallParamsBlock);
    bool casoXey(int32_t lCallParamsBlock);
    bool casoVegasa(int32_t lCallParamsBlock);
    bool OnObjectPlaceAfter(int32_t lCallParamsBlock);
    bool OnObjectComponents(int32_t lCallParamsBlock);
    bool OnObjectComponentsBefore(int32_t lCallParamsBlock);
    void InicEsp();
    void InicEspMod(int32_t& miSessionId, host::CatalogRef& miCatalog);
    void InicEspMod2();
    void GenModEsp(int32_t& miSessionId, host::AppliRef& miAppli, host::SceneRef& miScene,
                   host::CatalogRef& miCatalog);
    void GenExcepciones(int32_t& miSessionId, host::AppliRef& miAppli, host::SceneRef& miScene,
                        host::CatalogRef& miCatalog);
    bool modeloValido(String& refer, String& code, String& script);
    bool ObjectWizard(int32_t lCallParamsBlock);

    env::Env& env() { return env_; }

  private:
    // A cabinet's measures: the catalogue's and the current ones.
    struct Medidas {
        String catAncho, catFondo, catAlto, ancho, fondo, alto;
    };
    void aplicaCaso(const Fabricante& f, String& ruta);
    void reglaSoloFondo(const Fabricante& f, const Medidas& m);
    void reglaAncho(const Fabricante& f, const Medidas& m);
    void muestra(const String& text);

    env::Env& env_;
    // The placement path's own host objects and session (not the shared context).
    host::AppliRef wAppli;
    host::SceneRef wScene;
    host::CatalogRef wCatalog;
    int32_t wSessionId = 0;
    String refObjeto, prefijoRef4, prefijoRef3, modeloPuerta;
    String rutaForma, rutaXey, rutaVegasa;
};

}  // namespace wizard
