#pragma once
// The diagnostic components method shared by `Plugin.OnObjectComponentsB` and
// `Wizard.OnObjectComponents`: shows the object's references; false for "forma10".
#include <cstdint>

#include "env/Env.h"

namespace common {

using env::Env;

bool componentesB(Env& env, int32_t lCallParamsBlock);

}  // namespace common
