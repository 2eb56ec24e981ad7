/// \file
/// What the program knows of the terminal it runs in.
#pragma once

#include <string>
#include <string_view>

namespace calvex::cli {

struct Terminal {
  bool in = false, out = false, err = false;  ///< whether the stream is a terminal
  bool errIsOut = false;                      ///< both go to the same terminal, file or pipe
  bool colour = false;  ///< whether what goes to `err` may be coloured: NO_COLOR and TERM agree
};

/// Looks at this process's standard streams.
[[nodiscard]] Terminal lookAtTerminal();

enum class Colour { red, yellow };
[[nodiscard]] std::string coloured(std::string_view text, Colour colour, bool wanted);

}  // namespace calvex::cli
