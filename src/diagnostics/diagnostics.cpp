#include "diagnostics/diagnostics.h"

#include <algorithm>
#include <ctime>

#include "diagnostics/formatting.h"

namespace calvex {

namespace {

constexpr int defaultMaxTraceSize = 1000;
constexpr std::size_t cellColumns = 3;  // book, sheet, cell

}  // namespace

Diagnostics::Diagnostics() : root_(&pool_.make(ZvFunctionCall::Kind::root, nullptr)) {
  root_->staticText_ = "Root";
  reset();
}

void Diagnostics::reset() noexcept {
  clear();
  root_->columnValues_.clear();
  customTexts_.clear();
  root_->image_ = ZvFunctionCall::Image::error;
  root_->maxChildren_ = defaultMaxTraceSize;
  tracing_ = 1;
  level_ = 0;
}

void Diagnostics::setMaxTraceSize(int size) noexcept {
  root_->maxChildren_ = size;
  pool_.prune(*root_);
}

void Diagnostics::setTracing(int flag) noexcept {
  // Their own ends will go unrecorded, and later calls must not stand below them.
  while (flag == 0 && inCall()) leave();
  tracing_ = flag;
}

// Calls ------------------------------------------------------------------------------------------

void Diagnostics::enter(std::string_view name) {
  if (!tracing()) return;
  ZvFunctionCall& node = callDepth_ == 0
                             ? pool_.make(ZvFunctionCall::Kind::call, current_, customTexts_)
                             : pool_.make(ZvFunctionCall::Kind::call, current_);
  node.staticText_ = name;
  current_ = &node;
  ++callDepth_;
}

void Diagnostics::leave() noexcept {
  // The depth is 0 when the record was cleared, or tracing switched off or on, inside the call.
  if (!tracing() || callDepth_ == 0) return;
  const ZvFunctionCall& finished = *current_;
  current_ = current_->parent_;
  if (--callDepth_ == 0) {
    emptyColumnTexts();
    if (!finished.containsMessage()) pool_.deleteLastChild(*current_);
  }
}

// Messages ---------------------------------------------------------------------------------------

void Diagnostics::postError(Message message) { postError(messageText(message)); }

void Diagnostics::postError(std::string_view text) {
  if (!tracing()) return;
  record(ZvFunctionCall::Kind::error, text);
  lastError_ = text;
  cause_.clear();
}

void Diagnostics::postCause(std::string_view text) {
  if (!tracing()) return;
  record(ZvFunctionCall::Kind::error, text);
  cause_ = text;
}

void Diagnostics::postRangeError(std::string_view name) {
  if (!tracing()) return;
  postError(fmt::sprintf(messageText(Message::outOfRange), name));
}

void Diagnostics::postRangeError(std::string_view name, std::string_view lower,
                                 std::string_view upper) {
  if (!tracing()) return;
  postError(fmt::sprintf(messageText(Message::outOfRangeBounds), name, lower, upper));
}

void Diagnostics::postRangeError(std::string_view name, std::string_view lower,
                                 std::string_view upper, std::string_view unit) {
  if (!tracing()) return;
  postError(fmt::sprintf(messageText(Message::outOfRangeUnit), name, lower, upper, unit));
}

void Diagnostics::postWarning(std::string_view text) {
  if (wantsWarnings()) record(ZvFunctionCall::Kind::warning, text);
}

void Diagnostics::postNote(std::string_view text) {
  if (wantsNotes()) record(ZvFunctionCall::Kind::note, text);
}

void Diagnostics::postTimeNote() {
  if (wantsNotes()) postNote(fmt::sprintf("Time = %d", std::clock()));
}

// The record -------------------------------------------------------------------------------------

void Diagnostics::clear() noexcept {
  pool_.deleteChildren(*root_);
  current_ = root_;
  callDepth_ = 0;
  lastError_.clear();
  cause_.clear();
  emptyColumnTexts();
}

// The frames of errors, warnings and notes are all "%s": the text itself is what is recorded.
void Diagnostics::record(ZvFunctionCall::Kind kind, std::string_view text) {
  pool_.make(kind, current_).ownText_ = text;
}

// Client's additions -----------------------------------------------------------------------------

void Diagnostics::addColumn(std::string_view title) {
  root_->columnValues_.emplace_back(title);
  customTexts_.emplace_back();
}

bool Diagnostics::setColumnText(int index, std::string_view text) {
  if (index < 0 || index >= std::ssize(customTexts_)) return false;
  customTexts_[static_cast<std::size_t>(index)] = text;
  return true;
}

bool Diagnostics::getColumnText(int index, std::string& text) const {
  if (index < 0 || index >= std::ssize(customTexts_)) return false;
  text = customTexts_[static_cast<std::size_t>(index)];
  return true;
}

bool Diagnostics::addExternalError(std::string_view name, std::string_view text) {
  if (inCall()) return false;
  ZvFunctionCall& node = pool_.make(ZvFunctionCall::Kind::externalError, root_, customTexts_);
  node.ownText_ = name;
  pool_.make(ZvFunctionCall::Kind::externalError, &node).ownText_ = text;
  emptyColumnTexts();
  lastError_ = text;
  cause_.clear();
  return true;
}

void Diagnostics::setupCellColumns() {
  root_->columnValues_.clear();
  customTexts_.clear();
  for (const char* title : {"Book", "Sheet", "Cell"}) addColumn(title);
}

bool Diagnostics::setCellReference(std::string_view book, std::string_view sheet,
                                   std::string_view cell) {
  if (customTexts_.size() != cellColumns) return false;
  customTexts_[0] = book;
  customTexts_[1] = sheet;
  customTexts_[2] = cell;
  return true;
}

bool Diagnostics::getCellReference(std::string& reference) const {
  if (customTexts_.size() != cellColumns) return false;
  const bool whole = std::ranges::none_of(customTexts_, &std::string::empty);
  reference =
      whole ? fmt::sprintf("'[%s]%s'!%s", customTexts_[0], customTexts_[1], customTexts_[2]) : "";
  return true;
}

void Diagnostics::takeColumnValues(std::span<const std::string> values) {
  // A call that is older than the last added column has fewer values than there are columns.
  for (std::size_t i = 0; i < customTexts_.size(); ++i) {
    customTexts_[i] = i < values.size() ? values[i] : std::string();
  }
}

void Diagnostics::emptyColumnTexts() noexcept {
  for (std::string& text : customTexts_) text.clear();
}

}  // namespace calvex
