/// \file
/// What the program knows of the terminal it runs in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace calvex::cli {

struct Terminal {
  bool in = false, out = false, err = false;  ///< whether the stream is a terminal
  bool errIsOut = false;                      ///< both go to the same terminal, file or pipe
  std::size_t outWidth = 0;                   ///< characters a line of `out`; 0 where unknown
  bool colour = false;  ///< whether what goes to `err` may be coloured: NO_COLOR and TERM agree
};

/// Looks at this process's standard streams.
[[nodiscard]] Terminal lookAtTerminal();

/// From here on a standard stream hands over the bytes as they are: Windows would end lines in its
/// way, and end the input at a Ctrl-Z.
void passInputThrough();
void passOutputThrough();

enum class Colour { red, yellow };
[[nodiscard]] std::string coloured(std::string_view text, Colour colour, bool wanted);

}  // namespace calvex::cli
