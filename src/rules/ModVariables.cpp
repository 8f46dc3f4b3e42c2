#include "rules/ModVariables.h"

namespace rules {

ModVariables& modVariables() {
    thread_local ModVariables variables;
    return variables;
}

}  // namespace rules
