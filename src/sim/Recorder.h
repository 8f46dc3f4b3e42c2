#pragma once
// Records what the plug-in did, call by call, and writes the transcript. The simulated host,
// the native platform and the dialog view feed it; a Windows test host feeds it the same way
// (with the message boxes it captures) and so prints an identical transcript.
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "common/Explicacion.h"
#include "dialog/UserAction.h"
#include "sim/Json.h"

namespace sim {

enum class BoxIcon { Information, Critical, None };

class Recorder : public dialog::DialogObserver, public common::Explicacion {
  public:
    // With explanations on, every call of the transcript gets its `explain` list.
    void explainCalls(bool on) { explain_ = on; }
    bool explaining() const { return explain_; }

    void beginCall(const std::string& className, const std::string& method);
    // result: true/false, a string or null; error: null or {number, description}; args: the
    // by-reference arguments after the call, for methods that take arguments.
    void endCall(Json result, Json error, std::optional<Json> args = std::nullopt);
    bool inCall() const { return inCall_; }

    // One host member called (counted per call; calls outside a call are not counted).
    void hostCall(const char* member);

    void event(Json event);  // any event, already shaped
    void fileLoad(const vb::String& path, bool ok);
    void messageBox(const vb::String& text, const vb::String& caption, BoxIcon icon);
    void setInfo(int32_t object, int32_t code, const vb::String& value);
    void replaceSelection(const vb::String& catalog, const vb::String& reference, int32_t width,
                          int32_t depth, int32_t height);
    void menuItem(Json args);
    void exportResource(int32_t rank, const vb::String& path, bool ok);
    void viewRefresh();
    void beep();

    // dialog::DialogObserver
    void dialogShown(const vb::String& title) override;
    void snapshot(const dialog::Snapshot& snapshot) override;
    void dialogClosed(const std::string& how) override;

    // common::Explicacion: one decision of the call in progress.
    void decision(const vb::String& texto) override;

    // {"calls": [...], "objects": ..., "files": [...]}.
    Json transcript(Json objects, Json files) const;
    const Json& calls() const { return calls_; }
    // Drops the calls recorded so far: a long run that only measures keeps no transcript.
    void forgetCalls() { calls_ = Json::array(); }

  private:
    Json calls_ = Json::array();
    Json current_;
    std::map<std::string, int64_t, std::less<>> hostCalls_;  // no allocation per count
    bool inCall_ = false;
    bool explain_ = false;
};

// The snapshot event's JSON form: only the fields a control has.
Json snapshotJson(const dialog::Snapshot& snapshot);

}  // namespace sim
