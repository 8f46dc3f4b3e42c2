#pragma once
// Shows the form as designed through the real view, without a host: each check prepares the
// form, then inspects the real windows once they are drawn. Faults are printed and counted.
#include <windows.h>

#include <functional>
#include <string>

#include "dialog/frmEspEnc.h"

namespace quorbel::check {

// Runs `inspect` on the open dialog, then closes it (closing needs a host: its error is
// expected and ignored).
void showForm(const std::function<void(dialog::frmEspEnc&)>& prepare,
              const std::function<void(HWND dialog)>& inspect);

// The dialog's control `key` ("Name#index").
HWND controlOf(HWND dialog, const std::wstring& key);

void fault(const std::wstring& what);
int faults();

int layoutChecks(bool longer, int holdSeconds);
int viewChecks();

}  // namespace quorbel::check
