#include "com/ComWizard.h"

namespace quorbel {

STDMETHODIMP ComWizard::casoForma(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::casoForma, b, r);
}
STDMETHODIMP ComWizard::casoXey(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::casoXey, b, r);
}
STDMETHODIMP ComWizard::casoVegasa(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::casoVegasa, b, r);
}
STDMETHODIMP ComWizard::OnObjectComponents(long b, VARIANT_BOOL* r) {
    return event(&wizard::Wizard::OnObjectComponents, b, r);
}

}  // namespace quorbel
