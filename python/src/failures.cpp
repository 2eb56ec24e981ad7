#include "failures.h"

#include <algorithm>
#include <numeric>

namespace calvex::python {

thread_local Failures* Failures::current_ = nullptr;

namespace {

// Where an address lies in an array, in C order: its offset taken apart by the strides, the longest
// first.
class Places {
 public:
  explicit Places(PyArrayObject* array) : first_(PyArray_BYTES(array)) {
    const int dimensions = PyArray_NDIM(array);
    std::vector<int> order(static_cast<std::size_t>(dimensions));
    std::iota(order.begin(), order.end(), 0);
    npy_intp weight = 1;
    std::vector<npy_intp> weights(order.size());
    for (int d = dimensions - 1; d >= 0; --d) {
      weights[static_cast<std::size_t>(d)] = weight;
      weight *= PyArray_DIM(array, d);
    }
    std::ranges::stable_sort(order, std::greater{},
                             [&](int d) { return std::abs(PyArray_STRIDE(array, d)); });
    for (const int d : order) {
      const npy_intp count = PyArray_DIM(array, d);
      npy_intp stride = PyArray_STRIDE(array, d);
      npy_intp step = weights[static_cast<std::size_t>(d)];
      if (count < 2 || stride == 0) continue;
      if (stride < 0) {
        first_ += stride * (count - 1);
        flat_ += step * (count - 1);
        stride = -stride;
        step = -step;
      }
      axes_.push_back({stride, step});
    }
  }

  [[nodiscard]] std::size_t of(const char* element) const {
    npy_intp offset = element - first_;
    npy_intp flat = flat_;
    for (const Axis& axis : axes_) {
      flat += offset / axis.stride * axis.step;
      offset %= axis.stride;
    }
    return static_cast<std::size_t>(flat);
  }

 private:
  struct Axis {
    npy_intp stride, step;
  };
  const char* first_;
  npy_intp flat_ = 0;
  std::vector<Axis> axes_;
};

}  // namespace

void Failures::add(const char* element, std::string_view reason, std::string_view cause) {
  // Every cause may be another: beyond so many texts an element has its reason alone.
  constexpr std::size_t mostTexts = 10'000;
  const std::scoped_lock lock(mutex_);
  Kind& kind = kinds_
                   .try_emplace(std::string(reason),
                                Kind{std::string(reason), std::string(cause), element, 0, false})
                   .first->second;
  ++kind.count;
  if (kind.cause != cause) kind.severalCauses = true;
  if (element < kind.first) {
    kind.first = element;
    kind.cause = cause;
  }
  const auto [found, isNew] = numbers_.try_emplace(
      texts_.size() < mostTexts ? withCause(reason, cause) : std::string(reason),
      static_cast<std::uint32_t>(texts_.size()));
  if (isNew) texts_.push_back(found->first);
  rows_.push_back({element, found->second});
}

// The most frequent first, then as the array has them.
std::vector<const Failures::Kind*> Failures::kinds() const {
  std::vector<const Kind*> all;
  all.reserve(kinds_.size());
  for (const auto& entry : kinds_) all.push_back(&entry.second);
  std::ranges::sort(all, [](const Kind* a, const Kind* b) {
    return a->count != b->count ? a->count > b->count : a->first < b->first;
  });
  return all;
}

Ref Failures::summary(std::string_view member, std::size_t elements) const {
  const Ref name = unicode(member);
  if (!name) return {};
  Ref text(PyUnicode_FromFormat("%U failed for %zu of %zu elements", name.get(), rows_.size(),
                                elements));
  const std::vector<const Kind*> all = kinds();
  constexpr std::size_t most = 5;
  for (std::size_t i = 0; i < all.size() && i < most && text; ++i) {
    const Kind& kind = *all[i];
    const Ref reason = unicode(
        withCause(kind.reason, kind.severalCauses ? "The first: " + kind.cause : kind.cause));
    if (!reason) return {};
    text = Ref(PyUnicode_FromFormat("%U%s %zu x %U", text.get(), i == 0 ? ":" : ";", kind.count,
                                    reason.get()));
  }
  if (all.size() > most && text) {
    text = Ref(PyUnicode_FromFormat("%U; and %zu other reasons", text.get(), all.size() - most));
  }
  return text;
}

bool Failures::warn(std::string_view member, std::size_t elements) const {
  const Ref text = summary(member, elements);
  return text && PyErr_WarnFormat(calvexWarning(), 1, "%U", text.get()) == 0;
}

bool Failures::report(Core& core, std::string_view member, PyObject* result) {
  core.reasons = {};
  if (PyTuple_Check(result)) result = PyTuple_GET_ITEM(result, 0);
  std::size_t elements = 1;
  if (PyArray_Check(result)) {
    auto* const array = reinterpret_cast<PyArrayObject*>(result);
    elements = static_cast<std::size_t>(PyArray_SIZE(array));
    core.reasons.shape.assign(PyArray_DIMS(array), PyArray_DIMS(array) + PyArray_NDIM(array));
    if (!rows_.empty()) {
      const Places places(array);
      core.reasons.rows.reserve(rows_.size());
      for (const Row& row : rows_) {
        const std::size_t index = places.of(row.element);
        if (index < elements) core.reasons.rows.push_back({index, row.text});
      }
    }
  } else if (!rows_.empty()) {
    core.reasons.rows.push_back({0, rows_.front().text});
  }
  core.reasons.texts = texts_;
  if (rows_.empty() || errors_ == Errors::ignore) return true;
  if (errors_ != Errors::raise) return warn(member, elements);
  const Ref text = summary(member, elements);
  const Kind& foremost = *kinds().front();
  if (text) raiseError(text.get(), member, foremost.reason, foremost.cause);
  return false;
}

}  // namespace calvex::python
