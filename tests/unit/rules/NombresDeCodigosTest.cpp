// The permission matrix with the catalogue's reads kept, where each listed code is looked up
// once: the same matrix as looking every model's codes up anew, and the host asked the same
// reads in the same order (the literal run's, each the first time), also when a read fails.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common/ModVariables.h"
#include "host/CachingFactory.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "sim/Player.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace {

using host::ReadMode;
using vb::String;

const String kRuta = u"C:\\Cat\\a.cat";

// The simulated catalogue, noting table 8's reads in order; looking up the code "FALLA" makes
// the host raise.
class Tabla8 : public sim::SimCatalog {
  public:
    Tabla8(sim::HostState& state, std::vector<std::string>& lecturas)
        : sim::SimCatalog(state), state_(state), lecturas_(lecturas) {}
    host::Variant TableGetLineRankFromCode(int32_t& s, int32_t t, int32_t z, int16_t sel,
                                           const String& code, bool flag) override {
        if (t == 8) lecturas_.push_back("rank " + vb::toUtf8(code));
        if (code == u"FALLA") state_.faults.counted.push_back({state_.hostCallsMade + 1});
        return sim::SimCatalog::TableGetLineRankFromCode(s, t, z, sel, code, flag);
    }
    host::Variant TableGetLineInfo(int32_t& s, int32_t t, int32_t z, int32_t r,
                                   int16_t c) override {
        if (t == 8) lecturas_.push_back("line " + std::to_string(r) + "," + std::to_string(c));
        return sim::SimCatalog::TableGetLineInfo(s, t, z, r, c);
    }

  private:
    sim::HostState& state_;
    std::vector<std::string>& lecturas_;
};

// The simulated host whose catalogue objects note their reads.
class Anfitrion : public host::Factory {
  public:
    explicit Anfitrion(sim::Simulation& simulation) : sim_(simulation) {}
    std::shared_ptr<host::HostObject> CreateObject(const String& progId) override {
        if (!vb::equalText(progId, host::kProgIdCatalog))
            return sim_.factory().CreateObject(progId);
        return std::make_shared<Tabla8>(sim_.state(), lecturas);
    }
    std::vector<std::string> lecturas;

  private:
    sim::Simulation& sim_;
};

// Two models share a name; a line without script is no model, and its code is another's
// (the search by code finds the first).
sim::World mundo(const String& lista) {
    sim::World world;
    auto& tables = world.addCatalog(kRuta, u"ESP").tables;
    for (const auto& [code, name, script] :
         {std::tuple{u"M1", u"TIBER", u"s"}, std::tuple{u"M2", u"MONZA", u"s"},
          std::tuple{u"M3", u"URAL", u"s"}, std::tuple{u"M4", u"TIBER", u"s"},
          std::tuple{u"M2", u"OTRA", u""}, std::tuple{u"M6", u"SOLA", u"s"}})
        tables[8].add({code, u"", {{1, code}, {3, name}, {4, script}}, u""});
    tables[2].add({u"MO_EA", u"", {{2, lista}}, u""});
    return world;
}

struct Juego {
    std::vector<std::vector<bool>> permisos;
    std::vector<std::string> lecturas;  // of table 8, from GenModEsp on
    bool error = false;
};

Juego juega(ReadMode mode, const String& lista) {
    auto& mv = common::modVariables();
    mv = common::ModVariables{};
    sim::Simulation simulation(mundo(lista));
    Anfitrion anfitrion(simulation);
    host::CachingFactory factory(anfitrion, mode);
    host::CatalogRef catalog = host::createCatalog(factory);
    int32_t session = 1;
    catalog->FileLoad(session, kRuta);
    rules::InicEsp();
    rules::GenModEsp(session, *catalog);
    Juego juego;
    try {
        rules::InicEspMod(session, *catalog, true, 1);
    } catch (const vb::RuntimeError&) {
        juego.error = true;
    }
    juego.permisos = mv.permisosModelo;
    juego.lecturas = anfitrion.lecturas;
    mv = common::ModVariables{};
    return juego;
}

// Each read the first time it is asked.
std::vector<std::string> primeras(const std::vector<std::string>& lecturas) {
    std::vector<std::string> vistas;
    for (const auto& l : lecturas)
        if (std::find(vistas.begin(), vistas.end(), l) == vistas.end()) vistas.push_back(l);
    return vistas;
}

TEST(NombresDeCodigos, KeptReadsGiveTheLiteralMatrixAndReads) {
    const char16_t* const listas[] = {
        u"MO: M3 M1",           // stops once every model is named or the list ends
        u"MO: M1 M1 M6",        // a code twice
        u"MO:  M9 M2 X M4",     // an empty piece, unknown codes, a name two lines share
        u"MO: M6",              // names the last model only
        u"MO: M2 M3 M1 M4 M6",  // every model named, in another order
        u"MO: M1 FALLA M3",     // a read that fails midway
        u"MO: FALLA",           // the first read fails
        u"MO:",                 // no code at all
    };
    for (const char16_t* lista : listas) {
        const Juego literal = juega(ReadMode::Literal, lista);
        const Juego guardado = juega(ReadMode::Cached, lista);
        const std::string caso = vb::toUtf8(lista);
        EXPECT_EQ(literal.error, caso.find("FALLA") != std::string::npos) << caso;
        EXPECT_EQ(guardado.permisos, literal.permisos) << caso;
        EXPECT_EQ(guardado.error, literal.error) << caso;
        EXPECT_EQ(guardado.lecturas, primeras(literal.lecturas)) << caso;
    }
}

}  // namespace
