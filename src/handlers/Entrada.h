#pragma once
// The diagnostic components method shared by `Plugin.OnObjectComponentsB` and
// `Wizard.OnObjectComponents`: shows the object's references; false for "forma10".
#include <cstdint>

#include "handlers/Env.h"

namespace handlers {

bool componentesB(Env& env, int32_t lCallParamsBlock);

}  // namespace handlers
