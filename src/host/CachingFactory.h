#pragma once
// The factory the plug-in's classes use: the shell's own factory, with the objects it hands out
// wrapped so that their reads are kept for the call (ReadMode::Cached). The objects of one call
// share one ReadCache; when the last of them is released every answer is forgotten, so nothing
// survives the call even when an error skips EndSession. The emptied cache is kept for the
// factory's next call, so its storage is not built again for every call. In ReadMode::Literal
// the shell's objects are handed out as they are.
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
    // Where an emptied cache waits for the next call; the call's cache finds it through a weak
    // reference, so a cache that outlived its factory is simply freed.
    struct Spare {
        std::unique_ptr<ReadCache> cache;
    };
    CacheRef sharedCache();
    Factory& inner_;
    ReadMode mode_;
    std::weak_ptr<ReadCache> cache_;  // the current call's
    std::shared_ptr<Spare> spare_ = std::make_shared<Spare>();
};

}  // namespace host
