// All cases, of which the flags of Google Benchmark select some and say how they are run.
#include "cases.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  bench::AddCertificates();
  bench::AddLists();
  bench::AddBase64AndPem();
  bench::AddCharacterSets();
  bench::AddValues();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
