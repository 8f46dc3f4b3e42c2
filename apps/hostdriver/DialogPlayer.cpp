// The user's side of a call through the real dialog window: when the plug-in's dialog appears
// it is reported shown, then the call's actions are played one per timer tick as real window
// messages (never while a message box is open or an action is still running), and when the
// window is destroyed it is reported closed with the same `how` as the native runner gives.
#include <windows.h>

#include <exception>
#include <string>
#include <utility>

#include "CallUi.h"
#include "CallbackFailure.h"
#include "MessageBoxHook.h"
#include "RealActions.h"
#include "RealControls.h"
#include "ShotPauses.h"

namespace hostdriver {

namespace {

namespace props = quorbel::props;

constexpr UINT kTickMs = 10;

class DialogPlayer : public CallUi {
  public:
    DialogPlayer(const sim::CallSpec& call, sim::Recorder& recorder)
        : actions_(call.ui), recorder_(recorder) {
        current_ = this;
        timer_ = SetTimer(nullptr, 0, kTickMs, tick);
        hook_ = SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId());
    }
    ~DialogPlayer() override {
        if (hook_) UnhookWindowsHookEx(hook_);
        if (timer_) KillTimer(nullptr, timer_);
        current_ = nullptr;
    }
    DialogPlayer(const DialogPlayer&) = delete;
    DialogPlayer& operator=(const DialogPlayer&) = delete;

  private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        if (!current_) return;
        try {
            current_->step();
        } catch (...) {
            current_->fail(std::current_exception());
        }
    }

    // Destruction of the dialog: reported at once, before any message box the error trap shows.
    static LRESULT CALLBACK watch(int code, WPARAM wp, LPARAM lp) {
        DialogPlayer* p = current_;
        if (p && code == HCBT_DESTROYWND && reinterpret_cast<HWND>(wp) == p->dialog_) {
            try {
                p->closed();
            } catch (...) {
                p->fail(std::current_exception());
            }
        }
        return CallNextHookEx(p ? p->hook_ : nullptr, code, wp, lp);
    }

    void step() {
        if (busy_ || done_ || messageBoxOpen()) return;
        if (!dialog_) {
            HWND d = findDialog();
            if (!d || !IsWindowVisible(d)) return;
            dialog_ = d;
            recorder_.dialogShown(windowText(d));
            return;
        }
        busy_ = true;
        if (next_ < actions_.size()) {
            const dialog::UserAction& a = actions_[next_++];
            if (a.kind == dialog::UserAction::Kind::Snapshot) {
                recorder_.snapshot(readSnapshot(dialog_));
                shots_.pause();
            } else {
                if (a.kind == dialog::UserAction::Kind::Close) closeHow_ = "closeBox";
                doRealAction(dialog_, a);
            }
        } else if (dialog_) {
            closeHow_ = "endOfActions";
            SendMessageW(dialog_, WM_CLOSE, 0, 0);
        }
        busy_ = false;
    }

    // No more actions: the failure is kept for the call's player and the dialog is closed, so
    // that the call returns.
    void fail(std::exception_ptr failure) noexcept {
        keepCallbackFailure(std::move(failure));
        busy_ = false;
        done_ = true;
        if (dialog_) PostMessageW(dialog_, WM_CLOSE, 0, 0);
        dialog_ = nullptr;
    }

    void closed() {
        const auto by = static_cast<props::ClosedBy>(props::getInt(dialog_, props::kClosedBy));
        std::string how = closeHow_.empty() ? "unload" : closeHow_;
        if (by == props::ClosedBy::Error) how = "error";
        recorder_.dialogClosed(how);
        dialog_ = nullptr;
        done_ = true;
    }

    static vb::String windowText(HWND h) {
        const int n = GetWindowTextLengthW(h);
        std::wstring text(static_cast<size_t>(n) + 1, L'\0');
        text.resize(static_cast<size_t>(GetWindowTextW(h, text.data(), n + 1)));
        return vb::String(text.begin(), text.end());
    }

    static inline DialogPlayer* current_ = nullptr;
    std::vector<dialog::UserAction> actions_;
    sim::Recorder& recorder_;
    UINT_PTR timer_ = 0;
    HHOOK hook_ = nullptr;
    HWND dialog_ = nullptr;
    size_t next_ = 0;
    bool busy_ = false, done_ = false;
    std::string closeHow_;
    ShotPauses shots_;
};

}  // namespace

std::unique_ptr<CallUi> startCallUi(const sim::CallSpec& call, sim::Recorder& recorder) {
    return std::make_unique<DialogPlayer>(call, recorder);
}

}  // namespace hostdriver
