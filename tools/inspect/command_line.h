// What the main functions of the tools and examples share.
#ifndef VELKORD_TOOLS_INSPECT_COMMAND_LINE_H_
#define VELKORD_TOOLS_INSPECT_COMMAND_LINE_H_

#include <stdlib.h>

#include <iostream>
#include <span>
#include <stdexcept>
#include <string_view>

#include "Velkord.h"

// Runs `work` with the arguments and returns the exit status: that of the work, 1 when it throws, 2
// for an option other than --help and --version, or when there are fewer than `least` arguments or
// more than `most`; "-" alone is no option. The library reads and writes times as the machine's
// local time, so the zone is set to UTC.
template <typename Work>
int RunCommand(int argc, char** argv, std::string_view usage, size_t least, size_t most,
               Work work) {
  const std::span<char*> arguments = std::span(argv, static_cast<size_t>(argc)).subspan(1);
  for (const std::string_view argument : arguments) {
    if (!argument.starts_with('-') || argument == "-") continue;
    if (argument == "--help" || argument == "--version") {
      std::cout << (argument == "--help" ? usage : "Velkord " VELKORD_VERSION_STRING "\n");
      return 0;
    }
    std::cerr << argv[0] << ": no option " << argument << '\n' << usage;
    return 2;
  }
  if (arguments.size() < least || arguments.size() > most) {
    std::cerr << usage;
    return 2;
  }
  try {
    if (setenv("TZ", "UTC0", 1) != 0) throw std::runtime_error("the time zone cannot be set");
    return work(arguments);
  } catch (const std::exception& error) {
    std::cerr << argv[0] << ": " << error.what() << '\n';
    return 1;
  }
}

#endif  // VELKORD_TOOLS_INSPECT_COMMAND_LINE_H_
