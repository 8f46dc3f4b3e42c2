#pragma once
// The factory the plug-in's classes use: the shell's own factory, with the objects it hands out
// wrapped so that their reads are kept for the call (ReadMode::Cached). The objects of one call
// share one ReadCache; it is freed when the last of them is released, so nothing survives the
// call even when an error skips EndSession. In ReadMode::Literal the shell's objects are handed
// out as they are.
#include <memory>

#include "host/CachedHost.h"
#include "host/Factory.h"
#include "host/ReadMode.h"

namespace host {

class CachingFactory : public Factory {
  public:
    CachingFactory(Factory& inner, ReadMode mode) : inner_(inner), mode_(mode) {}
    std::shared_ptr<HostObject> CreateObject(const String& progId) override;
    ReadMode mode() const { return mode_; }

  private:
    CacheRef sharedCache();
    Factory& inner_;
    ReadMode mode_;
    std::weak_ptr<ReadCache> cache_;
};

}  // namespace host
