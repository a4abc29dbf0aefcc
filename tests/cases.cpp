#include "cases.h"

#include <cstdlib>
#include <fstream>

namespace {

// A result with its counts, quoted texts and samples written out in hexadecimal.
std::string Expand(const std::string& result) {
  std::string text;
  for (const std::string& word : Split(result, " ")) {
    const bool isShort = word.find_first_of("*\"@.") != std::string::npos;
    const size_t start = isShort ? word.find('=') + 1 : word.size();
    const ByteVector bytes = FromHex(word.substr(start));
    text += word.substr(0, start) + ToHex(bytes.data(), bytes.size()) + ' ';
  }
  text.pop_back();
  return text;
}

using Definitions = std::map<std::string, std::string>;

// A line with the texts that its names stand for.
std::string Substitute(std::string line, const Definitions& definitions) {
  for (size_t at = 0; (at = line.find('$', at)) != std::string::npos;) {
    const size_t end = line.find_first_of(" ;=", at);
    const auto found = definitions.find(line.substr(at, end - at));
    if (found == definitions.end()) {
      ++at;
    } else {
      line.replace(at, found->first.size(), found->second);
    }
  }
  return line;
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
  Definitions definitions;
  std::string zone;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    const std::string place = std::to_string(++number) + ": " + line;
    line = Substitute(line, definitions);
    if (line.starts_with("TZ=")) {
      zone = line.substr(3);
    } else if (line.starts_with("$")) {
      const size_t equals = line.find(" = ");
      definitions[line.substr(0, equals)] = line.substr(equals + 3);
    } else if (!line.empty() && line[0] != '#') {
      Case& added = cases.emplace_back(Parse(line));
      added.place = place;
      added.zone = zone;
    }
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
