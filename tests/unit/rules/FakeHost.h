#pragma once
// A small in-memory host and platform for unit tests of the rules and handlers: tables found
// by code or name, scene objects with information codes and children, and a record of every
// call, write and message.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/Factory.h"
#include "platform/Platform.h"
#include "vb/Errors.h"

namespace fake {

using host::String;
using host::Variant;

struct Calls {
    std::map<std::string, int> byMember;
    int total = 0;
    void count(const char* member) {
        ++byMember[member];
        ++total;
    }
};

struct Line {
    String code, name;
    std::map<int, String> cols;
};

class Catalog : public host::Catalog {
  public:
    explicit Catalog(Calls& calls) : calls_(calls) {}
    std::map<int, std::vector<Line>> tables;
    String language = u"ESP";
    std::map<String, String> dictionary;  // text -> translation
    std::vector<String> loads;

    Variant FileLoad(int32_t&, const String& path) override {
        calls_.count("FileLoad");
        loads.push_back(path);
        return true;
    }
    Variant GetInfo(int32_t&, int32_t) override {
        calls_.count("GetInfo");
        return language;
    }
    Variant DicoGetStringFromKey(int32_t&, const String& text, const String&) override {
        calls_.count("DicoGetStringFromKey");
        auto it = dictionary.find(text);
        return it == dictionary.end() ? text : it->second;
    }
    Variant TableGetLinesNb(int32_t&, int32_t table, int16_t) override {
        calls_.count("TableGetLinesNb");
        return static_cast<int16_t>(tables[table].size());
    }
    Variant TableGetLineRankFromCode(int32_t&, int32_t table, int32_t, int16_t, const String& code,
                                     bool) override {
        calls_.count("TableGetLineRankFromCode");
        return rank(table, [&](const Line& l) { return l.code == code; });
    }
    Variant TableGetLineRankFromName(int32_t&, int32_t table, int32_t, int16_t, const String& name,
                                     bool) override {
        calls_.count("TableGetLineRankFromName");
        return rank(table, [&](const Line& l) { return l.name == name; });
    }
    Variant TableGetLineInfo(int32_t&, int32_t table, int32_t, int32_t rank,
                             int16_t column) override {
        calls_.count("TableGetLineInfo");
        const auto& lines = tables[table];
        if (rank < 1 || rank > static_cast<int32_t>(lines.size())) return String();
        auto it = lines[rank - 1].cols.find(column);
        return it == lines[rank - 1].cols.end() ? String() : it->second;
    }
    Variant FileExportResource(int32_t&, int32_t, const String&) override {
        calls_.count("FileExportResource");
        return false;
    }

  private:
    template <class Match>
    int32_t rank(int32_t table, Match match) {
        const auto& lines = tables[table];
        for (size_t i = 0; i < lines.size(); ++i) {
            if (match(lines[i])) return static_cast<int32_t>(i + 1);
        }
        return 0;
    }
    Calls& calls_;
};

struct Object {
    std::map<int, String> info;
    std::vector<int32_t> children;
    int32_t parent = -1;
};

struct Write {
    int32_t id;
    int32_t code;
    String value;
    bool operator==(const Write&) const = default;
};

class Scene : public host::Scene {
  public:
    explicit Scene(Calls& calls) : calls_(calls) {}
    std::map<int32_t, Object> objects;
    std::vector<int32_t> order;  // scene order for SceneGetObjectId
    int32_t current = 100;       // the object of the event (-2)
    std::vector<Write> writes;
    int refreshes = 0;
    struct Replacement {
        String catalog, reference;
        int32_t width, depth, height;
    };
    std::vector<Replacement> replacements;

    int32_t real(int32_t id) const { return id == -2 ? current : id; }

    Variant ObjectGetInfo(int32_t&, int32_t id, int32_t code) override {
        calls_.count("ObjectGetInfo");
        auto& info = objects[real(id)].info;
        auto it = info.find(code);
        return it == info.end() ? String() : it->second;
    }
    Variant ObjectSetInfo(int32_t&, int32_t id, const String& value, int32_t code) override {
        calls_.count("ObjectSetInfo");
        writes.push_back({real(id), code, value});
        objects[real(id)].info[code] = value;
        return Variant();
    }
    Variant ViewRefresh(int32_t&) override {
        calls_.count("ViewRefresh");
        ++refreshes;
        return Variant();
    }
    Variant SceneGetObjectsNb(int32_t&) override {
        calls_.count("SceneGetObjectsNb");
        return static_cast<int32_t>(order.size());
    }
    Variant SceneGetObjectId(int32_t&, int32_t position) override {
        calls_.count("SceneGetObjectId");
        return order.at(position - 1);
    }
    Variant ObjectGetParentId(int32_t&, int32_t id) override {
        calls_.count("ObjectGetParentId");
        return objects[real(id)].parent;
    }
    Variant ObjectGetChildrenNb(int32_t&, int32_t id, int16_t) override {
        calls_.count("ObjectGetChildrenNb");
        return static_cast<int32_t>(objects[real(id)].children.size());
    }
    Variant ObjectGetChildId(int32_t&, int32_t id, int32_t position, int16_t) override {
        calls_.count("ObjectGetChildId");
        return objects[real(id)].children.at(position - 1);
    }
    Variant ObjectGetScript(int32_t&, int32_t) override {
        calls_.count("ObjectGetScript");
        return String();
    }
    Variant EditReplaceSelection(int32_t&, const String& catalog, const String& reference, int16_t,
                                 int32_t width, int32_t depth, int32_t height, int16_t) override {
        calls_.count("EditReplaceSelection");
        replacements.push_back({catalog, reference, width, depth, height});
        return true;
    }

