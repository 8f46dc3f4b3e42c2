#pragma once
// The dialog of the DLL: loads the form and shows it as a real modal window, owned by the
// host's active window; message boxes shown meanwhile are owned by the dialog.
#include "env/DialogView.h"
#include "platform/Win32Platform.h"

namespace quorbel {

class Win32DialogView : public env::DialogView {
  public:
    explicit Win32DialogView(Win32Platform& platform) : platform_(platform) {}
    void showModal(dialog::frmEspEnc& form) override;

  private:
    Win32Platform& platform_;
};

}  // namespace quorbel
