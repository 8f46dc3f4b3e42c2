#include "sim/VirtualFs.h"

#include "vb/Strings.h"

namespace sim {

namespace {

bool isSeparator(char16_t c) {
    return c == u'\\' || c == u'/';
}

bool badCharacter(char16_t c) {
    return c < 0x20 || c == u'<' || c == u'>' || c == u'"' || c == u'|' || c == u'?' || c == u'*' ||
           c == u':';
}

bool hasDrive(const String& text) {
    return text.size() >= 2 && text[1] == u':' &&
           ((text[0] >= u'A' && text[0] <= u'Z') || (text[0] >= u'a' && text[0] <= u'z'));
}

String fold(const String& text) {
    return vb::UCase(text);
}

}  // namespace

String WinPath::text() const {
    String out = drive;
    if (names.empty()) return out + u"\\";
    for (const auto& name : names) out += u"\\" + name;
    return out;
}

String WinPath::key() const {
    return fold(text());
}

WinPath WinPath::parent() const {
    WinPath up = *this;
    if (!up.names.empty()) up.names.pop_back();
    return up;
}

std::optional<WinPath> parsePath(const String& text) {
    if (text.empty()) return std::nullopt;
    WinPath path;
    size_t pos = 0;
    if (hasDrive(text)) {
        path.drive = String(1, vb::upperUnit(text[0])) + u":";
        pos = 2;
    } else {
        path.drive = u"C:";  // the current drive of the simulated machine
    }
    String name;
    const auto flush = [&]() -> bool {
        // Windows drops trailing dots and blanks of a name.
        while (!name.empty() && (name.back() == u'.' || name.back() == u' ')) {
            if (name == u"." || name == u"..") break;
            name.pop_back();
        }
        if (name == u"..") {
            if (!path.names.empty()) path.names.pop_back();
        } else if (!name.empty() && name != u".") {
            path.names.push_back(name);
        }
        name.clear();
        return true;
    };
    for (; pos < text.size(); ++pos) {
        const char16_t c = text[pos];
        if (isSeparator(c)) {
            flush();
        } else if (badCharacter(c)) {
            return std::nullopt;
        } else {
            name += c;
        }
    }
    flush();
    return path;
}

VirtualFs::VirtualFs() {
    ensureFolders(*parsePath(u"C:\\"));
}

const VirtualFs::Node* VirtualFs::find(const WinPath& path) const {
    const auto it = nodes_.find(path.key());
    return it == nodes_.end() ? nullptr : &it->second;
}

VirtualFs::Node& VirtualFs::ensureFolders(const WinPath& path) {
    if (path.isRoot()) {
        auto [it, added] = nodes_.try_emplace(path.key());
        if (added) {
            it->second.name = path.drive;
            it->second.folder = true;
        }
        return it->second;
    }
    ensureFolders(path.parent());
    if (auto it = nodes_.find(path.key()); it != nodes_.end()) return it->second;
    return addChild(path, true);
}

VirtualFs::Node& VirtualFs::addChild(const WinPath& path, bool folder) {
    const String key = path.key();
    nodes_[path.parent().key()].children.push_back(key);
    Node& node = nodes_[key];
    node.name = path.names.back();
    node.folder = folder;
    return node;
}

void VirtualFs::putFile(const String& path, String content) {
    const auto parsed = parsePath(path);
    if (!parsed || parsed->isRoot()) return;
    ensureFolders(parsed->parent());
    auto it = nodes_.find(parsed->key());
    Node& node = it != nodes_.end() ? it->second : addChild(*parsed, false);
    node.folder = false;
    // Text files are counted in single-byte units, as the host's ANSI files are.
    node.size = static_cast<int64_t>(content.size());
    node.content = std::move(content);
}

void VirtualFs::putFileOfSize(const String& path, int64_t size) {
    putFile(path, String());
    if (auto parsed = parsePath(path)) {
        if (auto it = nodes_.find(parsed->key()); it != nodes_.end()) it->second.size = size;
    }
}

bool VirtualFs::fileExists(const String& path) const {
    const auto parsed = parsePath(path);
    const Node* node = parsed ? find(*parsed) : nullptr;
    return node && !node->folder;
}

bool VirtualFs::folderExists(const String& path) const {
    const auto parsed = parsePath(path);
    const Node* node = parsed ? find(*parsed) : nullptr;
    return node && node->folder;
}

std::optional<int64_t> VirtualFs::fileSize(const String& path) const {
    const auto parsed = parsePath(path);
    const Node* node = parsed ? find(*parsed) : nullptr;
    if (!node || node->folder) return std::nullopt;
    return node->size;
}

const String* VirtualFs::fileContent(const String& path) const {
    const auto parsed = parsePath(path);
    const Node* node = parsed ? find(*parsed) : nullptr;
    return node && !node->folder ? &node->content : nullptr;
}

WriteResult VirtualFs::writeFile(const String& path, const String& content) {
    const auto parsed = parsePath(path);
    if (!parsed || parsed->isRoot()) return WriteResult::Failed;
    const Node* parent = find(parsed->parent());
    if (!parent || !parent->folder) return WriteResult::Failed;
    const Node* existing = find(*parsed);
    if (existing && existing->folder) return WriteResult::Failed;
    const bool created = existing == nullptr;
    putFile(path, content);
    return created ? WriteResult::Created : WriteResult::Replaced;
}

VirtualFs::MkDirResult VirtualFs::createFolder(const String& path) {
    const auto parsed = parsePath(path);
    if (!parsed) return MkDirResult::BadPath;
    if (find(*parsed) || parsed->isRoot()) return MkDirResult::Exists;
    const Node* parent = find(parsed->parent());
    if (!parent || !parent->folder) {
        // A drive root always exists.
        if (!parsed->parent().isRoot()) return MkDirResult::NoParent;
        ensureFolders(parsed->parent());
    }
    addChild(*parsed, true);
    return MkDirResult::Created;
}

std::optional<std::vector<FsEntry>> VirtualFs::list(const String& folderPath) const {
    const auto parsed = parsePath(folderPath);
    const Node* folder = parsed ? find(*parsed) : nullptr;
    if (!folder || !folder->folder) return std::nullopt;
    std::vector<FsEntry> entries;
    entries.reserve(folder->children.size());
    for (const auto& key : folder->children) {
        const Node& child = nodes_.at(key);
        entries.push_back({child.name, child.folder});
    }
    return entries;
}

std::optional<FsEntry> VirtualFs::entry(const String& path) const {
    const auto parsed = parsePath(path);
    const Node* node = parsed ? find(*parsed) : nullptr;
    if (!node) return std::nullopt;
    return FsEntry{node->name, node->folder};
}

}  // namespace sim
