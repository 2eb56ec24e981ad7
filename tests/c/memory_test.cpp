// No memory: every function answers CALVEX_MEMORY, or does its work, and the engine serves on.
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <string>

#include "c/requests.h"
#include "calvex/calvex.h"

namespace {

using calvex::test::requestOf;
using calvex::test::rowsOf;

thread_local long left = -1;  // allocations until the memory ends; negative: never
thread_local bool refused = false;

}  // namespace

// The forms for arrays end in these.
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  if (left == 0) {
    refused = true;
    return nullptr;
  }
  if (left > 0) --left;
  return std::malloc(size == 0 ? 1 : size);
}
[[gnu::noinline]] void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
  std::free(memory);
}

namespace {

struct Use {
  const char* name;
  std::function<int(calvex_engine*)> run;
};

int call(calvex_engine* engine, const char* name, double a, double b) {
  const double given[] = {a, b};
  double result = 0.0;
  return calvex_call_named(engine, name, CALVEX_TERMINATED, given, 2, &result, 1);
}

const Use uses[] = {
    {"create",
     [](calvex_engine*) {
       calvex_engine* other = nullptr;
       const int code = calvex_create(&other);
       calvex_destroy(other);
       return code;
     }},
    {"HPT", [](calvex_engine* e) { return call(e, "HPT", 10.0, 700.0); }},
    {"a refused call", [](calvex_engine* e) { return call(e, "HPT", 10.0, 3000.0); }},
    {"a warned call", [](calvex_engine* e) { return call(e, "HPT", 10.0, 1500.0); }},
    {"an unknown member",
     [](calvex_engine* e) { return call(e, "a member that nobody has ever heard of", 1, 1); }},
    {"a unit", [](calvex_engine* e) { return calvex_set_unit(e, "pressure", 8, "bar", 3); }},
    {"a unit beside the catalogue",
     [](calvex_engine* e) { return calvex_set_unit(e, "pressure", 8, "mbar", 4); }},
    {"a table",
     [](calvex_engine* e) {
       const double given[] = {3214.0, 40.0, 0.1, 0.8, 10.0};
       const char* const tokens[] = {"Pow, T_Out, H_Out, Q_Out"};
       return calvex_call_texts(e, 0x9c, given, 5, tokens, nullptr, 1, nullptr, 0);
     }},
    {"the trace",
     [](calvex_engine* e) {
       std::size_t count = 0;
       return calvex_trace_take(e, &count);
     }},
    {"reset", [](calvex_engine* e) { return calvex_reset(e); }},
    {"a title",
     [](calvex_engine*) {
       char text[100];
       return calvex_member_text(0x8a, CALVEX_MEMBER_TITLE, text, sizeof text, nullptr);
     }},
    {"an unknown unit", [](calvex_engine* e) { return calvex_set_unit(e, "P", 1, "psix", 4); }},
    {"a call that fails without a word",
     [](calvex_engine* e) {
       return calvex_call_named(e, "GetCellRef", 10, nullptr, 0, nullptr, 0);
     }},
    {"a text that does not fit",
     [](calvex_engine* e) {
       char letter = '?';
       return calvex_unit(e, 0, &letter, 1, nullptr);
     }},
    {"the reason of a state",
     [](calvex_engine* e) {
       char text[400];
       return calvex_direct_reason(e, 'P', 'H', 1.0, 1e5, "T", 1, text, sizeof text, nullptr);
     }},
    {"columns of which one row fails",
     [](calvex_engine* e) {
       const double P = 1.0, T[] = {700.0, 3000.0};
       double h[2];
       short status[2];
       const calvex_column inputs[] = {{&P, 0}, {T, 1}};
       const calvex_output output{0, {h, 1}};
       const calvex_rows rows = rowsOf(0x33, 2, inputs, {&output, 1}, {status, 1});
       return calvex_columns(e, &rows, sizeof rows);
     }},
    {"columns",
     [](calvex_engine* e) {
       const double P = 1.0, T = 700.0;
       double h[3];
       const calvex_column inputs[] = {{&P, 0}, {&T, 0}};
       const calvex_output output{0, {h, 1}};
       const calvex_rows rows = rowsOf(0x33, 3, inputs, {&output, 1});
       return calvex_columns(e, &rows, sizeof rows);
     }},
    {"the direct road",
     [](calvex_engine* e) {
       const double h = 3000.0, s = 6.5;
       double T;
       const calvex_result result{'T', {&T, 1}, {nullptr, 0}, {nullptr, 0}};
       const calvex_request request = requestOf("HS", 1, {&h, 1}, {&s, 1}, {&result, 1});
       return calvex_direct(e, &request, sizeof request);
     }},
};

TEST(CMemory, WhereItEndsNothingElseDoes) {
  for (const Use& use : uses) {
    calvex_engine* engine = nullptr;
    ASSERT_EQ(calvex_create(&engine), CALVEX_OK);
    bool failed = false;
    int code = CALVEX_MEMORY;
    long allowed = 0;
    for (; allowed < 100000 && left < 0; ++allowed) {
      refused = false;
      left = allowed;
      code = use.run(engine);
      left = -1;
      if (!refused) break;
      failed = failed || code == CALVEX_MEMORY;
    }
    EXPECT_LT(allowed, 100000) << use.name;
    EXPECT_NE(code, CALVEX_MEMORY) << use.name;
    EXPECT_TRUE(failed || allowed == 0) << use.name;
    double h = 0.0;
    const double given[] = {10.0, 773.15};
    ASSERT_EQ(calvex_reset(engine), CALVEX_OK) << use.name;
    ASSERT_EQ(calvex_set_unit(engine, "pressure", 8, "MPa", 3), CALVEX_OK) << use.name;
    EXPECT_EQ(calvex_call(engine, 0x33, given, 2, &h, 1), CALVEX_OK) << use.name;
    EXPECT_NEAR(h, 3374.0, 0.5) << use.name;  // Haar, Gallagher, Kell (1984)
    calvex_destroy(engine);
  }
}

}  // namespace
