#include "Mundos.h"

namespace bench {

namespace {

constexpr int kEncastres = 100;
constexpr int32_t kMueble = 100;

void anadeCatalogo(sim::World& w) {
    auto& c = w.addCatalog(u"C:\\Cat\\cocina.cat", u"ESP");
    auto& t2 = c.tables[2];
    const int claves[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16,
                          17, 18, 19, 21, 22, 23, 24, 27, 28, 37, 38, 43, 44, 46, 47};
    for (int k : claves) {
        const vb::String code = num(k < 10 ? u"TR_000" : u"TR_00", k);
        t2.add({code, u"", {{9, u"Texto " + code}}, u""});
    }
    for (int k : {9001, 9003, 9004, 9006, 9007, 9010, 9011, 9018, 9019, 9020})
        t2.add({num(u"TR_", k), u"", {{9, num(u"Mensaje ", k)}}, u""});
    t2.add({u"ENC1", u"", {{9, u"Profundidad"}}, u""});
    for (const char16_t* code :
         {u"MO_EA", u"MO_EAl", u"MO_EF", u"MO_EAAl", u"MO_EAF", u"MO_EAlF", u"MO_EAAlF"})
        t2.add({code, u"", {{2, u"MO: M01 M02"}}, u""});
    c.tables[3].add({u"", u"B60", {{3, u"600"}, {4, u"560"}, {5, u"720"}}, u""});
    c.tables[8].add({u"M01", u"", {{1, u"M01"}, {3, u"TIBER"}, {4, u"PUERTA"}}, u""});
    c.tables[8].add({u"M02", u"", {{1, u"M02"}, {3, u"MONZA"}, {4, u"PUERTA"}}, u""});
    c.tables[19].add({u"", u"PIC", {}, u"imagen del pilar"});
}

// Every component carries its limit flags (15-17) as the host writes them: "0", not set.
void componente(sim::World& w, int32_t id, int32_t padre, const vb::String& codigo, bool elegido) {
    w.scene.add(id, padre).info = {
        {4, codigo}, {5, u"Componente " + codigo}, {15, u"0"}, {16, u"0"}, {17, u"0"},
        {58, u"1"},  {59, elegido ? u"1" : u"0"}};
}

}  // namespace

sim::World mundoDialogo(int componentes) {
    sim::World w;
    w.files.putFile(u"C:\\Quorbel\\SPACE.INI", u"[Local]\r\nCatalogsDir=C:\\Cat\r\n");
    anadeCatalogo(w);
    auto& mueble = w.scene.add(kMueble);
    mueble.info = {{0, u"cocina"}, {2, u"40"},   {7, u"B60"},  {8, u"B60-TIBER"},
                   {12, u"600"},   {13, u"560"}, {14, u"720"}, {15, u"1"},
                   {16, u"1"},     {17, u"1"},   {53, u""},    {64, u"TIBER"}};
    mueble.script = u"LMIN=300,LMAX=1200,HMIN=500,HMAX=900,PMIN=300,PMAX=700)";
    int32_t id = 1000;
    for (int r = 0; r < kEncastres; ++r) {
        componente(w, id, kMueble, num(u"P_CJ", r), r % 2 == 0);
        w.scene.find(id++)->script = u"/// PIC ENC1(MIN=50,MAX=@L)";
    }
    componente(w, id++, kMueble, u"COR_DG", false);
    // The rest in groups of four: a front with two fittings and a fixing below the first.
    const char16_t* const familias[] = {u"CS_", u"FR_", u"EQ_", u"O_"};
    for (int n = kEncastres + 1; n < componentes; n += 4) {
        const int32_t grupo = id;
        const vb::String familia = familias[(n / 4) % 4];
        componente(w, id++, kMueble, num(familia + u"PIEZA", n), n % 3 == 0);
        if (n + 1 < componentes) componente(w, id++, grupo, num(familia + u"HIJO", n), false);
        if (n + 2 < componentes) componente(w, id++, grupo, num(familia + u"HIJO", n + 1), true);
        if (n + 3 < componentes) componente(w, id++, grupo + 1, num(familia + u"NIETO", n), true);
    }
    return w;
}

}  // namespace bench
