#include "sim/UiActions.h"

#include <string_view>

#include "sim/JsonCheck.h"

namespace sim {

namespace {

using Kind = dialog::UserAction::Kind;
using check::key;

struct KindSpec {
    std::string_view name;
    Kind kind;
};

constexpr KindSpec kKinds[] = {
    {"click", Kind::Click},         {"mouseDown", Kind::MouseDown}, {"mouseUp", Kind::MouseUp},
    {"listClick", Kind::ListClick}, {"type", Kind::Type},           {"paste", Kind::Paste},
    {"scroll", Kind::Scroll},       {"snapshot", Kind::Snapshot},   {"close", Kind::Close},
};

Kind kindOf(const Json& j, const std::string& path) {
    const std::string name = vb::toUtf8(check::text(j, path));
    for (const auto& spec : kKinds) {
        if (spec.name == name) return spec.kind;
    }
    check::fail(path,
                "expected one of click, mouseDown, mouseUp, listClick, type, paste, scroll, "
                "snapshot, close");
}

void readControl(dialog::UserAction& action, const Json& j, const std::string& path) {
    check::required(j, path, "control");
    action.control = check::text(j["control"], key(path, "control"));
    if (j.contains("index")) action.index = check::integer(j["index"], key(path, "index"));
}

dialog::UserAction loadAction(const Json& j, const std::string& path) {
    check::object(j, path);
    check::required(j, path, "do");
    dialog::UserAction action;
    action.kind = kindOf(j["do"], key(path, "do"));
    switch (action.kind) {
        case Kind::Click:
        case Kind::MouseDown:
        case Kind::MouseUp:
            check::keys(j, path, {"do", "control", "index"});
            readControl(action, j, path);
            break;
        case Kind::Type:
        case Kind::Paste:
            check::keys(j, path, {"do", "control", "index", "text"});
            readControl(action, j, path);
            check::required(j, path, "text");
            action.text = check::text(j["text"], key(path, "text"));
            break;
        case Kind::ListClick:
            check::keys(j, path, {"do", "list", "entry"});
            check::required(j, path, "list");
            check::required(j, path, "entry");
            action.list = check::integer(j["list"], key(path, "list"));
            action.entry = check::integer(j["entry"], key(path, "entry"));
            break;
        case Kind::Scroll:
            check::keys(j, path, {"do", "control", "index", "value"});
            if (j.contains("control")) readControl(action, j, path);
            check::required(j, path, "value");
            action.value = check::integer(j["value"], key(path, "value"));
            break;
        case Kind::Snapshot:
        case Kind::Close:
            check::keys(j, path, {"do"});
            break;
    }
    return action;
}

}  // namespace

std::vector<dialog::UserAction> loadUiActions(const Json& j, const std::string& path) {
    check::array(j, path);
    std::vector<dialog::UserAction> actions;
    for (size_t i = 0; i < j.size(); ++i) actions.push_back(loadAction(j[i], check::at(path, i)));
    return actions;
}

}  // namespace sim
