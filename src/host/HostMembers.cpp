#include "host/HostMembers.h"

namespace host {

const char* memberName(Member member) {
    static constexpr const char* kNames[] = {
#define QUORBEL_MEMBER_NAME(object, member, ...) #member,
        QUORBEL_HOST_MEMBERS(QUORBEL_MEMBER_NAME)
#undef QUORBEL_MEMBER_NAME
    };
    return kNames[static_cast<size_t>(member)];
}

}  // namespace host
