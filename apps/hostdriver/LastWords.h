#pragma once
// Whatever ends the driver other than the end of main says why on standard error, naming the
// call that was being played: an unhandled structured exception (a crash in the driver or the
// plug-in), std::terminate (an exception that nothing caught), abort, or exit() called early.
// The messages are written straight to the standard error handle, as a crashing process can.
#include <string>

namespace hostdriver {

void installLastWords();

// What the driver is doing now ("call 3: Plugin.OnObjectComponentsBefore"), for those messages.
void noteActivity(const std::string& what);

// main is returning: exit() from here on is the driver's own.
void mainReturning();

}  // namespace hostdriver
