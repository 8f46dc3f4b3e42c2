#pragma once
// The creatable class Wizard: the _Wizard interface over wizard::Wizard.
#include "Quorbel_h.h"
#include "com/DispatchObject.h"
#include "com/Shell.h"
#include "wizard/Wizard.h"

namespace quorbel {

class ComWizard : public DispatchObject<_Wizard>, private Shell {
  public:
    STDMETHODIMP casoForma(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP casoXey(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP casoVegasa(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP OnObjectPlaceAfter(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP OnObjectComponents(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP OnObjectComponentsBefore(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP InicEsp() override;
    STDMETHODIMP InicEspMod(long* miSessionId, IDispatch** miCatalog) override;
    STDMETHODIMP InicEspMod2() override;
    STDMETHODIMP GenModEsp(long* miSessionId, IDispatch** miAppli, IDispatch** miScene,
                           IDispatch** miCatalog) override;
    STDMETHODIMP GenExcepciones(long* miSessionId, IDispatch** miAppli, IDispatch** miScene,
                                IDispatch** miCatalog) override;
    STDMETHODIMP modeloValido(BSTR* refer, BSTR* code, BSTR* script, VARIANT_BOOL* result) override;
    STDMETHODIMP ObjectWizard(long block, VARIANT_BOOL* result) override;

  private:
    using Handler = bool (wizard::Wizard::*)(int32_t);
    HRESULT event(Handler h, long block, VARIANT_BOOL* result);
    wizard::Wizard wizard_{env_};
};

}  // namespace quorbel
