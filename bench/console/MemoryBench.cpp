#include "support/PeakMemory.h"

namespace corvane::bench {
namespace {

BENCHMARK_CAPTURE(MeasurePeakMemory, some, 10'000, 1)->Name("peak memory, 10000 logs listed")->Iterations(1);
BENCHMARK_CAPTURE(MeasurePeakMemory, many, 100'000, 0)->Name("peak memory, 100000 logs listed")->Iterations(1);

}  // namespace
}  // namespace corvane::bench
