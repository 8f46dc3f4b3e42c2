#pragma once
// Pauses for screenshots (scripts/screenshots): when QUORBEL_SHOTS names a folder, the dialog
// player stops at each snapshot, and at each message box once it is drawn, until the script
// has taken its picture: it writes N.ready in that folder and waits for N.done.
#include <windows.h>

#include <string>

namespace hostdriver {

class ShotPauses {
  public:
    ShotPauses();
    ~ShotPauses();
    ShotPauses(const ShotPauses&) = delete;
    ShotPauses& operator=(const ShotPauses&) = delete;

    bool enabled() const { return !folder_.empty(); }
    // The screen is as the user sees it now: wait for its picture.
    void pause();

  private:
    static LRESULT CALLBACK boxReady(int code, WPARAM wp, LPARAM lp);
    std::wstring folder_;
    int taken_ = 0;
    HHOOK hook_ = nullptr;
};

}  // namespace hostdriver
