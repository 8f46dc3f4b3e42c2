#include "sim/SimHost.h"
#include "vb/Errors.h"
#include "vb/Strings.h"

namespace sim {

std::shared_ptr<host::HostObject> SimFactory::CreateObject(const String& progId) {
    if (s_.faults.refuses(progId)) throw vb::RuntimeError(vb::err::kCantCreateObject);
    if (vb::equalText(progId, host::kProgIdAppli)) return std::make_shared<SimAppli>(s_);
    if (vb::equalText(progId, host::kProgIdScene)) return std::make_shared<SimScene>(s_);
    if (vb::equalText(progId, host::kProgIdCatalog)) return std::make_shared<SimCatalog>(s_);
    throw vb::RuntimeError(vb::err::kCantCreateObject);
}

}  // namespace sim
