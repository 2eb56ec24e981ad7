// What emscripten's standard library, libc++ 13, lacks of C++20: included before everything else.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

_LIBCPP_BEGIN_NAMESPACE_STD

// --- Algorithms over ranges with projections
// ------------------------------------------------------

namespace ranges {

template <class Range, class Test, class Projection = identity>
constexpr auto find_if(Range&& range, Test test, Projection projection = {}) {
  auto at = std::begin(range);
  for (; at != std::end(range); ++at) {
    if (std::invoke(test, std::invoke(projection, *at))) break;
  }
  return at;
}

template <class Range, class Value, class Projection = identity>
constexpr auto find(Range&& range, const Value& value, Projection projection = {}) {
  return ranges::find_if(
      range, [&](const auto& element) { return element == value; }, projection);
}

template <class Range, class Test, class Projection = identity>
constexpr bool any_of(Range&& range, Test test, Projection projection = {}) {
  return ranges::find_if(range, test, projection) != std::end(range);
}
template <class Range, class Test, class Projection = identity>
constexpr bool none_of(Range&& range, Test test, Projection projection = {}) {
  return !ranges::any_of(range, test, projection);
}
template <class Range, class Test, class Projection = identity>
constexpr bool all_of(Range&& range, Test test, Projection projection = {}) {
  return ranges::none_of(range, std::not_fn(test), projection);
}

template <class Range, class Test, class Projection = identity>
constexpr ptrdiff_t count_if(Range&& range, Test test, Projection projection = {}) {
  ptrdiff_t count = 0;
  for (auto&& element : range) count += std::invoke(test, std::invoke(projection, element)) ? 1 : 0;
  return count;
}
template <class Range, class Value>
constexpr ptrdiff_t count(Range&& range, const Value& value) {
  return ranges::count_if(range, [&](const auto& element) { return element == value; });
}

template <class A, class B, class Same = std::equal_to<>, class OfA = identity,
          class OfB = identity>
constexpr bool equal(A&& a, B&& b, Same same = {}, OfA ofA = {}, OfB ofB = {}) {
  return std::equal(std::begin(a), std::end(a), std::begin(b), std::end(b),
                    [&](const auto& x, const auto& y) {
                      return std::invoke(same, std::invoke(ofA, x), std::invoke(ofB, y));
                    });
}

template <class In, class Out>
struct CopyEnd {
  In in;
  Out out;
};
template <class Range, class Out>
constexpr auto copy(Range&& range, Out out) {
  const auto stop = std::copy(std::begin(range), std::end(range), out);
  return CopyEnd<decltype(std::end(range)), Out>{std::end(range), stop};
}
template <class Range, class Out, class Change>
constexpr auto transform(Range&& range, Out out, Change change) {
  return std::transform(std::begin(range), std::end(range), out,
                        [&](auto& element) { return std::invoke(change, element); });
}

template <class Order, class Projection>
constexpr auto byProjection(Order& order, Projection& projection) {
  return [&](const auto& a, const auto& b) {
    return std::invoke(order, std::invoke(projection, a), std::invoke(projection, b));
  };
}
template <class Range, class Order = std::less<>, class Projection = identity>
constexpr bool is_sorted(Range&& range, Order order = {}, Projection projection = {}) {
  return std::is_sorted(std::begin(range), std::end(range), byProjection(order, projection));
}
template <class Range, class Order = std::less<>, class Projection = identity>
void sort(Range&& range, Order order = {}, Projection projection = {}) {
  std::sort(std::begin(range), std::end(range), byProjection(order, projection));
}
template <class Range, class Order = std::less<>, class Projection = identity>
void stable_sort(Range&& range, Order order = {}, Projection projection = {}) {
  std::stable_sort(std::begin(range), std::end(range), byProjection(order, projection));
}
template <class Range, class Value, class Order = std::less<>, class Projection = identity>
constexpr auto lower_bound(Range&& range, const Value& value, Order order = {},
                           Projection projection = {}) {
  return std::lower_bound(std::begin(range), std::end(range), value,
                          [&](const auto& element, const Value& wanted) {
                            return std::invoke(order, std::invoke(projection, element), wanted);
                          });
}

}  // namespace ranges

// --- Numbers
// --------------------------------------------------------------------------------------

template <class To, class From>
constexpr To bit_cast(const From& from) noexcept {
  return __builtin_bit_cast(To, from);
}

inline from_chars_result from_chars(const char* first, const char* last, double& number) {
  const string text(first, last);  // with the zero byte that strtod needs
  char* rest = nullptr;
  const double read = strtod(text.c_str(), &rest);
  if (rest == text.c_str()) return {first, errc::invalid_argument};
  number = read;
  return {first + (rest - text.c_str()), errc{}};
}

// --- Threads, of which there is but one
// -------------------------------------------------------------

class jthread {
 public:
  template <class Work>
  explicit jthread(Work&&) {
    throw system_error(make_error_code(errc::resource_unavailable_try_again));
  }
};

_LIBCPP_END_NAMESPACE_STD
