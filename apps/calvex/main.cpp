#include <iostream>

#include "command_line.h"
#include "config.h"
#include "terminal.h"

int main(int count, char** arguments) {
  using namespace calvex::cli;
  std::ios::sync_with_stdio(false);
  const Terminal terminal = lookAtTerminal();
  Console console{std::cin, std::cout, std::cerr};
  console.inIsTerminal = terminal.in;
  console.outIsTerminal = terminal.out;
  console.errIsTerminal = terminal.err;
  console.errIsOut = terminal.errIsOut;
  console.outWidth = terminal.outWidth;
  console.colour = terminal.colour;
  console.configFile = configPath();
  console.startingOptions = [&] { return readConfig(console.configFile); };
  const Words words(arguments + (count > 0 ? 1 : 0), arguments + count);
  return static_cast<int>(runCommandLine(words, console));
}
