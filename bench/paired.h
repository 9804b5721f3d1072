#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

/// Compares a subject with a peer so that the ratio holds on a noisy machine: both run back to back in alternating
/// order, and the median of the ratios of the pairs is the counter "ratio" (below 1, the subject is faster). Batch what
/// takes less than 100 microseconds.
namespace quillfern::bench {

template <class Work>
double seconds_of(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Use with `->UseManualTime()`; the reported time is the subject's. `prepare` runs before each pair, outside the
/// clock.
template <class Subject, class Peer, class Prepare>
void run_paired(benchmark::State& state, Subject&& subject, Peer&& peer, Prepare&& prepare)
{
    std::vector<double> ratios;
    std::vector<double> peer_seconds;
    prepare();
    subject();
    peer();
    for (auto _ : state) {
        prepare();
        const bool subject_first = ratios.size() % 2 == 0;
        const double early_peer = subject_first ? 0 : seconds_of(peer);
        const double own = seconds_of(subject);
        const double theirs = subject_first ? seconds_of(peer) : early_peer;
        ratios.push_back(own / theirs);
        peer_seconds.push_back(theirs);
        state.SetIterationTime(own);
    }
    state.counters["ratio"] = median(ratios);
    state.counters["peer_ms"] = median(peer_seconds) * 1e3;
}

template <class Subject, class Peer>
void run_paired(benchmark::State& state, Subject&& subject, Peer&& peer)
{
    run_paired(state, subject, peer, [] {});
}

} // namespace quillfern::bench
