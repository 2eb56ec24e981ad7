/// \file
/// Lines typed on a terminal, with history and completion.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvex::cli {

/// At most one exists at a time: the library underneath has one terminal and one history.
class LineEditor {
 public:
  /// What the word at the cursor may become; `before` is the line up to that word.
  using Completer =
      std::function<std::vector<std::string>(std::string_view before, std::string_view word)>;

  /// `history` is a file, or empty; it is made with its folders when there is something to keep.
  LineEditor(std::string history, Completer newCompleter);
  ~LineEditor();
  LineEditor(const LineEditor&) = delete;
  LineEditor& operator=(const LineEditor&) = delete;

  /// Nothing at the end of the input.
  std::optional<std::string> read(const std::string& prompt);

 private:
  [[maybe_unused]] std::string history_;
};

}  // namespace calvex::cli
