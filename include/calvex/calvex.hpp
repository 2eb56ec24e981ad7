/// \file
/// Calvex from C++20, over the C interface of calvex.h: nothing but inline functions, so that a
/// program and the library need not come from the same compiler.
///
///     calvex::Engine steam;
///     steam.unit("T", "°C");
///     steam.unit("pressure", "bar");
///     const double h = steam.HPT(100, 500);  // throws calvex::Error where there is no answer
///
/// An engine serves one thread at a time; make one for each thread. Texts are UTF-8. An engine that
/// was moved away answers every call with calvex::Error, code CALVEX_NULL, until another is
/// assigned.
#pragma once

#if __cplusplus < 202002L && (!defined _MSVC_LANG || _MSVC_LANG < 202002L)
#error "calvex.hpp needs C++20: -std=c++20"
#endif

#include <array>
#include <cstddef>
#include <initializer_list>
#include <new>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "calvex/calvex.h"

namespace calvex {

/// A call that failed: `what()` is the reason and, where there is one, the cause behind it.
class Error : public std::runtime_error {
 public:
  Error(int code, const std::string& reason, const std::string& cause = {})
      : std::runtime_error(cause.empty() ? reason : reason + ' ' + cause),
        code_(code),
        reasonSize_(reason.size()) {}
  /// The number of the engine's message, or a negative code of calvex.h.
  [[nodiscard]] int code() const noexcept { return code_; }
  /// The engine's text.
  [[nodiscard]] std::string_view reason() const noexcept {
    return std::string_view(what()).substr(0, reasonSize_);
  }
  /// What is behind the reason where it does not say so itself; mostly empty.
  [[nodiscard]] std::string_view cause() const noexcept {
    const std::string_view all = what();
    return all.size() > reasonSize_ ? all.substr(reasonSize_ + 1) : std::string_view();
  }

 private:
  int code_;
  std::size_t reasonSize_;
};

/// An answer with rows and columns.
using Table = std::vector<std::vector<std::variant<double, std::string>>>;

/// A property of many states; what is not wanted stays empty.
struct StateResult {
  char letter;
  std::span<double> values;
  std::span<double> byFirst = {};
  std::span<double> bySecond = {};
};

/// What all engines have; `Engine` adds the members.
class Core {
 public:
  Core() { check(calvex_create(&engine_)); }
  ~Core() { calvex_destroy(engine_); }
  Core(Core&& other) noexcept : engine_(std::exchange(other.engine_, nullptr)) {}
  Core& operator=(Core&& other) noexcept {
    Core moved(std::move(other));
    std::swap(engine_, moved.engine_);
    return *this;
  }

  /// For the functions of calvex.h; NULL when it was moved away.
  [[nodiscard]] calvex_engine* handle() const noexcept { return engine_; }

  /// Trace and settings as at the beginning. The units stay.
  void reset() { check(calvex_reset(engine_)); }
  /// Takes over another engine's units and the settings that results depend on.
  void takeSettings(const Core& other) { check(calvex_take_settings(engine_, other.engine_)); }

  /// Chooses the unit of a quantity, both in plain words: ("pressure", "bar").
  void unit(std::string_view group, std::string_view unit) {
    check(calvex_set_unit(engine_, group.data(), group.size(), unit.data(), unit.size()));
  }
  /// The unit of a quantity.
  [[nodiscard]] std::string unit(std::string_view group) const {
    int number = 0;
    if (calvex_find_group(group.data(), group.size(), &number) != CALVEX_OK) {
      // Fails as well, and tells what groups there are.
      check(calvex_set_unit(engine_, group.data(), group.size(), "", 0));
    }
    return text([&](char* target, std::size_t size, std::size_t* needed) {
      return calvex_unit(engine_, number, target, size, needed);
    });
  }

  /// What the last failure was, and what is behind it: of a call, or of the first state of `states`
  /// that failed, where `status` was asked for.
  [[nodiscard]] std::string lastError() const {
    return text([&](char* target, std::size_t size, std::size_t* needed) {
      return calvex_last_error(engine_, target, size, needed);
    });
  }
  [[nodiscard]] std::string lastCause() const {
    return text([&](char* target, std::size_t size, std::size_t* needed) {
      return calvex_last_cause(engine_, target, size, needed);
    });
  }

