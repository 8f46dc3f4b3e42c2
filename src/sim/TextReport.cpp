#include "sim/TextReport.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace sim {

namespace {

// Display width of UTF-8 text: one column per code point.
size_t columns(const std::string& text) {
    size_t n = 0;
    for (const unsigned char c : text) n += (c & 0xC0) != 0x80;
    return n;
}

std::vector<std::string> textLines(const std::string& text) {
    std::vector<std::string> lines;
    std::string line;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
            lines.push_back(line);
            line.clear();
        } else {
            line += text[i];
        }
    }
    lines.push_back(line);
    return lines;
}

std::string str(const Json& j) {
    return j.is_string() ? j.get<std::string>() : j.dump();
}

// Built by appending: GCC 12 warns falsely (-Wrestrict) on a literal + string concatenation.
std::string quoted(const Json& j) {
    if (!j.is_string()) return j.dump();
    std::string text(1, '"');
    text += str(j);
    text += '"';
    return text;
}

void drawBox(std::ostream& out, const Json& e) {
    const std::string icon = str(e["icon"]);
    const std::string mark = icon == "information" ? "(i) " : icon == "critical" ? "(X) " : "";
    auto lines = textLines(str(e["text"]));
    for (size_t i = 0; i < lines.size(); ++i)
        lines[i] = (i == 0 ? mark : std::string(mark.size(), ' ')) + lines[i];
    std::string caption(1, ' ');
    caption += str(e["caption"]);
    caption += ' ';
    size_t width = columns(caption) + 4;
    for (const auto& line : lines) width = std::max(width, columns(line) + 2);
    out << "  +--" << caption << std::string(width - columns(caption) - 2, '-') << "+\n";
    for (const auto& line : lines)
        out << "  | " << line << std::string(width - columns(line) - 1, ' ') << "|\n";
    out << "  +" << std::string(width, '-') << "+\n";
}

void drawElement(std::ostream& out, const std::string& name, size_t index, const Json& element) {
    out << "      " << name << "(" << index << ")";
    const char* sep = ": ";
    for (const auto& field : element.items()) {
        if (field.key() == "entries") continue;
        out << sep << field.key() << " " << quoted(field.value());
        sep = ", ";
    }
    out << "\n";
    if (!element.contains("entries")) return;
    for (const auto& entry : element["entries"])
        out << "        [" << (entry["selected"].get<bool>() ? "x" : " ") << "] "
            << str(entry["text"]) << "\n";
}

void drawSnapshot(std::ostream& out, const Json& e) {
    out << "  snapshot of \"" << str(e["title"]) << "\":\n";
    for (const auto& control : e["controls"].items()) {
        size_t index = 0;
        for (const auto& element : control.value())
            drawElement(out, control.key(), index++, element);
    }
}

void drawEvent(std::ostream& out, const Json& e) {
    const std::string type = str(e["type"]);
    if (type == "messageBox") return drawBox(out, e);
    if (type == "snapshot") return drawSnapshot(out, e);
    out << "  ";
    if (type == "fileLoad") {
        out << (e["ok"].get<bool>() ? "catalogue loaded: " : "catalogue not loaded: ")
            << str(e["path"]);
    } else if (type == "setInfo") {
        out << "object " << e["object"].dump() << ": info " << e["code"].dump() << " <- "
            << quoted(e["value"]);
    } else if (type == "replaceSelection") {
        out << "selection replaced by " << quoted(e["reference"]) << " of " << quoted(e["catalog"])
            << " (width " << e["width"].dump() << ", depth " << e["depth"].dump() << ", height "
            << e["height"].dump() << ")";
    } else if (type == "menuItem") {
        out << "menu item inserted: " << e["args"].dump();
    } else if (type == "exportResource") {
        out << "resource " << e["rank"].dump() << " exported to " << str(e["path"])
            << (e["ok"].get<bool>() ? "" : ": failed");
    } else if (type == "viewRefresh") {
        out << "view refreshed";
    } else if (type == "beep") {
        out << "beep";
    } else if (type == "dialogShown") {
        out << "dialog shown: \"" << str(e["title"]) << "\"";
    } else if (type == "dialogClosed") {
        out << "dialog closed (" << str(e["how"]) << ")";
    } else {
        out << e.dump();
    }
    out << "\n";
}

void drawCall(std::ostream& out, const Json& call) {
    out << str(call["class"]) << "." << str(call["method"]) << " -> ";
    if (call["error"].is_null()) {
        out << (call["result"].is_null() ? "(no result)" : quoted(call["result"])) << "\n";
    } else {
        out << "error " << call["error"]["number"].dump() << ": "
            << str(call["error"]["description"]) << "\n";
    }
    for (const auto& e : call["events"]) drawEvent(out, e);
    if (call.contains("args")) out << "  arguments after the call: " << call["args"].dump() << "\n";
    if (call.contains("explain") && !call["explain"].empty()) {
        out << "  why:\n";
        for (const auto& line : call["explain"]) out << "    - " << str(line) << "\n";
    }
    if (!call["hostCalls"].empty()) {
        out << "  host calls:";
        const char* sep = " ";
        for (const auto& member : call["hostCalls"].items()) {
            out << sep << member.key() << " " << member.value().dump();
            sep = ", ";
        }
        out << "\n";
    }
}

}  // namespace

std::string textReport(const Json& transcript) {
    std::ostringstream out;
    for (const auto& call : transcript["calls"]) {
        drawCall(out, call);
        out << "\n";
    }
    out << "Objects after the last call:\n";
    for (const auto& object : transcript["objects"].items()) {
        out << "  object " << object.key() << ":";
        for (const auto& info : object.value().items())
            out << " " << info.key() << "=" << quoted(info.value());
        out << "\n";
    }
    out << "Files created:";
    if (transcript["files"].empty()) out << " none";
    out << "\n";
    for (const auto& file : transcript["files"]) out << "  " << str(file) << "\n";
    return out.str();
}

}  // namespace sim
