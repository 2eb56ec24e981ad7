#include "worksheet/record.h"

#include "worksheet/texts.h"

namespace calvex::worksheet {

namespace {

std::string text(calvex_engine* engine, std::size_t node) {
  return textOf([&](char* text, std::size_t size, std::size_t* needed) {
    calvex_trace_text(engine, node, text, size, needed);
  });
}

}  // namespace

std::vector<RecordRow> recordOf(calvex_engine* engine) {
  constexpr const char* kinds[] = {"root", "call", "error", "warning", "note", "error"};
  std::size_t count = 0;
  calvex_trace_take(engine, &count);
  std::vector<RecordRow> rows;
  std::vector<int> depths(count, 0);
  // A child stands behind its parent, but not always next to it: siblings are walked in order.
  const auto walk = [&](auto& self, std::size_t node, int depth) -> void {
    for (; node != CALVEX_NONE;) {
      calvex_node facts{};
      calvex_trace_node(engine, node, &facts, sizeof facts);
      rows.push_back({depth, kinds[facts.kind], text(engine, node)});
      self(self, facts.first_child, depth + 1);
      node = facts.next_sibling;
    }
  };
  calvex_node root{};
  calvex_trace_node(engine, 0, &root, sizeof root);
  walk(walk, root.first_child, 0);
  return rows;
}

}  // namespace calvex::worksheet
