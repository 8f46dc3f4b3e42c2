// The permission matrix with the catalogue's reads kept, where each listed code is looked up
// once: the same matrix as looking every model's codes up anew, and the host asked the same
// reads in the same order (the literal run's, each the first time), also when a read fails.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "FakeHost.h"
#include "host/CachingFactory.h"
#include "rules/Especiales.h"
#include "rules/Modelos.h"
#include "vb/Strings.h"

namespace {

using host::ReadMode;
using vb::String;

// Table 8's reads, in order; looking up the code "FALLA" raises.
class Tabla8 : public fake::Catalog {
  public:
    using fake::Catalog::Catalog;
    std::vector<std::string> lecturas;
    host::Variant TableGetLineRankFromCode(int32_t& s, int32_t t, int32_t z, int16_t sel,
                                           const String& code, bool flag) override {
        if (t == 8) lecturas.push_back("rank " + vb::toUtf8(code));
        if (code == u"FALLA") throw vb::RuntimeError(440, u"busy");
        return fake::Catalog::TableGetLineRankFromCode(s, t, z, sel, code, flag);
    }
    host::Variant TableGetLineInfo(int32_t& s, int32_t t, int32_t z, int32_t r,
                                   int16_t c) override {
        if (t == 8) lecturas.push_back("line " + std::to_string(r) + "," + std::to_string(c));
        return fake::Catalog::TableGetLineInfo(s, t, z, r, c);
    }
};

struct Juego {
    std::vector<std::vector<bool>> permisos;
    std::vector<std::string> lecturas;  // of table 8, from GenModEsp on
    bool error = false;
};

fake::Line modelo(const String& code, const String& name, const String& script = u"s") {
    return {code, u"", {{1, code}, {3, name}, {4, script}}};
}

Juego juega(ReadMode mode, const String& lista) {
    auto& mv = common::modVariables();
    mv = common::ModVariables{};
    fake::Factory host;
    auto tabla = std::make_shared<Tabla8>(host.calls);
    // Two models share a name; a line without script is no model, and its code is another's
    // (the search by code finds the first).
    tabla->tables[8] = {modelo(u"M1", u"TIBER"),     modelo(u"M2", u"MONZA"),
                        modelo(u"M3", u"URAL"),      modelo(u"M4", u"TIBER"),
                        modelo(u"M2", u"OTRA", u""), modelo(u"M6", u"SOLA")};
    tabla->tables[2] = {{u"MO_EA", u"", {{2, lista}}}};
    host.catalog = tabla;
    host::CachingFactory factory(host, mode);
    host::CatalogRef catalog = host::createCatalog(factory);
    int32_t session = 1;
    rules::InicEsp();
    rules::GenModEsp(session, *catalog);
    Juego juego;
    try {
        rules::InicEspMod(session, *catalog, true, 1);
    } catch (const vb::RuntimeError&) {
        juego.error = true;
    }
    juego.permisos = mv.permisosModelo;
    juego.lecturas = tabla->lecturas;
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
        EXPECT_EQ(guardado.permisos, literal.permisos) << caso;
        EXPECT_EQ(guardado.error, literal.error) << caso;
        EXPECT_EQ(guardado.lecturas, primeras(literal.lecturas)) << caso;
    }
}

}  // namespace
