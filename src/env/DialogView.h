#pragma once
// How the dialog is shown: the Win32 view in the DLL, the headless view in the simulation.
// A view only shows the form and forwards events to its handlers; it holds no dialog logic.
namespace dialog {
class frmEspEnc;
}

namespace env {

class DialogView {
  public:
    virtual ~DialogView() = default;
    // Shows the form modally and returns when it has been unloaded.
    virtual void showModal(dialog::frmEspEnc& form) = 0;
};

}  // namespace env
