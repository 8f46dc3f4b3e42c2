#pragma once
// The host's automation objects Pelmora.Appli, Pelmora.Scene and Pelmora.Catalog as COM
// objects over the simulated host (sim::SimAppli, SimScene, SimCatalog), so every member the
// plug-in calls is counted and recorded by the same recorder as in the native runner.
#include <oaidl.h>

#include <string>

#include "sim/HostState.h"

namespace hostdriver {

// A new COM object for one of the three ProgIDs (a reference for the caller); null otherwise.
// Members the state's fault plan leaves out are missing from it.
IDispatch* createHostObject(const std::wstring& progId, sim::HostState& state);

}  // namespace hostdriver
