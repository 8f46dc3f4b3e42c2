#pragma once
// Included first in every shell source: the core names two platform members after the ANSI
// functions, so the <windows.h> macros mapping those names to their wide forms are removed.
#include <windows.h>
#undef GetPrivateProfileString
#undef GetDlgItemText