  /// Calls a member by its name.
  void call(std::string_view name, std::span<const double> inputs, std::span<double> outputs) {
    check(calvex_call_named(engine_, name.data(), name.size(), inputs.data(), inputs.size(),
                            outputs.data(), outputs.size()));
  }

  /// Many states at once from two properties by their letters ("PH"), on all cores. All spans have
  /// as many elements as `first`. `status` receives 0 or the number of a message for each; the
  /// results of a state that fails are NaN.
  void states(std::string_view pair, std::span<const double> first, std::span<const double> second,
              std::span<const StateResult> results, std::span<short> status = {},
              std::span<short> phase = {}) {
    const std::size_t n = first.size();
    if (pair.size() != 2) {
      throw Error(CALVEX_UNKNOWN,
                  "A pair is two letters, such as PH, not \"" + std::string(pair) + "\".");
    }
    bool fits = second.size() == n;
    const auto target = [&](auto span) {
      fits = fits && (span.empty() || span.size() == n);
      return span.empty() ? nullptr : span.data();
    };
    std::vector<calvex_result> wanted;
    for (const StateResult& result : results) {
      wanted.push_back({result.letter,
                        {target(result.values), 1},
                        {target(result.byFirst), 1},
                        {target(result.bySecond), 1}});
    }
    calvex_request request{};
    request.status = {target(status), 1};
    request.phase = {target(phase), 1};
    if (!fits) {
      throw Error(CALVEX_COUNT, "Every span of states has as many elements as the first, " +
                                    std::to_string(n) + ", or is left out.");
    }
    request.first_letter = pair[0];
    request.second_letter = pair[1];
    request.count = n;
    request.first = {first.data(), 1};
    request.second = {second.data(), 1};
    request.results = wanted.data();
    request.result_count = wanted.size();
    check(calvex_direct(engine_, &request, sizeof request));
  }

 protected:
  /// Calls a member with its numbers and texts; `Count` numbers come out.
  template <std::size_t Count>
  std::array<double, Count> compute(int member, std::initializer_list<double> numbers,
                                    std::initializer_list<std::string_view> texts) {
    std::array<double, Count> results{};
    std::array<const char*, maxTexts> data{};
    std::array<std::size_t, maxTexts> sizes{};
    std::size_t count = 0;
    for (const std::string_view text : texts) {
      data[count] = text.data();
      sizes[count++] = text.size();
    }
    check(calvex_call_texts(engine_, member, numbers.begin(), numbers.size(), data.data(),
                            sizes.data(), count, results.data(), Count));
    return results;
  }
  void put(int member, double value) { check(calvex_put(engine_, member, value)); }
  void put(int member, std::string_view value) {
    check(calvex_put_text(engine_, member, value.data(), value.size()));
  }

  /// What the last call answered besides numbers.
  [[nodiscard]] std::string answeredText() const { return cellText(0, 0); }
  [[nodiscard]] Table table() const {
    std::size_t rows = 0, columns = 0;
    check(calvex_answer_size(engine_, &rows, &columns));
    Table answer(rows);
    for (std::size_t row = 0; row < rows; ++row) {
      for (std::size_t column = 0; column < columns; ++column) {
        int kind = 0;
        double number = 0.0;
        check(calvex_answer_kind(engine_, row, column, &kind));
        if (kind == CALVEX_CELL_TEXT) {
          answer[row].emplace_back(cellText(row, column));
        } else {
          check(calvex_answer_number(engine_, row, column, &number));
          answer[row].emplace_back(number);
        }
      }
    }
    return answer;
  }

 private:
  static constexpr std::size_t maxTexts = 4;

  void check(int code) const {
    if (code == CALVEX_OK) return;
    if (code == CALVEX_MEMORY) throw std::bad_alloc();
    if (engine_ == nullptr) throw Error(code, "There is no engine: it was moved away.");
    throw Error(code, lastError(), lastCause());
  }

  template <class Get>
  std::string text(Get get) const {
    std::size_t needed = 1;
    check(get(nullptr, 0, &needed));
    std::string answer(needed, '\0');
    check(get(answer.data(), answer.size(), &needed));
    answer.pop_back();
    return answer;
  }
  [[nodiscard]] std::string cellText(std::size_t row, std::size_t column) const {
    return text([&](char* target, std::size_t size, std::size_t* needed) {
      return calvex_answer_text(engine_, row, column, target, size, needed);
    });
  }

  calvex_engine* engine_ = nullptr;
};

}  // namespace calvex

#include "calvex/members.hpp"  // Engine
