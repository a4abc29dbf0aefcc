// The cases of the files in `cases/`. A line is `function argument; argument => result`, with
// several functions, comma between them, where one case holds for all. `$name = text` stands for
// the text wherever `$name` follows, and `TZ=zone` sets the zone of the lines after it.
#ifndef VELKORD_TESTS_CASES_H_
#define VELKORD_TESTS_CASES_H_

#include <filesystem>

#include "calls.h"

struct Case {
  std::string place;  // The number of its line, and the line.
  std::string zone;   // UTC0 unless the file says otherwise.
  std::string function;
  Arguments arguments;
  std::string result;
};

std::vector<std::filesystem::path> CaseFiles();
std::vector<Case> LoadCases(const std::filesystem::path& path);

void SetZone(const std::string& zone);
void RunCase(const Case& oneCase);

#endif  // VELKORD_TESTS_CASES_H_
