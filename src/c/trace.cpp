// The trace as a tree of numbered nodes.
#include "c/engine.h"
#include "diagnostics/messages.h"

using namespace calvex;
using c::TraceNode;

namespace {

using Kind = ZvFunctionCall::Kind;

int kindOf(Kind kind) {
  switch (kind) {
    case Kind::root:
      return CALVEX_NODE_ROOT;
    case Kind::call:
      return CALVEX_NODE_CALL;
    case Kind::error:
      return CALVEX_NODE_ERROR;
    case Kind::warning:
      return CALVEX_NODE_WARNING;
    case Kind::note:
      return CALVEX_NODE_NOTE;
    case Kind::externalError:
      break;
  }
  return CALVEX_NODE_EXTERNAL_ERROR;
}

int gravestOf(const ZvFunctionCall& node) {
  for (const Kind kind : {Kind::error, Kind::externalError, Kind::warning, Kind::note}) {
    if (node.contains(kind)) return kindOf(kind);
  }
  return kindOf(node.kind());
}

// The message when its format begins and ends like the text, else the frame of all others.
int numberOf(std::string_view text, Message message, Message frame) {
  const std::string_view format = messageText(message);
  const std::size_t conversion = format.find_first_of("sdef", format.rfind('%'));
  const bool is = text.starts_with(format.substr(0, format.find('%'))) &&
                  text.ends_with(format.substr(conversion + 1));
  return static_cast<int>(is ? message : frame);
}

int codeOf(const ZvFunctionCall& node) {
  switch (node.kind()) {
    case Kind::error:
      return c::codeOf(node.text());
    case Kind::warning:
      return numberOf(node.text(), Message::outOfStrictRange, Message::warningFrame);
    case Kind::note:
      return numberOf(node.text(), Message::solverNote, Message::noteFrame);
    default:
      return 0;
  }
}

void append(std::vector<TraceNode>& nodes, const ZvFunctionCall& node, std::size_t parent) {
  const std::size_t self = nodes.size();
  TraceNode& added = nodes.emplace_back();
  added.text = node.text();
  added.columns = node.columnValues();
  added.facts = {kindOf(node.kind()), gravestOf(node), codeOf(node),        parent,
                 CALVEX_NONE,         CALVEX_NONE,     added.columns.size()};
  std::size_t previous = CALVEX_NONE;
  for (const auto* child = node.firstChild(); child != nullptr; child = child->nextSibling()) {
    const std::size_t at = nodes.size();
    (previous == CALVEX_NONE ? nodes[self].facts.first_child : nodes[previous].facts.next_sibling) =
        at;
    previous = at;
    append(nodes, *child, self);
  }
}

const TraceNode& nodeOf(const calvex_engine& engine, std::size_t node) {
  c::requireIndex(node, engine.trace.size(), "node");
  return engine.trace[node];
}

}  // namespace

extern "C" {

int calvex_trace_take(calvex_engine* engine, size_t* count) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    c::require(count, "count");
    std::vector<TraceNode> nodes;
    append(nodes, engine->client.engine().diagnostics().root(), CALVEX_NONE);
    engine->trace = std::move(nodes);
    *count = engine->trace.size();
    return CALVEX_OK;
  });
}

int calvex_trace_node(calvex_engine* engine, size_t node, calvex_node* facts, size_t facts_size) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    c::giveFacts(nodeOf(*engine, node).facts, facts, facts_size);
    return CALVEX_OK;
  });
}

int calvex_trace_text(calvex_engine* engine, size_t node, char* text, size_t size, size_t* needed) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded(
      [&] { return c::giveText(nodeOf(*engine, node).text, text, size, needed); });
}

int calvex_trace_column(calvex_engine* engine, size_t node, size_t column, char* text, size_t size,
                        size_t* needed) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const TraceNode& at = nodeOf(*engine, node);
    c::requireIndex(column, at.columns.size(), "column");
    return c::giveText(at.columns[column], text, size, needed);
  });
}

}  // extern "C"
