#pragma once
// The simulated machine's Windows file system: paths compare without regard to case, "\" and
// "/" both separate, and a folder exists when a file lies under it or it was created. Entries
// of a folder are listed in the order they came into being.
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "vb/Variant.h"

namespace sim {

using vb::String;

// A path split into its drive ("C:") and its names; relative paths resolve against "C:\".
struct WinPath {
    String drive;
    std::vector<String> names;

    String text() const;  // "C:\a\b" ("C:\" for a root)
    String key() const;   // text() folded for case-free comparison
    bool isRoot() const { return names.empty(); }
    WinPath parent() const;  // the root's parent is the root
};

// Nothing when the text is not a usable path (empty, or characters Windows refuses).
std::optional<WinPath> parsePath(const String& text);

enum class WriteResult { Created, Replaced, Failed };

struct FsEntry {
    String name;
    bool isFolder = false;
};

class VirtualFs {
  public:
    VirtualFs();

    // World set-up: the folders above the file come into being with it.
    void putFile(const String& path, String content);
    void putFileOfSize(const String& path, int64_t size);

    bool fileExists(const String& path) const;
    bool folderExists(const String& path) const;
    std::optional<int64_t> fileSize(const String& path) const;
    const String* fileContent(const String& path) const;  // null when no such file

    // The plug-in's writes: fail when the folder above does not exist or a folder has the name.
    WriteResult writeFile(const String& path, const String& content);
    // One level: false when the parent is missing or the name is taken.
    enum class MkDirResult { Created, Exists, NoParent, BadPath };
    MkDirResult createFolder(const String& path);

    // The entries of a folder in creation order; nothing when it is not a folder.
    std::optional<std::vector<FsEntry>> list(const String& folderPath) const;
    // The entry itself (its name as stored), when the path names one.
    std::optional<FsEntry> entry(const String& path) const;

  private:
    struct Node {
        String name;
        bool folder = false;
        int64_t size = 0;
        String content;
        std::vector<String> children;  // keys, in creation order
    };
    const Node* find(const WinPath& path) const;
    Node& ensureFolders(const WinPath& path);
    Node& addChild(const WinPath& path, bool folder);

    std::unordered_map<String, Node> nodes_;
};

}  // namespace sim
