#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace tavrel {

/// Times the work, and in turn with it the reference that bounds it. The counter "ratio" is work by reference, each at
/// its fastest, which other programs on the machine disturb least. Between turns comes what is not timed, such as
/// dropping what the work made.
template <class Work, class Reference, class Between>
void againstReference(benchmark::State& state, Work work, Reference reference, Between between) {
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;
    Seconds fastestWork = Seconds::max();
    Seconds fastestReference = Seconds::max();
    for (auto turn : state) {
        const auto start = Clock::now();
        work();
        const auto middle = Clock::now();
        reference();
        fastestReference = std::min<Seconds>(fastestReference, Clock::now() - middle);
        fastestWork = std::min<Seconds>(fastestWork, middle - start);
        state.SetIterationTime(Seconds(middle - start).count());
        between();
    }
    state.counters["ratio"] = fastestWork / fastestReference;
    state.counters["work_ms"] = 1000 * fastestWork.count();
    state.counters["reference_ms"] = 1000 * fastestReference.count();
}

template <class Work, class Reference>
void againstReference(benchmark::State& state, Work work, Reference reference) {
    againstReference(state, work, reference, [] {});
}

}  // namespace tavrel
