#pragma once
// Host objects that answer a repeated identical read from memory, for the length of one
// entry-point call (the objects are created per call, and the host's tables may change between
// calls). Scene reads are forgotten at every change of the scene; catalogue reads are kept per
// catalogue file loaded; every write, load, message and replacement still reaches the host.
#include "host/Factory.h"

namespace handlers {

class CachingFactory : public host::Factory {
  public:
    explicit CachingFactory(host::Factory& inner) : inner_(inner) {}
    std::shared_ptr<host::HostObject> CreateObject(const vb::String& progId) override;

  private:
    host::Factory& inner_;
};

}  // namespace handlers
