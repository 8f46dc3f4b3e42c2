#pragma once
// The host's attribute dialog during one call: a real (hidden) window whose child controls
// carry the scenario's texts under their ids, so the plug-in reads them with GetDlgItemTextA.
#include <windows.h>

#include <cstdint>
#include <map>

#include "vb/Variant.h"

namespace hostdriver {

class AttributeDialog {
  public:
    // Raises std::runtime_error when the window cannot be made.
    explicit AttributeDialog(const std::map<int32_t, vb::String>& controls);
    ~AttributeDialog();
    AttributeDialog(const AttributeDialog&) = delete;
    AttributeDialog& operator=(const AttributeDialog&) = delete;

    // The handle as the host hands it out (window handles keep 32 significant bits).
    int32_t handle() const;

  private:
    HWND window_ = nullptr;
};

}  // namespace hostdriver
