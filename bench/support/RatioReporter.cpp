#include "support/RatioReporter.h"

#include <array>
#include <cstdio>

namespace corvane::bench {
namespace {

constexpr double Megabyte = 1e6;

double CounterOf(const benchmark::BenchmarkReporter::Run& run, const char* name) {
  const auto found = run.counters.find(name);
  return found == run.counters.end() ? 0 : found->second.value;
}

std::string Rounded(double number, const char* unit = "") {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%.2f%s", number, unit);
  return text.data();
}

std::string AmountText(double amount, bool isSize) {
  if (isSize) return Rounded(amount / Megabyte, " MB");
  if (amount >= 1) return Rounded(amount, " s");
  return amount >= 1e-3 ? Rounded(amount * 1e3, " ms") : Rounded(amount * 1e6, " us");
}

void PrintLine(const std::string& work, const std::string& measured, const std::string& against,
               const std::string& ratio, const std::string& budget) {
  std::printf("| %-58s | %10s | %-30s | %7s | %-14s |\n", work.c_str(), measured.c_str(), against.c_str(),
              ratio.c_str(), budget.c_str());
  std::fflush(stdout);
}

std::string BudgetText(double ratio, double allowed) {
  if (allowed == 0) return "none";
  return Rounded(allowed, ", ") + (ratio <= allowed ? "met" : "MISSED");
}

}  // namespace

void Report(benchmark::State& state, const Finding& finding, const char* against) {
  state.counters["measured"] = finding.Measured;
  state.counters["against"] = finding.Against;
  state.counters["allowed"] = finding.Allowed;
  state.counters["size"] = finding.IsSize ? 1 : 0;
  state.SetLabel(against);
}

bool RatioReporter::ReportContext(const Context& context) {
  std::printf("%d processors, load of the last minute %.1f\n\n", context.cpu_info.num_cpus,
              context.cpu_info.load_avg.empty() ? 0.0 : context.cpu_info.load_avg.front());
  PrintLine("Work", "Measured", "Against", "Ratio", "Budget");
  const auto rule = [](std::size_t width) { return std::string(width, '-'); };
  PrintLine(rule(58), rule(10), rule(30), rule(7), rule(14));
  return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    // Google Benchmark adds settings such as "/iterations:5" behind a slash.
    const std::string work = run.run_name.function_name;
    if (run.error_occurred) {
      PrintLine(work, "failed", run.error_message, "", "");
      continue;
    }
    const bool isSize = CounterOf(run, "size") != 0;
    const double measured = CounterOf(run, "measured"), against = CounterOf(run, "against");
    const double ratio = measured / against;
    PrintLine(work, AmountText(measured, isSize), AmountText(against, isSize) + " " + run.report_label, Rounded(ratio),
              BudgetText(ratio, CounterOf(run, "allowed")));
  }
}

}  // namespace corvane::bench
