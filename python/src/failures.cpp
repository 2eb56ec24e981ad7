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

void Failures::add(const char* element, std::string_view text) {
  const std::scoped_lock lock(mutex_);
  const auto [found, isNew] =
      numbers_.try_emplace(std::string(text), static_cast<std::uint32_t>(texts_.size()));
  if (isNew) {
    texts_.emplace_back(text);
    counts_.push_back(0);
  }
  ++counts_[found->second];
  rows_.push_back({element, found->second});
}

Ref Failures::summary(std::string_view member, std::size_t elements) const {
  const Ref name = unicode(member);
  if (!name) return {};
  Ref text(PyUnicode_FromFormat("%U failed for %zu of %zu elements", name.get(), rows_.size(),
                                elements));
  std::vector<std::size_t> order(texts_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, std::greater{}, [&](std::size_t i) { return counts_[i]; });
  constexpr std::size_t most = 5;
  for (std::size_t i = 0; i < order.size() && i < most && text; ++i) {
    const Ref reason = decoded(texts_[order[i]]);
    if (!reason) return {};
    text = Ref(PyUnicode_FromFormat("%U%s %zu x %U", text.get(), i == 0 ? ":" : ";",
                                    counts_[order[i]], reason.get()));
  }
  if (order.size() > most && text) {
    text = Ref(PyUnicode_FromFormat("%U; and %zu other reasons", text.get(), order.size() - most));
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
  if (text) raiseError(text.get(), member, texts_.front());
  return false;
}

}  // namespace calvex::python
