/// \file
/// `_calvex.Core`: an engine as Python holds it, for any number of threads.
///
/// Scalar calls run on the one engine whose trace the user sees. Calls over arrays run on engines
/// of their own with the same units and settings, so they neither wait nor leave a trace.
#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "direct/chunks.h"
#include "engine/thermo_engine.h"
#include "references.h"
#include "server/client.h"

namespace calvex::python {

/// Locks, and lets other Python threads run while it waits: whoever has the mutex may need the
/// interpreter.
void lock(std::mutex& mutex);

/// What a failed call does.
enum class Errors : char { byKind, raise, warn, ignore };
/// "raise", "warn", "ignore"; None: scalars raise, arrays warn. False, and an exception, for
/// others.
[[nodiscard]] bool readErrors(PyObject* object, Errors& errors);
[[nodiscard]] Ref errorsText(Errors errors);

/// Why elements of the last array failed.
struct Reasons {
  struct Row {
    std::size_t index;  ///< into the result, in C order
    std::uint32_t text;
  };
  std::vector<Py_ssize_t> shape;
  std::vector<Row> rows;
  std::vector<std::string> texts;
};

class Core {
 public:
  Core();
  ~Core();
  Core(const Core&) = delete;
  Core& operator=(const Core&) = delete;

  /// Calls with the engine, one thread at a time. Called with the interpreter's lock; `work` must
  /// not touch Python: it may not start what waits for this very engine.
  template <class Work>
  auto with(Work&& work) {
    lock(mutex_);
    const std::unique_lock held(mutex_, std::adopt_lock);
    return work(engine_);
  }

  /// The same for what changes units or settings.
  template <class Work>
  auto change(Work&& work) {
    return with([&](ZvThermoInt& engine) {
      ++generation_;
      idle_.clear();
      return work(engine);
    });
  }
  /// Grows with each change.
  [[nodiscard]] unsigned generation() const noexcept { return generation_; }

  /// An engine with the same units and settings for one call. Needs no interpreter's lock.
  class Loan {
   public:
    explicit Loan(Core& core);
    ~Loan();
    Loan(const Loan&) = delete;
    Loan& operator=(const Loan&) = delete;
    [[nodiscard]] ZvThermoInt& engine() noexcept { return *engine_; }

   private:
    Core& core_;
    unsigned generation_;
    std::unique_ptr<ZvThermoInt> engine_;
  };

  Errors errors = Errors::byKind;
  Reasons reasons;  ///< under the interpreter's lock

  /// A fork copies locks as they are: these hold all engines while it happens.
  static void beforeFork();
  static void afterFork();

 private:
  std::mutex mutex_;
  ZvThermoInt engine_;
  std::vector<std::unique_ptr<ZvThermoInt>> idle_;
  unsigned generation_ = 0;
  std::list<Core*>::iterator place_;
};

/// How a loop over many elements runs: on all cores, or on as many as the environment variable
/// CALVEX_THREADS says, for machines with several processes.
[[nodiscard]] const ChunkedLoop& allCores();

struct CoreObject {
  PyObject ob_base;
  Core* core;
  PyObject* choices;  ///< a dictionary: the units chosen, by group
};

[[nodiscard]] PyTypeObject* coreType();
[[nodiscard]] inline Core& coreOf(PyObject* object) {
  return *reinterpret_cast<CoreObject*>(object)->core;
}

/// Why a call failed, and what is behind that; empty where the engine left no word of it.
struct Failure {
  std::string reason, cause;
};
/// Of a call that began when `left` was made.
[[nodiscard]] Failure failureOf(const ZvThermoInt& engine, const EntryOfCall& left);
/// A reason and what is behind it, which may be empty.
[[nodiscard]] std::string withCause(std::string_view reason, std::string_view cause);
/// Raises CalvexError with that text.
void raiseError(PyObject* text, std::string_view member, std::string_view reason,
                std::string_view cause);
/// "HPT failed: ..."
[[nodiscard]] Ref failureText(std::string_view member, std::string_view reason,
                              std::string_view cause);
/// Raises CalvexError with the engine's text and answers null.
PyObject* raiseFailure(std::string_view member, std::string_view reason, std::string_view cause);
[[nodiscard]] PyObject* calvexError();
[[nodiscard]] PyObject* calvexWarning();
/// Adds the types and exceptions; false with an exception.
[[nodiscard]] bool addCore(PyObject* module);

}  // namespace calvex::python
