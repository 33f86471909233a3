#pragma once

#include <benchmark/benchmark.h>

namespace corvane::bench {

class BenchConsole;

/// The argument with which a program of the bench lists the logs of one installation and prints its own peak memory.
inline constexpr const char* PeakMemoryOption = "--print-peak-memory";

/// Prints the most memory that this process had, in kilobytes.
void PrintPeakMemory();

/// Runs this program with the option above, in a process of its own, and reports what it printed in bytes.
void MeasurePeakMemory(benchmark::State& state, int logs, double allowed);

}  // namespace corvane::bench
