#include "wizard/Fabricantes.h"

#include <algorithm>

namespace wizard {

const Fabricante& fabricanteForma() {
    static const Fabricante f{31,
                              u"\\Catalogs\\forma10.cat",
                              u"forma10.cat",
                              4,
                              {u"0320", u"0446", u"0720", u"0746", u"1927", u"1928"},
                              {u"MIKONOS", u"MONZA", u"MIAMI", u"TIBER", u"TURIA", u"CORCEGA"},
                              true,
                              {u"MIKONOS", u"MONZA", u"MIAMI"}};
    return f;
}

const Fabricante& fabricanteXey() {
    static const Fabricante f{
        32,
        u"\\Catalogs\\xey10.cat",
        u"xey08.cat",  // the replacement names the older catalogue
        4,
        {u"0320", u"0446", u"0720", u"0746", u"1927", u"1928", u"2501", u"2509", u"2515"},
        {u"CAPRI", u"MARBELLA", u"MURANO", u"AVANT", u"MADEIRA"},
        false,
        {}};
    return f;
}

const Fabricante& fabricanteVegasa() {
    static const Fabricante f{33,
                              u"\\Catalogs\\vegasa10.cat",
                              u"vegasa10.cat",
                              3,
                              {u"BZ0", u"BZ8", u"MZ0", u"MZ8", u"KBR", u"BBR", u"CDR", u"BAR"},
                              {u"MUNICH", u"MALTA", u"BALI", u"KORFU", u"DAKAR"},
                              false,
                              {}};
    return f;
}

bool enLista(const String& value, const std::vector<String>& list) {
    return std::find(list.begin(), list.end(), value) != list.end();
}

}  // namespace wizard