  private:
    Calls& calls_;
};

class Appli : public host::Appli {
  public:
    explicit Appli(Calls& calls) : calls_(calls) {}
    int32_t session = 1;
    String language = u"ESP";
    int32_t dialogHandle = 77;
    std::vector<std::vector<String>> menuItems;
    int ended = 0;

    Variant StartSessionFromCallParams(int32_t&) override {
        calls_.count("StartSessionFromCallParams");
        return session;
    }
    Variant EndSession(int32_t&) override {
        calls_.count("EndSession");
        ++ended;
        return true;
    }
    Variant GetLanguage(int32_t&) override {
        calls_.count("GetLanguage");
        return language;
    }
    Variant GetCallParamsInfo(int32_t&, int32_t code) override {
        calls_.count("GetCallParamsInfo");
        return code == 9 ? dialogHandle : 0;
    }
    Variant InsertMenuItem(int32_t& s, String& command, int16_t a, int16_t b, const String& text,
                           int16_t c, int16_t d, const String& dll, const String& className,
                           const String& method) override {
        calls_.count("InsertMenuItem");
        auto n = [](int v) {
            std::u16string t;
            for (char ch : std::to_string(v)) t += static_cast<char16_t>(ch);
            return t;
        };
        menuItems.push_back({n(s), command, n(a), n(b), text, n(c), n(d), dll, className, method});
        return true;
    }

  private:
    Calls& calls_;
};

class Factory : public host::Factory {
  public:
    Calls calls;
    std::shared_ptr<Appli> appli = std::make_shared<Appli>(calls);
    std::shared_ptr<Scene> scene = std::make_shared<Scene>(calls);
    std::shared_ptr<Catalog> catalog = std::make_shared<Catalog>(calls);

    std::shared_ptr<host::HostObject> CreateObject(const String& progId) override {
        if (progId == host::kProgIdAppli) return appli;
        if (progId == host::kProgIdScene) return scene;
        return catalog;
    }
};

struct Message {
    String text, caption;
    platform::MsgIcon icon;
};

class Platform : public platform::Platform {
  public:
    // section -> value of CatalogsDir in SPACE.INI
    std::map<String, String> profile;
    std::vector<String> textLines;                               // Space.ini read as text
    std::map<String, std::vector<platform::DirEntry>> listings;  // folder & "\" -> entries
    std::map<String, int64_t> files;                             // path -> size
    std::map<int32_t, String> dialogItems;
    std::vector<Message> messages;

    uint32_t GetPrivateProfileString(const String& section, const String&, const String& def,
                                     String& buffer, uint32_t size, const String&) override {
        auto it = profile.find(section);
        buffer = (it == profile.end() ? def : it->second).substr(0, size - 1);
        return static_cast<uint32_t>(buffer.size());
    }
    String GetDlgItemText(int32_t, int32_t id, int32_t size) override {
        return dialogItems[id].substr(0, size - 1);
    }
    std::vector<platform::DirEntry> dir(const String& pattern, bool) override {
        auto it = listings.find(pattern);
        if (it != listings.end()) return it->second;
        if (files.count(pattern)) return {{pattern.substr(pattern.rfind(u'\\') + 1), false}};
        return {};
    }
    int64_t fileLength(const String& path) override {
        auto it = files.find(path);
        if (it == files.end()) throw vb::RuntimeError(53);
        return it->second;
    }
    bool folderExists(const String&) override { return true; }
    void createFolder(const String&) override {}
    std::vector<String> readTextLines(const String&) override { return textLines; }
    void messageBox(const String& text, const String& caption, platform::MsgIcon icon) override {
        messages.push_back({text, caption, icon});
    }
    void beep() override {}
    String moduleFolder() override { return u"C:\\Quorbel"; }
    char16_t decimalSeparator() override { return u'.'; }
    std::unique_ptr<platform::XmlDocument> createXmlDocument() override { return nullptr; }
};

}  // namespace fake
