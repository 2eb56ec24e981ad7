/// \file
/// The tree of traced calls: a node for each call that left a message, its nested calls and its
/// messages below it.
#pragma once

#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace calvex {

/// A node of the trace. Nodes live in the pool that made them and are recycled, never freed, so
/// that a call that leaves no message allocates nothing after warm-up.
class ZvFunctionCall {
 public:
  enum class Kind { root, call, error, warning, note, externalError };
  /// The icon that the diagnostic dialog shows.
  enum class Image { error, warning, note, call, externalError };

  [[nodiscard]] std::string_view text() const noexcept {
    return staticText_.empty() ? std::string_view(ownText_) : staticText_;
  }
  [[nodiscard]] Kind kind() const noexcept { return kind_; }
  [[nodiscard]] Image image() const noexcept { return image_; }
  [[nodiscard]] const std::vector<std::string>& columnValues() const noexcept {
    return columnValues_;
  }
  [[nodiscard]] const ZvFunctionCall* parent() const noexcept { return parent_; }
  [[nodiscard]] const ZvFunctionCall* firstChild() const noexcept { return firstChild_; }
  [[nodiscard]] const ZvFunctionCall* lastChild() const noexcept { return lastChild_; }
  [[nodiscard]] const ZvFunctionCall* nextSibling() const noexcept { return next_; }
  [[nodiscard]] int childCount() const noexcept { return childCount_; }
  /// How many children are kept; -1: no limit.
  [[nodiscard]] int maxChildren() const noexcept { return maxChildren_; }

  /// True when this node or any below it is of that kind.
  [[nodiscard]] bool contains(Kind kind) const noexcept;
  /// True when this node or any below it is an error, a warning, a note or an external error.
  [[nodiscard]] bool containsMessage() const noexcept;
  /// Sets the image of this node and of all below it: the gravest message of a subtree shows.
  void UpdateImage() noexcept;

 private:
  friend class TracePool;
  friend class Diagnostics;

  [[nodiscard]] Image gravestImage() const noexcept;

  std::string_view staticText_;  ///< a call's name: static storage, not copied
  std::string ownText_;          ///< a message's text
  ZvFunctionCall* parent_ = nullptr;
  ZvFunctionCall* firstChild_ = nullptr;
  ZvFunctionCall* lastChild_ = nullptr;
  ZvFunctionCall* previous_ = nullptr;
  ZvFunctionCall* next_ = nullptr;
  int childCount_ = 0;
  int maxChildren_ = -1;
  Kind kind_ = Kind::root;
  Image image_ = Image::error;
  std::vector<std::string> columnValues_;
};

/// Makes and recycles nodes.
class TracePool {
 public:
  TracePool() = default;
  TracePool(const TracePool&) = delete;  // nodes point at each other
  TracePool& operator=(const TracePool&) = delete;

  /// A node as the parent's last child, with copies of these column values and without a text. A
  /// parent that is full loses its oldest child first. A null parent makes a root.
  ZvFunctionCall& make(ZvFunctionCall::Kind kind, ZvFunctionCall* parent,
                       std::span<const std::string> columnValues = {});
  /// Deletes oldest children while there are more than the node's limit.
  void prune(ZvFunctionCall& node) noexcept;
  void deleteChildren(ZvFunctionCall& node) noexcept;
  void deleteFirstChild(ZvFunctionCall& node) noexcept;
  void deleteLastChild(ZvFunctionCall& node) noexcept;

 private:
  ZvFunctionCall& takeNode();
  void recycle(ZvFunctionCall& node) noexcept;

  std::deque<ZvFunctionCall> nodes_;
  ZvFunctionCall* free_ = nullptr;  ///< linked through next_
};

}  // namespace calvex
