// Runs the cases of each file.
#include "cases.h"

namespace {

class CaseFile : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(CaseFile, EveryCaseHolds) {
  for (const Case& oneCase : LoadCases(GetParam())) {
    SetZone(oneCase.zone);
    RunCase(oneCase);
  }
}

INSTANTIATE_TEST_SUITE_P(, CaseFile, testing::ValuesIn(CaseFiles()),
                         [](const auto& file) { return file.param.stem().string(); });

}  // namespace
