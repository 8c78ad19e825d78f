// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <string>

/// Holds a benchmark against a limit in the same run: both sides are timed in turn, and the run fails when
/// the best time of what is measured is more than `times` the best time of its reference. The best of many is
/// what a busy machine disturbs least.
class Limit
{
public:
    Limit(benchmark::State &state, double times)
        : m_state(state)
        , m_times(times)
    {}

    ~Limit()
    {
        const double ratio = m_measured / m_reference;
        m_state.counters["best_ms"] = 1000 * m_measured;
        m_state.counters["reference_ms"] = 1000 * m_reference;
        m_state.counters["ratio"] = ratio;
        m_state.counters["limit"] = m_times;
        if (!(ratio <= m_times))
            m_state.SkipWithError(("takes " + std::to_string(1000 * m_measured) + " ms, its reference " +
                                   std::to_string(1000 * m_reference))
                                      .c_str());
    }

    Limit(const Limit &) = delete;
    Limit &operator=(const Limit &) = delete;

    template <typename Work>
    void measure(Work work)
    {
        measured(secondsOf(work));
    }

    template <typename Work>
    void reference(Work work)
    {
        referred(secondsOf(work));
    }

    /// For what was timed elsewhere, in seconds.
    void measured(double seconds)
    {
        m_measured = std::min(m_measured, seconds);
        m_state.SetIterationTime(seconds);
    }

    void referred(double seconds) { m_reference = std::min(m_reference, seconds); }

private:
    template <typename Work>
    static double secondsOf(Work work)
    {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    benchmark::State &m_state;
    double m_times;
    double m_measured = std::numeric_limits<double>::max();
    double m_reference = std::numeric_limits<double>::max();
};
