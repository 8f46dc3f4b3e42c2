#pragma once
// The dialog form on the simulated host, in an open call on cabinet 100 (the object -2) whose
// catalogue is loaded: built, not loaded, so that each test sets the controls and objects it
// needs and calls the procedure it checks.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "../OpenCall.h"
#include "dialog/frmEspEnc.h"

namespace banco {

using vb::String;

inline const String kCatalogo = u"C:\\Cat\\cocina.cat";

// Cabinet 100 and its catalogue, whose table 2 holds `textos` (code -> column 9).
inline sim::World mundo(const std::map<String, String>& textos = {}) {
    sim::World world;
    auto& catalogo = world.addCatalog(kCatalogo, u"ESP");
    for (const auto& [code, text] : textos) catalogo.tables[2].add({code, u"", {{9, text}}, u""});
    world.scene.add(100);
    return world;
}

struct Banco : tests::OpenCall {
    explicit Banco(sim::World world = mundo()) : OpenCall(std::move(world), kCatalogo) {
        common::modVariables().idsHijosEsp.fill(-2);
        form = std::make_unique<dialog::frmEspEnc>(env);
    }
    dialog::frmEspEnc& f() { return *form; }
    // Object `id`, added under `padre` when the scene lacks it.
    sim::SceneObject& objeto(int32_t id, int32_t padre = 100) {
        sim::SceneObject* o = world().scene.find(id);
        return o ? *o : world().scene.add(id, padre);
    }

    // The texts of the message boxes shown since the last look.
    std::vector<std::string> mensajes() {
        std::vector<std::string> textos;
        for (const auto& e : events("messageBox")) textos.push_back(e["text"]);
        return textos;
    }

    std::unique_ptr<dialog::frmEspEnc> form;
};

}  // namespace banco
