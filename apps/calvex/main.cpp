#ifdef _WIN32
#include <windows.h>
#endif

#include <iostream>

#include "command_line.h"
#include "config.h"
#include "terminal.h"
#ifdef _WIN32
#include "units/utf16.h"
#endif

namespace {

using namespace calvex::cli;

int run(const Words& words) {
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
  return static_cast<int>(runCommandLine(words, console));
}

}  // namespace

#ifdef _WIN32

// `main` would be given what the user's code page has characters for, and a console shows that one.
int wmain(int count, wchar_t** arguments) {
  Words words;
  for (int i = 1; i < count; ++i) words.push_back(calvex::utf8Of<wchar_t>(arguments[i]));
  const UINT before = GetConsoleOutputCP();
  SetConsoleOutputCP(CP_UTF8);
  const int status = run(words);
  SetConsoleOutputCP(before);
  return status;
}

#else

int main(int count, char** arguments) {
  return run(Words(arguments + (count > 0 ? 1 : 0), arguments + count));
}

#endif
