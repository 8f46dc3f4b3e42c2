#pragma once
// The preprocessor's side of HostMembers.h: a member's arguments, written there as a list of
// (shape, name) pairs, turned into a parameter list, an argument list, shapes or key parts.

#define QUORBEL_CAT(a, b) QUORBEL_CAT_(a, b)
#define QUORBEL_CAT_(a, b) a##b
#define QUORBEL_COMMA() ,
#define QUORBEL_NOTHING()

// How many arguments, up to ten (the most a host member takes).
#define QUORBEL_COUNT(...) QUORBEL_COUNT_(__VA_ARGS__, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0)
#define QUORBEL_COUNT_(a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, n, ...) n

// m applied to every pair, sep() between two; nothing for no pairs.
#define QUORBEL_EACH(m, sep, ...) \
    __VA_OPT__(QUORBEL_CAT(QUORBEL_EACH_, QUORBEL_COUNT(__VA_ARGS__))(m, sep, __VA_ARGS__))
#define QUORBEL_EACH_1(m, sep, p) m p
#define QUORBEL_EACH_2(m, sep, p, ...) m p sep() QUORBEL_EACH_1(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_3(m, sep, p, ...) m p sep() QUORBEL_EACH_2(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_4(m, sep, p, ...) m p sep() QUORBEL_EACH_3(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_5(m, sep, p, ...) m p sep() QUORBEL_EACH_4(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_6(m, sep, p, ...) m p sep() QUORBEL_EACH_5(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_7(m, sep, p, ...) m p sep() QUORBEL_EACH_6(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_8(m, sep, p, ...) m p sep() QUORBEL_EACH_7(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_9(m, sep, p, ...) m p sep() QUORBEL_EACH_8(m, sep, __VA_ARGS__)
#define QUORBEL_EACH_10(m, sep, p, ...) m p sep() QUORBEL_EACH_9(m, sep, __VA_ARGS__)

#define QUORBEL_PARAM_(s, n) ::host::shape::s n
#define QUORBEL_ARG_(s, n) n
#define QUORBEL_TYPE_(s, n) ::host::shape::s
#define QUORBEL_SHAPE_(s, n) ::host::Shape::s

// `int32_t& sessionId, int32_t objectId`, `sessionId, objectId`, and so on, for all the pairs.
#define QUORBEL_PARAMS(...) QUORBEL_EACH(QUORBEL_PARAM_, QUORBEL_COMMA, __VA_ARGS__)
#define QUORBEL_ARGS(...) QUORBEL_EACH(QUORBEL_ARG_, QUORBEL_COMMA, __VA_ARGS__)
#define QUORBEL_TYPES(...) QUORBEL_EACH(QUORBEL_TYPE_, QUORBEL_COMMA, __VA_ARGS__)
#define QUORBEL_SHAPES(...) QUORBEL_EACH(QUORBEL_SHAPE_, QUORBEL_COMMA, __VA_ARGS__)

// The same for the pairs after the session id: what a read's answer depends on.
#define QUORBEL_AFTER_SESSION(m, sep, session, ...) QUORBEL_EACH(m, sep, __VA_ARGS__)
