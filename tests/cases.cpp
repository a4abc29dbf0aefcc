#include "cases.h"

#include <cstdlib>
#include <fstream>

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

Case Parse(const std::string& line) {
  const std::vector<std::string> sides = Split(line, " => ");
  EXPECT_EQ(sides.size(), 2U) << line;
  const size_t blank = sides[0].find(' ');
  Case parsed;
  parsed.functions = Split(sides[0].substr(0, blank), ",");
  if (blank != std::string::npos) parsed.arguments = Split(sides[0].substr(blank + 1), "; ");
  parsed.result = Expand(sides.back());
  return parsed;
}

}  // namespace

std::vector<std::filesystem::path> CaseFiles() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(VELKORD_CASES)) {
    files.push_back(entry.path());
  }
  return files;
}

std::vector<Case> LoadCases(const std::filesystem::path& path) {
  std::vector<Case> cases;
  std::ifstream file(path);
  std::string zone;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    if (line.starts_with("TZ=")) zone = line.substr(3);
    if (line.empty() || line[0] == '#' || line.starts_with("TZ=")) continue;
    Case& added = cases.emplace_back(Parse(line));
    added.place = std::to_string(number) + ": " + line;
    added.zone = zone;
  }
  EXPECT_FALSE(cases.empty()) << path;
  return cases;
}

void SetZone(const std::string& zone) {
  const std::string text = zone.empty() ? "UTC0" : zone;
#if defined(_WIN32)
  _putenv_s("TZ", text.c_str());
  _tzset();
#else
  setenv("TZ", text.c_str(), 1);
#endif
}

void RunCase(const Case& oneCase) {
  for (const std::string& function : oneCase.functions) {
    EXPECT_EQ(Call(function, oneCase.arguments), oneCase.result) << oneCase.place;
  }
}
