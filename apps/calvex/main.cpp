#include <unistd.h>

#include <iostream>

#include "command_line.h"

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  calvex::cli::Console console{std::cin, std::cout, std::cerr, isatty(STDOUT_FILENO) != 0,
                               isatty(STDERR_FILENO) != 0};
  const calvex::cli::Words words(arguments + (count > 0 ? 1 : 0), arguments + count);
  return static_cast<int>(calvex::cli::runCommandLine(words, console));
}
