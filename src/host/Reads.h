#pragma once
// The answers kept for one domain (a catalogue file, or the scene with the application's
// language): one table per reading member, and the texts of their keys.
#include <tuple>

#include "host/KeptAnswers.h"
#include "host/ReadKeys.h"

namespace host {

#define QUORBEL_TABLE_IF_Asked(member)
#define QUORBEL_TABLE_IF_SceneWrite(member)
#define QUORBEL_TABLE_IF_FileLoad(member)
#define QUORBEL_TABLE_IF_Session(member)
#define QUORBEL_TABLE_IF_SceneRead(member) , KeptAnswers<keys::member>
#define QUORBEL_TABLE_IF_FileRead(member) , KeptAnswers<keys::member>
#define QUORBEL_READ_TABLE(object, member, keeping, ...) QUORBEL_TABLE_IF_##keeping(member)

class Reads {
  public:
    // The kept answer for `key`, or `ask`'s (kept unless it raises).
    template <class Key, class Ask>
    Variant read(const Key& key, Ask&& ask) {
        return std::get<KeptAnswers<Key>>(parts_).read(key, std::get<TextStore>(parts_), ask);
    }

    // Forgets every answer; the memory stays for the next ones.
    void clear() noexcept {
        std::apply([](auto&... part) { (part.clear(), ...); }, parts_);
    }

  private:
    std::tuple<TextStore QUORBEL_HOST_MEMBERS(QUORBEL_READ_TABLE)> parts_;
};

#undef QUORBEL_READ_TABLE
#undef QUORBEL_TABLE_IF_Asked
#undef QUORBEL_TABLE_IF_SceneWrite
#undef QUORBEL_TABLE_IF_FileLoad
#undef QUORBEL_TABLE_IF_Session
#undef QUORBEL_TABLE_IF_SceneRead
#undef QUORBEL_TABLE_IF_FileRead

}  // namespace host
