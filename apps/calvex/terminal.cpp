#include "terminal.h"

#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <sys/ioctl.h>
#endif

#include "environment.h"

namespace calvex::cli {

namespace {

bool sameFile(int one, int other) {
  struct stat a = {}, b = {};
  return fstat(one, &a) == 0 && fstat(other, &b) == 0 && a.st_dev == b.st_dev &&
         a.st_ino == b.st_ino && a.st_ino != 0;  // Windows has no such numbers
}

void passThrough([[maybe_unused]] int stream) {
#ifdef _WIN32
  setmode(stream, O_BINARY);
#endif
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
  // Not on Windows, whose older consoles print the codes.
  // https://no-color.org: any value but the empty one says no.
  terminal.colour = terminal.err && environmentVariable("NO_COLOR").value_or("").empty() &&
                    environmentVariable("TERM") != "dumb";
#endif
  return terminal;
}

void passInputThrough() { passThrough(STDIN_FILENO); }
void passOutputThrough() { passThrough(STDOUT_FILENO); }

std::string coloured(std::string_view text, Colour colour, bool wanted) {
  if (!wanted) return std::string(text);
  return fmt::format("\x1B[1;{}m{}\x1B[0m", colour == Colour::red ? 31 : 33, text);
}

}  // namespace calvex::cli
