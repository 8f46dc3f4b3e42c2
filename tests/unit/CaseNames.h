#pragma once
// Names of the cases of parameterised tests: valid for gtest (letters, digits and "_"),
// readable in `ctest -N` and --gtest_list_tests. gtest prints a parameter it has no printer
// for as raw bytes, so each case type gets a PrintTo that prints what names it.
#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace casos {

// `text` with every run of other characters turned into one "_", none at either end.
inline std::string nombreValido(const std::string& text) {
    std::string nombre;
    for (unsigned char c : text) {
        if (std::isalnum(c))
            nombre += static_cast<char>(c);
        else if (!nombre.empty() && nombre.back() != '_')
            nombre += '_';
    }
    while (!nombre.empty() && nombre.back() == '_') nombre.pop_back();
    return nombre.empty() ? "unnamed" : nombre;
}

// Name generator for cases that carry their own `name`.
struct PorNombre {
    template <class Case>
    std::string operator()(const testing::TestParamInfo<Case>& info) const {
        return nombreValido(info.param.name);
    }
};

}  // namespace casos
