#include "diagnostics/trace.h"

#include <algorithm>

namespace calvex {

bool ZvFunctionCall::contains(Kind kind) const noexcept {
  if (kind_ == kind) return true;
  for (const ZvFunctionCall* child = firstChild_; child != nullptr; child = child->next_) {
    if (child->contains(kind)) return true;
  }
  return false;
}

bool ZvFunctionCall::containsMessage() const noexcept {
  if (kind_ != Kind::root && kind_ != Kind::call) return true;
  for (const ZvFunctionCall* child = firstChild_; child != nullptr; child = child->next_) {
    if (child->containsMessage()) return true;
  }
  return false;
}

void ZvFunctionCall::UpdateImage() noexcept {
  image_ = gravestImage();
  for (ZvFunctionCall* child = firstChild_; child != nullptr; child = child->next_) {
    child->UpdateImage();
  }
}

ZvFunctionCall::Image ZvFunctionCall::gravestImage() const noexcept {
  if (contains(Kind::error)) return Image::error;
  if (contains(Kind::externalError)) return Image::externalError;
  if (contains(Kind::warning)) return Image::warning;
  if (kind_ == Kind::note) return Image::note;
  if (kind_ == Kind::call) return Image::call;
  return Image::error;
}

ZvFunctionCall& TracePool::make(ZvFunctionCall::Kind kind, ZvFunctionCall* parent,
                                std::span<const std::string> columnValues) {
  if (parent != nullptr && parent->maxChildren_ > 0 &&
      parent->childCount_ >= parent->maxChildren_) {
    deleteFirstChild(*parent);
  }

  ZvFunctionCall& node = takeNode();
  // Assigned one by one: strings that are there keep their capacity.
  node.columnValues_.resize(columnValues.size());
  std::ranges::copy(columnValues, node.columnValues_.begin());
  node.staticText_ = {};
  node.ownText_.clear();
  node.firstChild_ = nullptr;
  node.lastChild_ = nullptr;
  node.next_ = nullptr;
  node.childCount_ = 0;
  node.maxChildren_ = -1;
  node.kind_ = kind;
  node.image_ = ZvFunctionCall::Image::error;

  node.parent_ = parent;
  node.previous_ = nullptr;
  if (parent != nullptr) {
    node.previous_ = parent->lastChild_;
    (parent->lastChild_ != nullptr ? parent->lastChild_->next_ : parent->firstChild_) = &node;
    parent->lastChild_ = &node;
    ++parent->childCount_;
  }
  return node;
}

void TracePool::prune(ZvFunctionCall& node) noexcept {
  while (node.maxChildren_ >= 1 && node.childCount_ > node.maxChildren_) deleteFirstChild(node);
}

void TracePool::deleteChildren(ZvFunctionCall& node) noexcept {
  while (node.lastChild_ != nullptr) deleteLastChild(node);
}

void TracePool::deleteFirstChild(ZvFunctionCall& node) noexcept {
  ZvFunctionCall* child = node.firstChild_;
  if (child == nullptr) return;
  node.firstChild_ = child->next_;
  (child->next_ != nullptr ? child->next_->previous_ : node.lastChild_) = nullptr;
  --node.childCount_;
  recycle(*child);
}

void TracePool::deleteLastChild(ZvFunctionCall& node) noexcept {
  ZvFunctionCall* child = node.lastChild_;
  if (child == nullptr) return;
  node.lastChild_ = child->previous_;
  (child->previous_ != nullptr ? child->previous_->next_ : node.firstChild_) = nullptr;
  --node.childCount_;
  recycle(*child);
}

ZvFunctionCall& TracePool::takeNode() {
  if (free_ == nullptr) return nodes_.emplace_back();
  ZvFunctionCall& node = *free_;
  free_ = node.next_;
  return node;
}

// The last in is the first out: children go before their parent and the last child first, so that
// the same call gets the same nodes back and finds the capacity that it needs.
void TracePool::recycle(ZvFunctionCall& node) noexcept {
  deleteChildren(node);
  node.next_ = free_;
  free_ = &node;
}

}  // namespace calvex
