#include "Judge.h"

#include <set>

#include "vb/Strings.h"

namespace faults {

namespace {

using sim::Json;

const std::string kCaption = "\u00A1\u00A1Atenci\u00F3n!!";
const std::string kUntrapped = "Error no controlado num. ";

bool startsWith(const std::string& text, const std::string& head) {
    return text.compare(0, head.size(), head) == 0;
}

// The two entry points (of either class) whose error trap reports what goes wrong in them.
bool hasErrorTrap(const Json& call) {
    const std::string method = call["method"];
    return method == "OnObjectComponentsBefore" || method == "ObjectWizard";
}

// The steps after the trap, whose errors leave the entry point.
bool afterTheTrap(const std::string& member) {
    return member == "ViewRefresh" || member == "EndSession";
}

// The message the trap shows for an error, with its icon.
Json trapMessage(int number, const std::string& description) {
    const bool mismatch = number == 13;
    const std::string n = std::to_string(number);
    return {
        {"type", "messageBox"},
        {"text", mismatch ? "Error 13: " + description : kUntrapped + n + ". " + description + "."},
        {"caption", kCaption},
        {"icon", mismatch ? "information" : "critical"}};
}

bool showsMessage(const Json& call, const Json& message) {
    for (const Json& e : call["events"]) {
        if (e == message) return true;
    }
    return false;
}

// A runtime error as VB raises it: a number and a description; not the runner's last resort
// for an exception that was no runtime error.
std::string errorProblem(const Json& error) {
    if (error.is_null()) return {};
    if (!error["number"].is_number_integer() || error["number"].get<int>() <= 0)
        return "an error without a number";
    const std::string description = error["description"];
    if (description.empty()) return "an error without a description";
    if (startsWith(description, "Automation error: "))
        return "an exception that is no runtime error: " + description;
    if (description == "Host call budget spent") return "a run that would not end";
    return {};
}

// Every shown dialog is closed in the same call; every trap message has its icon.
std::string eventProblem(const Json& call) {
    int open = 0;
    for (const Json& e : call["events"]) {
        const std::string type = e["type"];
        if (type == "dialogShown") ++open;
        if (type == "dialogClosed") --open;
        if (type != "messageBox" || e["caption"] != kCaption) continue;
        const std::string text = e["text"];
        if (startsWith(text, kUntrapped) && e["icon"] != "critical")
            return "a trap message without the critical icon";
        if (startsWith(text, "Error 13: ") && e["icon"] != "information")
            return "a type-mismatch message without the information icon";
    }
    return open == 0 ? std::string() : "a dialog left open";
}

std::string raiseProblem(const Json& call, const sim::FiredFault& fired) {
    const std::string description =
        vb::toUtf8(sim::injectedDescription(fired.hostCall, fired.member.c_str()));
    const Json injected = {{"number", sim::kInjectedError}, {"description", description}};
    if (call["error"] == injected && (!hasErrorTrap(call) || afterTheTrap(fired.member))) return {};
    if (hasErrorTrap(call) && call["error"].is_null() && call["result"] == true &&
        showsMessage(call, trapMessage(sim::kInjectedError, description)))
        return {};
    return "the failed host call did not end the call as it must (error " + call["error"].dump() +
           ", result " + call["result"].dump() + ")";
}

std::string answerProblem(const Json& call) {
    if (hasErrorTrap(call) && !call["error"].is_null())
        return "an error left the entry point past its trap: " + call["error"].dump();
    return {};
}

// The follow-up must play as it does after the run without a fault.
std::string followUpProblem(const Json& clean, const Json& faulted) {
    if (clean == faulted) return {};
    const Json diff = Json::diff(clean, faulted);
    const Json& first = diff.front();
    const std::string path = first["path"];
    std::string what = "the first call, played again, differs at " + path;
    if (first.contains("value")) what += ": " + first["value"].dump().substr(0, 200);
    return what;
}

}  // namespace

std::string outcome(const Played& faulted) {
    if (faulted.fired.empty()) return "completed";
    const Json& call = faulted.calls[faulted.fired.front().callIndex];
    if (!call["error"].is_null()) return "failed";
    for (const Json& e : call["events"]) {
        if (e["type"] != "messageBox" || e["caption"] != kCaption) continue;
        const std::string text = e["text"];
        if (startsWith(text, kUntrapped) || startsWith(text, "Error 13: ")) return "trapped";
    }
    return "completed";
}

std::vector<std::string> judge(const Played& clean, const Played& faulted, int64_t call,
                               sim::FaultKind kind, int64_t hostCallBudget) {
    std::vector<std::string> problems = faulted.problems;
    if (faulted.hostCalls > hostCallBudget) problems.push_back("more host calls than the budget");
    if (faulted.fired.size() != 1 || faulted.fired.front().hostCall != call)
        problems.push_back("the fault did not fire once");
    for (size_t i = 0; i < faulted.calls.size(); ++i) {
        const Json& c = faulted.calls[i];
        for (const std::string& p : {errorProblem(c["error"]), eventProblem(c)}) {
            if (!p.empty()) problems.push_back("call " + std::to_string(i) + ": " + p);
        }
    }
    if (faulted.fired.size() == 1) {
        const sim::FiredFault& fired = faulted.fired.front();
        const Json& c = faulted.calls[fired.callIndex];
        const std::string p =
            kind == sim::FaultKind::Raise ? raiseProblem(c, fired) : answerProblem(c);
        if (!p.empty())
            problems.push_back("call " + std::to_string(fired.callIndex) + " (" + fired.member +
                               "): " + p);
    }
    const std::string f = followUpProblem(clean.followUp, faulted.followUp);
    if (!f.empty()) problems.push_back(f);
    return problems;
}

}  // namespace faults
