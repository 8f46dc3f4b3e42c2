// A kept answer costs no allocation: every kind of kept read, asked again, allocates nothing
// (answers longer than a string object holds by itself are shared, keys are looked up by
// view). Counted by this test binary's own operator new.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <functional>
#include <new>

#include "../rules/FakeHost.h"
#include "host/CachingFactory.h"

namespace {

std::atomic<long> allocations{0};

}  // namespace

// GCC takes the free() of memory this operator new got from malloc for a mismatch.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif

void* operator new(std::size_t size) {
    ++allocations;
    if (void* p = std::malloc(size ? size : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}

namespace {

using vb::String;

const String kLong = u"a text well beyond any string object's own room, 64 units long...";

TEST(HitAllocation, AKeptAnswerAllocatesNothing) {
    fake::Factory host;
    host.appli->language = kLong;
    host.scene->objects[100].info[7] = kLong;
    host.scene->objects[100].children = {101};
    host.catalog->tables[2] = {{u"TR_0001", u"", {{9, kLong}}}};
    host.catalog->dictionary[kLong] = kLong + u" (ENG)";
    host::CachingFactory factory(host, host::ReadMode::Cached);
    auto appli = host::createAppli(factory);
    auto scene = host::createScene(factory);
    auto catalog = host::createCatalog(factory);
    int32_t s = 1;
    const String code = u"TR_0001";
    const String language = u"ENG";
    const std::pair<const char*, std::function<void()>> reads[] = {
        {"GetLanguage", [&] { appli->GetLanguage(s); }},
        {"ObjectGetInfo", [&] { scene->ObjectGetInfo(s, 100, 7); }},
        {"ObjectGetChildId", [&] { scene->ObjectGetChildId(s, 100, 1, 0); }},
        {"TableGetLineRankFromCode",
         [&] { catalog->TableGetLineRankFromCode(s, 2, 0, 1, code, false); }},
        {"TableGetLineInfo", [&] { catalog->TableGetLineInfo(s, 2, 0, 1, 9); }},
        {"DicoGetStringFromKey", [&] { catalog->DicoGetStringFromKey(s, kLong, language); }},
    };
    for (const auto& [member, read] : reads) {
        read();  // kept
        const long before = allocations;
        for (int i = 0; i < 100; ++i) read();
        EXPECT_EQ(allocations - before, 0) << member;
        EXPECT_EQ(host.calls.byMember[member], 1) << member;
    }
}

}  // namespace
