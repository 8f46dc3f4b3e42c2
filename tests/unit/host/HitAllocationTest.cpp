// A kept answer costs no allocation: every kind of kept read, asked again, allocates nothing
// (answers longer than a string object holds by itself are shared, keys are looked up by
// view). Counted by this test binary's own operator new.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <functional>
#include <new>

#include "../OpenCall.h"

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
const String kPath = u"C:\\Cat\\a.cat";

sim::World mundo() {
    sim::World world;
    world.application.language = kLong;
    world.application.dictionary[u"ENG"][kLong] = kLong + u" (ENG)";
    world.addCatalog(kPath).tables[2].add({u"TR_0001", u"", {{9, kLong}}, u""});
    world.scene.add(100).info[7] = kLong;
    world.scene.add(101, 100);
    return world;
}

TEST(HitAllocation, AKeptAnswerAllocatesNothing) {
    tests::OpenCall call(mundo(), kPath, host::ReadMode::Cached);
    auto& mv = common::modVariables();
    host::Appli& appli = host::use(mv.miAppli);
    host::Scene& scene = host::use(mv.miScene);
    host::Catalog& catalog = host::use(mv.miCatalog);
    int32_t& s = mv.miSessionId;
    const String code = u"TR_0001";
    const String language = u"ENG";
    const std::pair<const char*, std::function<void()>> reads[] = {
        {"GetLanguage", [&] { appli.GetLanguage(s); }},
        {"ObjectGetInfo", [&] { scene.ObjectGetInfo(s, 100, 7); }},
        {"ObjectGetChildId", [&] { scene.ObjectGetChildId(s, 100, 1, 0); }},
        {"TableGetLineRankFromCode",
         [&] { catalog.TableGetLineRankFromCode(s, 2, 0, 1, code, false); }},
        {"TableGetLineInfo", [&] { catalog.TableGetLineInfo(s, 2, 0, 1, 9); }},
        {"DicoGetStringFromKey", [&] { catalog.DicoGetStringFromKey(s, kLong, language); }},
    };
    long missed = 0;  // the first reads keep long texts: proof that the count sees them
    for (const auto& [member, read] : reads) {
        const long first = allocations;
        read();  // kept
        missed += allocations - first;
        const long before = allocations;
        for (int i = 0; i < 100; ++i) read();
        EXPECT_EQ(allocations - before, 0) << member;
        EXPECT_EQ(call.look()["hostCalls"].value(member, 0), 1) << member;
    }
    EXPECT_GT(missed, 0);
}

}  // namespace
