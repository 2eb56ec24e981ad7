// A million calls by one program: memory is as it was.
#include <gtest/gtest.h>
#ifdef __linux__
#include <unistd.h>
#endif

#include <cstdio>
#include <string>

#include "c/requests.h"
#include "calvex/calvex.h"

namespace {

using calvex::test::requestOf;
using calvex::test::rowsOf;

// Bytes of the process that are in memory, by the kernel's account; 0 where it is not known.
long residentBytes() {
  long pages = 0;
#ifdef __linux__
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (file == nullptr || std::fscanf(file, "%*d %ld", &pages) != 1) pages = 0;
  if (file != nullptr) std::fclose(file);
  pages *= sysconf(_SC_PAGESIZE);
#endif
  return pages;
}

int numberOf(const char* name) {
  int member = -1;
  EXPECT_EQ(calvex_find_member(name, CALVEX_TERMINATED, &member), CALVEX_OK) << name;
  return member;
}

/// A program that uses all there is, over and over.
class Program {
 public:
  Program() { EXPECT_EQ(calvex_create(&engine_), CALVEX_OK); }
  ~Program() { calvex_destroy(engine_); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  void run(long calls) {
    for (long i = 0; i < calls; ++i) {
      if (step(i)) continue;
      ADD_FAILURE() << "call " << i << ": " << text();
      return;
    }
  }

 private:
  // Mostly properties; each sixteenth call one of the others, a thousandth of them a new engine.
  bool step(long i) {
    const double given[] = {1.0 + static_cast<double>(i % 50),
                            600.0 + static_cast<double>(i % 300)};
    const double tooHot[] = {10.0, 3000.0};
    double value = 0.0;
    if (i % 16 != 0) return calvex_call(engine_, HPT_, given, 2, &value, 1) == CALVEX_OK;
    switch (i / 16 % 8) {
      case 0:
        return calvex_call(engine_, HPT_, tooHot, 2, &value, 1) == 108;
      case 1:
        return calvex_call_named(engine_, "no member", 9, given, 2, &value, 1) == CALVEX_UNKNOWN;
      case 2:
        return calvex_set_unit(engine_, "P", 1, i % 32 == 0 ? "bar" : "mbar", CALVEX_TERMINATED) ==
                   CALVEX_OK &&
               calvex_set_unit(engine_, "P", 1, "MPa", 3) == CALVEX_OK;
      case 3: {
        const double turbine[] = {3214.0, 4.0, 0.01, 0.8, 10.0};
        const char* const tokens[] = {"Pow, T_Out"};
        return calvex_call_texts(engine_, XLTurbineA_, turbine, 5, tokens, nullptr, 1, nullptr,
                                 0) == CALVEX_OK &&
               calvex_answer_number(engine_, 0, 1, &value) == CALVEX_OK && value > 0.0;
      }
      case 4:
        return direct(given);
      case 5:
        return columns(given);
      case 6:
        return calvex_put_text(engine_, AppName_, "K\u00F6ln", CALVEX_TERMINATED) == CALVEX_OK &&
               calvex_call(engine_, AppName_, nullptr, 0, nullptr, 0) == CALVEX_OK &&
               !text().empty();
      default:
        return i / 128 % 64 != 0 || anotherEngine();
    }
  }

  bool direct(const double* given) {
    double value = 0.0;
    short status = -1;
    const calvex_result result{'S', {&value, 1}, {nullptr, 0}, {nullptr, 0}};
    const calvex_request request =
        requestOf("PT", 1, {given, 1}, {given + 1, 1}, {&result, 1}, {&status, 1});
    return calvex_direct(engine_, &request, sizeof request) == CALVEX_OK && status == 0;
  }
  bool columns(const double* given) {
    const double T[] = {given[1], 3000.0};
    double values[2];
    short status[2];
    const calvex_column inputs[] = {{given, 0}, {T, 1}};
    const calvex_output output{0, {values, 1}};
    const calvex_rows rows = rowsOf(HPT_, 2, inputs, {&output, 1}, {status, 1});
    return calvex_columns(engine_, &rows, sizeof rows) == CALVEX_OK && status[0] == 0 &&
           status[1] == 108;
  }
  bool anotherEngine() {
    std::size_t nodes = 0;
    calvex_engine* other = nullptr;
    const bool done = calvex_trace_take(engine_, &nodes) == CALVEX_OK && nodes > 1 &&
                      calvex_create(&other) == CALVEX_OK &&
                      calvex_take_settings(other, engine_) == CALVEX_OK &&
                      calvex_reset(engine_) == CALVEX_OK;
    calvex_destroy(engine_);
    engine_ = other;
    return done;
  }
  std::string text() {
    char text[400] = "";
    calvex_last_error(engine_, text, sizeof text, nullptr);
    return text;
  }

  calvex_engine* engine_ = nullptr;
  int HPT_ = numberOf("HPT");
  int XLTurbineA_ = numberOf("XLTurbineA");
  int AppName_ = numberOf("AppName");
};

// The address sanitizer keeps for a while what is freed, and finds leaks by itself at the end.
#ifdef __SANITIZE_ADDRESS__
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

TEST(CEndurance, AMillionCallsLeaveMemoryAsItWas) {
  constexpr long calls = sanitized ? 100000 : 1000000;
  Program program;
  program.run(100000);  // tables are made, the trace is full
  const long before = residentBytes();
  program.run(calls);
  // A byte a call would be a megabyte; the trace's own coming and going is less than half of it.
  if (!sanitized && before > 0) {
    EXPECT_LT(residentBytes() - before, 500000);
  }
}

}  // namespace
