// Runs the cases of the files in `cases/`. A line is `function argument; argument => result`, with
// several functions, comma between them, where one case holds for all. `TZ=zone` sets the zone of
// the lines behind it.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "calls.h"

namespace {

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  size_t at = 0;
  for (size_t end; (end = text.find(separator, at)) != std::string::npos;) {
    parts.push_back(text.substr(at, end - at));
    at = end + separator.size();
  }
  parts.push_back(text.substr(at));
  return parts;
}

// A result with its counts, quoted texts and samples written out in hexadecimal.
std::string Expand(const std::string& result) {
  std::string text;
  for (const std::string& word : Split(result, " ")) {
    const bool isShort = word.find_first_of("*\"@") != std::string::npos;
    const ByteVector bytes = isShort ? FromHex(word) : ByteVector();
    text += (isShort ? ToHex(bytes.data(), bytes.size()) : word) + ' ';
  }
  text.pop_back();
  return text;
}

class CaseFile : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(CaseFile, EveryCaseHolds) {
  std::ifstream file(GetParam());
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    if (line.empty() || line[0] == '#') continue;
    if (line.starts_with("TZ=")) {
      setenv("TZ", line.c_str() + 3, 1);
      continue;
    }
    const std::vector<std::string> sides = Split(line, " => ");
    ASSERT_EQ(sides.size(), 2U) << number << ": " << line;
    const size_t blank = sides[0].find(' ');
    const Arguments arguments =
        blank == std::string::npos ? Arguments() : Split(sides[0].substr(blank + 1), "; ");
    for (const std::string& function : Split(sides[0].substr(0, blank), ",")) {
      EXPECT_EQ(Call(function, arguments), Expand(sides[1])) << number << ": " << line;
    }
  }
  EXPECT_GT(number, 0);
}

std::vector<std::filesystem::path> CaseFiles() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(VELKORD_CASES)) {
    files.push_back(entry.path());
  }
  return files;
}

INSTANTIATE_TEST_SUITE_P(, CaseFile, testing::ValuesIn(CaseFiles()),
                         [](const auto& file) { return file.param.stem().string(); });

}  // namespace
