#pragma once
// Shows the form as designed through the real view, without a host: each check prepares the
// form, then inspects the real windows once they are drawn. Faults are printed and counted.
#include <windows.h>

#include <exception>
#include <functional>
#include <string>

#include "dialog/frmEspEnc.h"

namespace quorbel::check {

// Runs `inspect` on the open dialog, then closes it. Closing needs a host, so it raises: the
// error that left the modal loop is returned.
std::exception_ptr showForm(const std::function<void(dialog::frmEspEnc&)>& prepare,
                            const std::function<void(HWND dialog)>& inspect, HWND owner = nullptr,
                            const std::function<void(HWND)>& ownerChanged = {});

// The dialog's control `key` ("Name#index").
HWND controlOf(HWND dialog, const std::wstring& key);

void fault(const std::wstring& what);
int faults();

int layoutChecks(bool longer, int holdSeconds);
int viewChecks();

}  // namespace quorbel::check
