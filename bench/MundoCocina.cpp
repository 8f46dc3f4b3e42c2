#include <string>

#include "Mundos.h"

namespace bench {

namespace {

constexpr int kCatalogos = 3;
constexpr int kCodigosPorRegla = 50;
constexpr int kArticulos = 20;

void anadeCatalogo(sim::World& w, int k, int modelos) {
    auto& c = w.addCatalog(num(u"C:\\Cat\\cocina", k) + u".cat", u"ESP");
    auto& t2 = c.tables[2];
    t2.add({u"TR_9001", u"", {{9, u"Atención"}}, u""});
    t2.add({u"TR_9014", u"", {{9, u"Medidas no permitidas."}}, u""});
    t2.add({u"TR_9015", u"", {{9, u"Medida no permitida."}}, u""});
    t2.add({u"TR_9016", u"", {{9, u"Se ha restaurado la medida."}}, u""});
    t2.add({u"TR_9017", u"", {{9, u"Muebles rechazados:"}}, u""});
    const char16_t* codigos[] = {u"MO_EA",  u"MO_EAl",  u"MO_EF",   u"MO_EAAl",
                                 u"MO_EAF", u"MO_EAlF", u"MO_EAAlF"};
    for (int kind = 0; kind < 7; ++kind) {
        vb::String regla = u"MO:";
        for (int i = 0; i < kCodigosPorRegla; ++i) regla += num(u" M", (i * 3 + kind) % modelos);
        t2.add({codigos[kind], u"", {{2, regla}}, u""});
    }
    t2.add({u"EX_EA", u"", {{2, u"EX: R0 R7 R14"}}, u""});
    for (int a = 0; a < kArticulos; ++a) {
        c.tables[3].add({u"", num(u"A", a), {{3, u"600"}, {4, u"560"}, {5, u"720"}}, u""});
    }
    for (int m = 0; m < modelos; ++m) {
        const vb::String code = num(u"M", m);
        c.tables[8].add({code, u"", {{1, code}, {3, num(u"MODELO ", m)}, {4, u"s"}}, u""});
    }
}

}  // namespace

vb::String num(int n) {
    vb::String t;
    for (char c : std::to_string(n)) t += static_cast<char16_t>(c);
    return t;
}

vb::String num(vb::String prefix, int n) {
    prefix += num(n);
    return prefix;
}

sim::World mundoCocina(int muebles, int modelos, bool alterna) {
    sim::World w;
    w.files.putFile(u"C:\\Quorbel\\SPACE.INI", u"[Local]\r\nCatalogsDir=C:\\Cat\r\n");
    for (int k = 0; k < kCatalogos; ++k) anadeCatalogo(w, k, modelos);
    for (int i = 0; i < muebles; ++i) {
        const int k = alterna ? i % kCatalogos : i * kCatalogos / muebles;
        const int32_t id = 10 + 10 * i;
        auto& o = w.scene.add(id);
        o.info = {{0, num(u"cocina", k)},
                  {2, num(40 + k)},
                  {7, num(u"A", i % kArticulos)},
                  {8, num(u"R", i)},
                  {12, i % 5 == 0 ? u"650" : u"600"},
                  {13, u"560"},
                  {14, u"720"},
                  {64, num(u"MODELO ", i % modelos)}};
        w.scene.add(id + 1, id).info = {{4, num(u"EA_", i)}};
    }
    return w;
}

}  // namespace bench
