// Runs the cases of all files on several threads at once. A race shows under ThreadSanitizer.
#include <map>
#include <thread>

#include "cases.h"

namespace {

constexpr size_t kThreads = 8;

// Every thread runs all cases, each beginning at another one. The zone belongs to the process, so
// it changes between the runs alone.
TEST(Threads, CallAllFamiliesOnObjectsOfTheirOwn) {
  std::map<std::string, std::vector<Case>> casesOfZone;
  for (const auto& file : CaseFiles()) {
    for (Case& oneCase : LoadCases(file)) casesOfZone[oneCase.zone].push_back(std::move(oneCase));
  }
  for (const auto& [zone, cases] : casesOfZone) {
    SetZone(zone);
    std::vector<std::thread> threads;
    for (size_t number = 0; number < kThreads; ++number) {
      threads.emplace_back([&shared = cases, number] {
        const size_t first = number * shared.size() / kThreads;
        for (size_t at = 0; at < shared.size(); ++at) RunCase(shared[(first + at) % shared.size()]);
      });
    }
    for (std::thread& thread : threads) thread.join();
  }
}

}  // namespace
