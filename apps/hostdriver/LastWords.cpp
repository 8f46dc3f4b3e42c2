#include "LastWords.h"

#include <windows.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace hostdriver {

namespace {

constexpr UINT kAbortCode = 3;  // what the C runtime's abort exits with

char activity[256] = "start-up";
bool returning = false;

// Straight to the handle: no stream buffer or lock that a crash may have left half-used.
void say(const char* what) {
    char line[512];
    const int n = std::snprintf(line, sizeof line, "hostdriver: %s (during %s)\n", what, activity);
    HANDLE err = GetStdHandle(STD_ERROR_HANDLE);
    DWORD written = 0;
    if (n > 0 && err && err != INVALID_HANDLE_VALUE)
        WriteFile(err, line, static_cast<DWORD>(std::strlen(line)), &written, nullptr);
}

LONG WINAPI onUnhandled(EXCEPTION_POINTERS* e) {
    char what[160];
    std::snprintf(what, sizeof what, "crashed: exception 0x%08lX at %p",
                  static_cast<unsigned long>(e->ExceptionRecord->ExceptionCode),
                  e->ExceptionRecord->ExceptionAddress);
    say(what);
    return EXCEPTION_EXECUTE_HANDLER;  // ends the process with the exception's code
}

void onTerminate() {
    char what[384] = "terminated by an exception that nothing caught";
    if (const std::exception_ptr current = std::current_exception()) {
        try {
            std::rethrow_exception(current);
        } catch (const std::exception& e) {
            std::snprintf(what, sizeof what, "terminated by an exception that nothing caught: %s",
                          e.what());
        } catch (...) {
        }
    }
    say(what);
    ExitProcess(kAbortCode);
}

void onAbort(int) {
    say("aborted");
    ExitProcess(kAbortCode);
}

void onExit() {
    if (!returning) say("exit() called before the end of the run");
}

}  // namespace

void installLastWords() {
    // No crash dialog: a crash under a virtual display would otherwise wait for a click.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetUnhandledExceptionFilter(onUnhandled);
    std::set_terminate(onTerminate);
    std::signal(SIGABRT, onAbort);
    std::atexit(onExit);
}

void noteActivity(const std::string& what) {
    std::snprintf(activity, sizeof activity, "%s", what.c_str());
}

void mainReturning() {
    returning = true;
}

}  // namespace hostdriver
