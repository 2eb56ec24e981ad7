#include "terminal.h"

#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>
#ifndef _WIN32
#include <sys/ioctl.h>
#endif

#include <cstdlib>

namespace calvex::cli {

namespace {

bool sameFile(int one, int other) {
  struct stat a = {}, b = {};
  return fstat(one, &a) == 0 && fstat(other, &b) == 0 && a.st_dev == b.st_dev &&
         a.st_ino == b.st_ino && a.st_ino != 0;  // Windows has no such numbers
}

std::string_view environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

}  // namespace

Terminal lookAtTerminal() {
  Terminal terminal;
  terminal.in = isatty(STDIN_FILENO) != 0;
  terminal.out = isatty(STDOUT_FILENO) != 0;
  terminal.err = isatty(STDERR_FILENO) != 0;
  terminal.errIsOut = (terminal.out && terminal.err) || sameFile(STDOUT_FILENO, STDERR_FILENO);
#ifndef _WIN32
  winsize size = {};
  if (terminal.out && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0) terminal.outWidth = size.ws_col;
#endif
  // https://no-color.org: any value but the empty one says no.
  terminal.colour =
      terminal.err && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
#ifdef _WIN32
  terminal.colour = false;  // consoles of old Windows print the codes
#endif
  return terminal;
}

std::string coloured(std::string_view text, Colour colour, bool wanted) {
  if (!wanted) return std::string(text);
  return fmt::format("\x1B[1;{}m{}\x1B[0m", colour == Colour::red ? 31 : 33, text);
}

}  // namespace calvex::cli
