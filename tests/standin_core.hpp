// What a test sets and asks of the stand-in for the companion core library.
#pragma once

#include <atomic>
#include <cstdint>

extern "C" {
extern std::atomic<int> standinThreads;     // what ownGetNumThreads answers
extern std::atomic<int> standinLater;       // and from the second question on, where this is not 0
extern std::atomic<int> standinCache;       // what vorGetMaxCacheSizeB stores, or fails instead where this is 0
extern std::atomic<int> standinCacheAsked;  // how often it was asked for that
extern std::atomic<int> standinAsked;       // how often it was asked
extern char standinLoadCalls[64];           // the calls made while libraries were loaded, a letter each
}

// How often a call asks for the threads where there are that many; outside of it there is one.
template <class Call>
int askedDuring(int threads, int later, const Call& call)
{
    standinThreads = threads, standinLater = later, standinAsked = 0;
    call();
    standinThreads = 1, standinLater = 0;
    return standinAsked;
}
template <class Call>
int askedDuring(int threads, const Call& call)
{
    return askedDuring(threads, 0, call);
}
