/// \file
/// The diagnostic record of one engine: the trace of its calls, its messages, the last error and
/// the custom columns (the spreadsheet cell) of the next call.
#pragma once

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
  void reset();

  // Settings ------------------------------------------------------------------------------------
  [[nodiscard]] bool tracing() const noexcept { return tracing_ != 0; }
  [[nodiscard]] int tracingFlag() const noexcept { return tracing_; }
  void setTracing(int flag) noexcept { tracing_ = flag; }
  /// 0 errors only, 1 also warnings, 2 also notes.
  [[nodiscard]] short level() const noexcept { return level_; }
  void setLevel(short level) noexcept { level_ = level; }
  [[nodiscard]] int maxTraceSize() const noexcept { return root_->maxChildren(); }
  void setMaxTraceSize(int size) noexcept;

  // Calls ---------------------------------------------------------------------------------------
  /// `name` must have static storage duration. Use ZvFuncTrace.
  void enter(std::string_view name);
  void leave() noexcept;
  [[nodiscard]] bool inCall() const noexcept { return callDepth_ != 0; }

  // Messages: recorded under the running call, and only while tracing is on -----------------------
  void postError(Message message);
  void postError(std::string_view text);
  void postRangeError(std::string_view name);
  void postRangeError(std::string_view name, std::string_view lower, std::string_view upper);
  void postRangeError(std::string_view name, std::string_view lower, std::string_view upper,
                      std::string_view unit);
  [[nodiscard]] bool wantsWarnings() const noexcept { return tracing() && level_ >= 1; }
  [[nodiscard]] bool wantsNotes() const noexcept { return tracing() && level_ >= 2; }
  void postWarning(std::string_view text);
  void postNote(std::string_view text);
  /// "Time = %d" with the processor clock, as a note.
  void postTimeNote();

  // The record ----------------------------------------------------------------------------------
  [[nodiscard]] const std::string& lastError() const noexcept { return lastError_; }
  [[nodiscard]] const ZvFunctionCall& root() const noexcept { return *root_; }
  void updateImages() noexcept { root_->UpdateImage(); }
  void clear();

  // Client's additions: custom columns, external errors, cell references (true: success) ---------
  void addColumn(std::string_view title);
  bool setColumnText(int index, std::string_view text);
  bool getColumnText(int index, std::string& text) const;
  bool addExternalError(std::string_view name, std::string_view text);
  void setupCellColumns();
  bool setCellReference(std::string_view book, std::string_view sheet, std::string_view cell);
  bool getCellReference(std::string& reference) const;
  /// The column values of a listed call become those of the next call (the dialog's actions).
  void takeColumnValues(const ZvFunctionCall& call);

 private:
  void record(ZvFunctionCall::Kind kind, std::string_view text);
  void attachColumnTexts(ZvFunctionCall& node);
  void emptyColumnTexts() noexcept;

  TracePool pool_;
  ZvFunctionCall* root_ = nullptr;
  ZvFunctionCall* current_ = nullptr;
  int callDepth_ = 0;
  int tracing_ = 1;
  short level_ = 0;
  std::string lastError_;
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
