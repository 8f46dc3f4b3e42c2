#pragma once
// The small host and platform the cut-out document target plays the dialog on (the unit tests
// use the simulated host): scene objects with information codes, children and scripts; table 2
// texts; a record of writes, messages and beeps.
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "common/ModVariables.h"
#include "dialog/frmEspEnc.h"
#include "host/Factory.h"
#include "native/XmlDocumentLibxml.h"
#include "platform/Platform.h"

namespace fakedlg {

using vb::String;
using vb::Variant;

struct Objeto {
    std::map<int32_t, String> info;
    std::vector<int32_t> hijos;
    String script;
};

struct Mundo {
    std::map<int32_t, Objeto> objetos;                             // -2 is the edited object
    std::map<String, String> textos;                               // table 2: code -> column 9
    std::vector<std::tuple<int32_t, int32_t, String>> escrituras;  // id, code, value
    std::vector<std::pair<String, String>> mensajes;               // text, caption
    int pitidos = 0;
};

class Scene : public host::Scene {
  public:
    explicit Scene(Mundo& m) : m_(m) {}
    Variant ObjectGetInfo(int32_t&, int32_t id, int32_t code) override {
        return m_.objetos[id].info[code];
    }
    Variant ObjectSetInfo(int32_t&, int32_t id, const String& v, int32_t code) override {
        m_.objetos[id].info[code] = v;
        m_.escrituras.emplace_back(id, code, v);
        return Variant();
    }
    Variant ViewRefresh(int32_t&) override { return Variant(); }
    Variant SceneGetObjectsNb(int32_t&) override { return int32_t{0}; }
    Variant SceneGetObjectId(int32_t&, int32_t) override { return int32_t{0}; }
    Variant ObjectGetParentId(int32_t&, int32_t) override { return int32_t{-1}; }
    Variant ObjectGetChildrenNb(int32_t&, int32_t id, int16_t) override {
        return static_cast<int32_t>(m_.objetos[id].hijos.size());
    }
    Variant ObjectGetChildId(int32_t&, int32_t id, int32_t pos, int16_t) override {
        return m_.objetos[id].hijos.at(pos - 1);
    }
    Variant ObjectGetScript(int32_t&, int32_t id) override { return m_.objetos[id].script; }
    Variant EditReplaceSelection(int32_t&, const String&, const String&, int16_t, int32_t, int32_t,
                                 int32_t, int16_t) override {
        return Variant();
    }

  private:
    Mundo& m_;
};

class Catalog : public host::Catalog {
  public:
    explicit Catalog(Mundo& m) : m_(m) {}
    Variant FileLoad(int32_t&, const String&) override { return true; }
    Variant GetInfo(int32_t&, int32_t) override { return String(u"ESP"); }
    Variant DicoGetStringFromKey(int32_t&, const String& t, const String&) override { return t; }
    Variant TableGetLinesNb(int32_t&, int32_t, int16_t) override { return int16_t{0}; }
    Variant TableGetLineRankFromCode(int32_t&, int32_t, int32_t, int16_t, const String& code,
                                     bool) override {
        int32_t rank = 1;
        for (const auto& t : m_.textos) {
            if (t.first == code) return rank;
            ++rank;
        }
        return int32_t{0};
    }
    Variant TableGetLineRankFromName(int32_t&, int32_t, int32_t, int16_t, const String&,
                                     bool) override {
        return int32_t{0};
    }
    Variant TableGetLineInfo(int32_t&, int32_t, int32_t, int32_t rank, int16_t) override {
        int32_t r = 1;
        for (const auto& t : m_.textos)
            if (r++ == rank) return t.second;
        return String();
    }
    Variant FileExportResource(int32_t&, int32_t, const String&) override { return false; }

  private:
    Mundo& m_;
};

class Appli : public host::Appli {
  public:
    Variant StartSessionFromCallParams(int32_t&) override { return int32_t{1}; }
    Variant EndSession(int32_t&) override { return true; }
    Variant GetLanguage(int32_t&) override { return String(u"esp"); }
    Variant GetCallParamsInfo(int32_t&, int32_t) override { return int32_t{0}; }
    Variant InsertMenuItem(int32_t&, String&, int16_t, int16_t, const String&, int16_t, int16_t,
                           const String&, const String&, const String&) override {
        return true;
    }
};

class Platform : public platform::Platform {
  public:
    explicit Platform(Mundo& m) : m_(m) {}
    uint32_t GetPrivateProfileString(const String&, const String&, const String&, String&, uint32_t,
                                     const String&) override {
        return 0;
    }
    String GetDlgItemText(int32_t, int32_t, int32_t) override { return u""; }
    std::vector<platform::DirEntry> dir(const String&, bool) override { return {}; }
    int64_t fileLength(const String&) override { return 0; }
    bool folderExists(const String&) override { return true; }
    void createFolder(const String&) override {}
    std::vector<String> readTextLines(const String&) override { return {}; }
    void messageBox(const String& text, const String& caption, platform::MsgIcon) override {
        m_.mensajes.emplace_back(text, caption);
    }
    void beep() override { ++m_.pitidos; }
    String moduleFolder() override { return u"C:\\Quorbel"; }
    char16_t decimalSeparator() override { return u'.'; }
    std::unique_ptr<platform::XmlDocument> createXmlDocument() override {
        return std::make_unique<native::LibxmlDocument>();
    }

  private:
    Mundo& m_;
};

class Factory : public host::Factory {
  public:
    std::shared_ptr<host::HostObject> CreateObject(const String&) override { return nullptr; }
};

// A form on the fake host, with the shared context pointing at it; not loaded.
struct Banco {
    Mundo mundo;
    Platform plataforma{mundo};
    Factory fabrica;
    env::Env env{plataforma, fabrica, nullptr};
    std::unique_ptr<dialog::frmEspEnc> form;

    Banco() {
        auto& mv = common::modVariables();
        mv = common::ModVariables{};
        mv.miAppli = std::make_shared<Appli>();
        mv.miScene = std::make_shared<Scene>(mundo);
        mv.miCatalog = std::make_shared<Catalog>(mundo);
        mv.miSessionId = 1;
        mv.idsHijosEsp.fill(-2);
        form = std::make_unique<dialog::frmEspEnc>(env);
    }
    ~Banco() { common::modVariables() = common::ModVariables{}; }
    dialog::frmEspEnc& f() { return *form; }
};

}  // namespace fakedlg
