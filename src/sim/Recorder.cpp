#include "sim/Recorder.h"

#include <string_view>

namespace sim {

namespace {

const char* iconName(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Information:
            return "information";
        case BoxIcon::Critical:
            return "critical";
        case BoxIcon::None:
            break;
    }
    return "none";
}

Json elementJson(const dialog::ControlElement& e) {
    Json j = Json::object();
    if (e.caption) j["caption"] = toJsonText(*e.caption);
    if (e.text) j["text"] = toJsonText(*e.text);
    if (e.tag) j["tag"] = toJsonText(*e.tag);
    if (e.enabled) j["enabled"] = *e.enabled;
    if (e.visible) j["visible"] = *e.visible;
    if (e.foreColor) j["foreColor"] = *e.foreColor;
    if (e.borderStyle) j["borderStyle"] = *e.borderStyle;
    if (e.top) j["top"] = *e.top;
    if (e.height) j["height"] = *e.height;
    if (e.value) j["value"] = *e.value;
    if (e.max) j["max"] = *e.max;
    if (e.entries) {
        Json entries = Json::array();
        for (const auto& entry : *e.entries)
            entries.push_back({{"text", toJsonText(entry.text)}, {"selected", entry.selected}});
        j["entries"] = std::move(entries);
    }
    if (e.listIndex) j["listIndex"] = *e.listIndex;
    return j;
}

}  // namespace

Json snapshotJson(const dialog::Snapshot& snapshot) {
    Json controls = Json::object();
    for (const auto& [name, elements] : snapshot.controls) {
        Json list = Json::array();
        for (const auto& element : elements) list.push_back(elementJson(element));
        controls[vb::toUtf8(name)] = std::move(list);
    }
    return {{"type", "snapshot"}, {"title", toJsonText(snapshot.title)}, {"controls", controls}};
}

void Recorder::beginCall(const std::string& className, const std::string& method) {
    current_ = {{"class", className},
                {"method", method},
                {"result", nullptr},
                {"error", nullptr},
                {"events", Json::array()}};
    if (explain_) current_["explain"] = Json::array();
    hostCalls_.clear();
    inCall_ = true;
}

void Recorder::endCall(Json result, Json error, std::optional<Json> args) {
    current_["result"] = std::move(result);
    current_["error"] = std::move(error);
    Json counts = Json::object();
    for (const auto& [member, n] : hostCalls_) counts[member] = n;
    current_["hostCalls"] = std::move(counts);
    if (args) current_["args"] = std::move(*args);
    calls_.push_back(std::move(current_));
    current_ = Json();
    inCall_ = false;
}

void Recorder::hostCall(const char* member) {
    if (!inCall_) return;
    const std::string_view name(member);
    const auto it = hostCalls_.find(name);
    if (it != hostCalls_.end()) {
        ++it->second;
    } else {
        hostCalls_.emplace(name, 1);
    }
}

void Recorder::event(Json event) {
    if (inCall_) current_["events"].push_back(std::move(event));
}

void Recorder::fileLoad(const vb::String& path, bool ok) {
    event({{"type", "fileLoad"}, {"path", toJsonText(path)}, {"ok", ok}});
}

void Recorder::messageBox(const vb::String& text, const vb::String& caption, BoxIcon icon) {
    event({{"type", "messageBox"},
           {"text", toJsonText(text)},
           {"caption", toJsonText(caption)},
           {"icon", iconName(icon)}});
}

void Recorder::setInfo(int32_t object, int32_t code, const vb::String& value) {
    event({{"type", "setInfo"}, {"object", object}, {"code", code}, {"value", toJsonText(value)}});
}

void Recorder::replaceSelection(const vb::String& catalog, const vb::String& reference,
                                int32_t width, int32_t depth, int32_t height) {
    event({{"type", "replaceSelection"},
           {"catalog", toJsonText(catalog)},
           {"reference", toJsonText(reference)},
           {"width", width},
           {"depth", depth},
           {"height", height}});
}

void Recorder::menuItem(Json args) {
    event({{"type", "menuItem"}, {"args", std::move(args)}});
}

void Recorder::exportResource(int32_t rank, const vb::String& path, bool ok) {
    event({{"type", "exportResource"}, {"rank", rank}, {"path", toJsonText(path)}, {"ok", ok}});
}

void Recorder::viewRefresh() {
    event({{"type", "viewRefresh"}});
}

void Recorder::beep() {
    event({{"type", "beep"}});
}

void Recorder::decision(const vb::String& texto) {
    if (inCall_ && explain_) current_["explain"].push_back(toJsonText(texto));
}

void Recorder::dialogShown(const vb::String& title) {
    event({{"type", "dialogShown"}, {"title", toJsonText(title)}});
}

void Recorder::snapshot(const dialog::Snapshot& snapshot) {
    event(snapshotJson(snapshot));
}

void Recorder::dialogClosed(const std::string& how) {
    event({{"type", "dialogClosed"}, {"how", how}});
}

Json Recorder::transcript(Json objects, Json files) const {
    return {{"calls", calls_}, {"objects", std::move(objects)}, {"files", std::move(files)}};
}

}  // namespace sim
