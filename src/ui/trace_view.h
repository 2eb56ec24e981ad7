/// \file
/// What the dialog "Diagnostic Information" shows and does, without its window.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/diagnostics.h"

namespace calvex {

/// The record of calls as it was when the dialog opened. It is a copy: the client may call the
/// engine while the dialog is up, and the nodes of the trace are recycled.
class TraceView {
 public:
  using Image = ZvFunctionCall::Image;

  struct Column {
    std::string title;
    double width;  ///< as a fraction of the list's width
  };
  struct Node {
    int depth;  ///< 0: the call that the list shows
    std::string text;
    Image image;
    bool expanded;  ///< has children, which follow it
  };
  /// An outermost call.
  struct Call {
    std::vector<std::string> columnValues;  ///< one for each custom column
    std::vector<Node> nodes;                ///< itself, then each descendant after its parent

    [[nodiscard]] const std::string& text() const noexcept { return nodes.front().text; }
    [[nodiscard]] Image image() const noexcept { return nodes.front().image; }
  };

  /// The texts of the reporting levels 0, 1 and 2.
  static constexpr std::array<std::string_view, 3> levelTexts = {
      "Errors Only", "Errors & Warnings", "Errors, Warnings & Diagnostic Info"};

  /// `diagnostics` must outlive the view. Sets the images of its nodes.
  explicit TraceView(Diagnostics& diagnostics);

  /// "Function", then the custom columns.
  [[nodiscard]] const std::vector<Column>& columns() const noexcept { return columns_; }
  /// Oldest first.
  [[nodiscard]] const std::vector<Call>& calls() const noexcept { return calls_; }
  /// The reporting level at opening.
  [[nodiscard]] short level() const noexcept { return level_; }
  /// The indices of the calls that are listed at a reporting level.
  [[nodiscard]] std::vector<std::size_t> listed(int level) const;

  /// What closing does: that level becomes the engine's.
  void putLevel(short level) { diagnostics_.setLevel(level); }
  /// What choosing a call does: its column values become those of the next call.
  void take(const Call& call) { diagnostics_.takeColumnValues(call.columnValues); }

 private:
  Diagnostics& diagnostics_;
  short level_;
  std::vector<Column> columns_;
  std::vector<Call> calls_;
};

}  // namespace calvex
