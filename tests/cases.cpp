#include "cases.h"

#include <cstdlib>
#include <fstream>
#include <map>

namespace {

// A result with its counts, quoted texts, numbers and samples written out in hexadecimal.
std::string Expand(const std::string& result) {
  std::string text;
  for (const std::string& word : Split(result, " ")) {
    const bool isShort = word.find_first_of("*\"#@") != std::string::npos;
    const size_t start = isShort ? word.find('=') + 1 : word.size();
    const ByteVector bytes = FromHex(word.substr(start));
    text += word.substr(0, start) + ToHex(bytes.data(), bytes.size()) + ' ';
  }
  text.pop_back();
  return text;
}

// A name comes after those that it begins, which are then not taken for it.
using Definitions = std::map<std::string, std::string, std::greater<>>;

// A text with what the names in it stand for.
std::string Substitute(std::string text, const Definitions& definitions) {
  for (const auto& [name, meant] : definitions) {
    for (size_t at; (at = text.find(name)) != std::string::npos;) {
      text.replace(at, name.size(), meant);
    }
  }
  return text;
}

}  // namespace

std::vector<std::filesystem::path> CaseFiles() {
  return {std::filesystem::directory_iterator(VELKORD_CASES), {}};
}

std::vector<Case> LoadCases(const std::filesystem::path& path) {
  std::vector<Case> cases;
  std::ifstream file(path);
  Definitions definitions;
  std::string zone = "UTC0";
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    const std::string place = std::to_string(++number) + ": " + line;
    if (line.starts_with("TZ=")) {
      zone = line.substr(3);
    } else if (line.starts_with("$")) {
      const size_t equals = line.find(" = ");
      definitions[line.substr(0, equals)] = Substitute(line.substr(equals + 3), definitions);
    } else if (!line.empty() && line[0] != '#') {
      const std::vector<std::string> sides = Split(Substitute(line, definitions), " => ");
      EXPECT_EQ(sides.size(), 2U) << place;
      const std::string names = sides[0].substr(0, sides[0].find(' '));
      const std::string arguments = sides[0].substr(std::min(names.size() + 1, sides[0].size()));
      for (const std::string& name : Split(names, ",")) {
        cases.push_back({place, zone, name, Split(arguments, "; "), Expand(sides[1])});
      }
    }
  }
  EXPECT_FALSE(cases.empty()) << path;
  return cases;
}

void SetZone(const std::string& zone) {
#if defined(_WIN32)
  _putenv_s("TZ", zone.c_str());
  _tzset();
#else
  setenv("TZ", zone.c_str(), 1);
#endif
}

void RunCase(const Case& oneCase) {
  EXPECT_EQ(Call(oneCase.function, oneCase.arguments), oneCase.result) << oneCase.place;
}
