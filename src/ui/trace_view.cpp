#include "ui/trace_view.h"

#include <algorithm>

namespace calvex {

namespace {

std::vector<TraceView::Column> columnsOf(const std::vector<std::string>& titles) {
  if (titles.empty()) return {{"Function", 0.98}};
  std::vector<TraceView::Column> columns = {{"Function", 0.5}};
  const double width = std::min(0.48 / static_cast<double>(titles.size()), 0.2);
  for (const std::string& title : titles) columns.push_back({title, width});
  return columns;
}

void append(const ZvFunctionCall& node, int depth, std::vector<TraceView::Node>& nodes) {
  nodes.push_back({depth, std::string(node.text()), node.image(), node.childCount() > 0});
  for (const auto* child = node.firstChild(); child != nullptr; child = child->nextSibling()) {
    append(*child, depth + 1, nodes);
  }
}

bool isListed(TraceView::Image image, int level) {
  switch (image) {
    case TraceView::Image::error:
    case TraceView::Image::externalError:
      return true;
    case TraceView::Image::warning:
      return level >= 1;
    default:
      return level >= 2;
  }
}

}  // namespace

TraceView::TraceView(Diagnostics& diagnostics)
    : diagnostics_(diagnostics),
      level_(diagnostics.level()),
      columns_(columnsOf(diagnostics.root().columnValues())) {
  diagnostics.updateImages();
  const ZvFunctionCall& root = diagnostics.root();
  for (const auto* node = root.firstChild(); node != nullptr; node = node->nextSibling()) {
    Call& call = calls_.emplace_back();
    call.columnValues = node->columnValues();
    // Columns may have been added or replaced since the call was made.
    call.columnValues.resize(root.columnValues().size());
    append(*node, 0, call.nodes);
  }
}

std::vector<std::size_t> TraceView::listed(int level) const {
  std::vector<std::size_t> indices;
  for (std::size_t i = 0; i < calls_.size(); ++i) {
    if (isListed(calls_[i].image(), level)) indices.push_back(i);
  }
  return indices;
}

}  // namespace calvex
