#pragma once
// Whether the change of one dimension of a cabinet may stay: exception lists first, then the
// door model's permission. Reads only the rule tables of `mv`.
#include <cstdint>

#include "common/ModVariables.h"

namespace rules {

using vb::String;

constexpr int32_t kCodigoAncho = 12;
constexpr int32_t kCodigoFondo = 13;
constexpr int32_t kCodigoAlto = 14;

// x width, y depth, z height; first of each pair the object's value, second the catalogue's.
struct Medidas {
    String x1, x2, y1, y2, z1, z2;
};

bool procesaDimension(const common::ModVariables& mv, int32_t dimension, const Medidas& medidas,
                      const String& ref, const String& model, int32_t idPas);

}  // namespace rules
