#pragma once
// The creatable class Wizard: the _Wizard interface over wizard::Wizard.
#include "Quorbel_h.h"
#include "com/SharedEntries.h"
#include "wizard/Wizard.h"

namespace quorbel {

class ComWizard : public SharedEntries<_Wizard, wizard::Wizard> {
  public:
    STDMETHODIMP casoForma(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP casoXey(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP casoVegasa(long block, VARIANT_BOOL* result) override;
    STDMETHODIMP OnObjectComponents(long block, VARIANT_BOOL* result) override;
};

}  // namespace quorbel
