/// \file
/// The diagnostic record of one engine: the trace of its calls, its messages, the last error and
/// the custom columns (the spreadsheet cell) of the next call.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/messages.h"
#include "diagnostics/trace.h"

namespace calvex {

class Diagnostics {
 public:
  Diagnostics();

  /// Everything back to its default: empty trace of at most 1000 calls, level 0, tracing on.
  void reset() noexcept;

  // Settings ------------------------------------------------------------------------------------
  [[nodiscard]] bool tracing() const noexcept { return tracing_ != 0; }
  [[nodiscard]] int tracingFlag() const noexcept { return tracing_; }
  /// Switched off inside a call, it ends the record of all calls that run.
  void setTracing(int flag) noexcept;
  /// 0 errors only, 1 also warnings, 2 also notes.
  [[nodiscard]] short level() const noexcept { return level_; }
  void setLevel(short level) noexcept { level_ = level; }
  [[nodiscard]] int maxTraceSize() const noexcept { return root_->maxChildren(); }
  /// Drops the oldest calls at once until no more than that are left.
  void setMaxTraceSize(int size) noexcept;

  // Calls ---------------------------------------------------------------------------------------
  // While tracing is off neither does anything. A call that leaves no message leaves no node.
  /// `name` must have static storage duration. Use ZvFuncTrace. A full root drops its oldest call
  /// here, even if this call then leaves nothing.
  void enter(std::string_view name);
  /// The end of an outermost call empties the column texts.
  void leave() noexcept;
  [[nodiscard]] bool inCall() const noexcept { return callDepth_ != 0; }

  // Messages: recorded under the running call, and only while tracing is on ----------------------
  void postError(Message message);
  void postError(std::string_view text);
  void postRangeError(std::string_view name);
  void postRangeError(std::string_view name, std::string_view lower, std::string_view upper);
  void postRangeError(std::string_view name, std::string_view lower, std::string_view upper,
                      std::string_view unit);
  /// What is behind the error just posted, where its own text does not say so: a second error node.
  /// The last error stays.
  void postCause(std::string_view text);
  [[nodiscard]] bool wantsWarnings() const noexcept { return tracing() && level_ >= 1; }
  [[nodiscard]] bool wantsNotes() const noexcept { return tracing() && level_ >= 2; }
  void postWarning(std::string_view text);
  void postNote(std::string_view text);
  /// "Time = %d" with the processor clock, as a note.
  void postTimeNote();

  // The record ----------------------------------------------------------------------------------
  /// The text of the last error that was recorded; a successful call does not empty it.
  [[nodiscard]] const std::string& lastError() const noexcept { return lastError_; }
  /// What is behind the last error; empty where its own text says all.
  [[nodiscard]] const std::string& cause() const noexcept { return cause_; }
  [[nodiscard]] const ZvFunctionCall& root() const noexcept { return *root_; }
  void updateImages() noexcept { root_->UpdateImage(); }
  /// Empties the trace, the last error and the column texts; the column titles stay.
  void clear() noexcept;

  // Client's additions: custom columns, external errors, cell references (true: success) ---------
  void addColumn(std::string_view title);
  /// The text goes to the next outermost call. Fails without such a column.
  bool setColumnText(int index, std::string_view text);
  bool getColumnText(int index, std::string& text) const;
  /// Recorded under the root, also while tracing is off. Fails while a call is running.
  bool addExternalError(std::string_view name, std::string_view text);
  /// The columns become "Book", "Sheet" and "Cell".
  void setupCellColumns();
  /// Fails unless there are exactly three columns; so does reading.
  bool setCellReference(std::string_view book, std::string_view sheet, std::string_view cell);
  /// "'[book]sheet'!cell", or empty when any of the three is empty.
  bool getCellReference(std::string& reference) const;
  /// The column values of a listed call become those of the next call (the dialog's actions).
  void takeColumnValues(std::span<const std::string> values);

 private:
  void record(ZvFunctionCall::Kind kind, std::string_view text);
  void emptyColumnTexts() noexcept;

  TracePool pool_;
  ZvFunctionCall* root_ = nullptr;
  ZvFunctionCall* current_ = nullptr;
  int callDepth_ = 0;
  int tracing_ = 1;
  short level_ = 0;
  std::string lastError_;
  std::string cause_;
  /// One for each column; the columns' titles are the root's column values.
  std::vector<std::string> customTexts_;
};

/// Traces the enclosing scope as a call of that name (static storage).
class ZvFuncTrace {
 public:
  ZvFuncTrace(Diagnostics& diagnostics, std::string_view name) : diagnostics_(diagnostics) {
    diagnostics_.enter(name);
  }
  ~ZvFuncTrace() { diagnostics_.leave(); }
  ZvFuncTrace(const ZvFuncTrace&) = delete;
  ZvFuncTrace& operator=(const ZvFuncTrace&) = delete;

 private:
  Diagnostics& diagnostics_;
};

}  // namespace calvex
