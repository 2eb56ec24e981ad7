#include <algorithm>

#include "direct/chunks.h"
#include "direct/direct_road.h"
#include "functions.h"
#include "numpy_api.h"
#include "server/direct_members.h"

namespace calvex::python {

namespace {

constexpr std::string_view pairNames[] = {"PT", "PH", "PS", "PU", "PR", "PV", "TH",
                                          "TS", "TU", "TR", "TV", "PQ", "TQ", "HS"};
static_assert(std::size(pairNames) == direct::pairCount);
constexpr std::string_view letters = "PTHSURVQAGMKCDZWNEIJBL";
static_assert(letters.size() == direct::letterCount);

// The engine's units, also those that its catalogue lacks: they are linear all the same.
direct::Units unitsOf(ZvThermoInt& engine) {
  if (std::optional<direct::Units> units = directUnits(engine.units())) return *units;
  direct::Units units = direct::modelUnits();
  for (int i = 0; i < direct::letterCount; ++i) {
    const Quantity& row = quantity(static_cast<Quantity::Letter>(i));
    if (!row.hasUnit) continue;
    const double zero = engine.units().toInternal(row.group, 0.0);
    const double factor = engine.units().toInternal(row.group, 1.0) - zero;
    direct::Unit& unit = units.at(static_cast<std::size_t>(i));
    unit.factor = factor;
    unit.offset = zero / factor;
  }
  return units;
}

std::optional<direct::Pair> readPair(std::string_view name) {
  const auto* const found = std::ranges::find(pairNames, name);
  if (found != std::end(pairNames)) return static_cast<direct::Pair>(found - std::begin(pairNames));
  PyErr_Format(PyExc_ValueError, "there is no pair %.*s", int(name.size()), name.data());
  return std::nullopt;
}

// Letters of the members' names; others are passed over.
std::vector<direct::Letter> readLetters(std::string_view names) {
  std::vector<direct::Letter> which;
  for (const char letter : names) {
    if (const std::size_t at = letters.find(letter); at != std::string_view::npos) {
      which.push_back(static_cast<direct::Letter>(at));
    }
  }
  return which;
}

}  // namespace

// states(core, pair, first, second, letters): arrays of doubles of one dimension and length, or of
// length 1; answers (values of shape (letters, n), phases, status).
PyObject* states(PyObject* /*module*/, PyObject* arguments) {
  PyObject *object = nullptr, *first = nullptr, *second = nullptr;
  const char *pairName = nullptr, *wanted = nullptr;
  if (!PyArg_ParseTuple(arguments, "OsO!O!s", &object, &pairName, &PyArray_Type, &first,
                        &PyArray_Type, &second, &wanted)) {
    return nullptr;
  }
  Core* const core = coreArgument(object);
  if (core == nullptr) return nullptr;
  const std::optional<direct::Pair> pair = readPair(pairName);
  const std::vector<direct::Letter> which = readLetters(wanted);
  const Ref a(PyArray_FROM_OTF(first, NPY_DOUBLE, NPY_ARRAY_IN_ARRAY));
  const Ref b(PyArray_FROM_OTF(second, NPY_DOUBLE, NPY_ARRAY_IN_ARRAY));
  if (!pair || !a || !b) return nullptr;
  auto* const given = reinterpret_cast<PyArrayObject*>(a.get());
  auto* const other = reinterpret_cast<PyArrayObject*>(b.get());
  const npy_intp n = std::max(PyArray_SIZE(given), PyArray_SIZE(other));
  const auto fits = [n](PyArrayObject* array) {
    return PyArray_SIZE(array) == n || PyArray_SIZE(array) == 1;
  };
  if (!fits(given) || !fits(other)) {
    PyErr_SetString(PyExc_ValueError, "the two inputs have different lengths");
    return nullptr;
  }
  npy_intp shape[] = {static_cast<npy_intp>(which.size()), n};
  const Ref values(PyArray_SimpleNew(2, shape, NPY_DOUBLE));
  const Ref phases(PyArray_SimpleNew(1, &n, NPY_INT8));
  const Ref status(PyArray_SimpleNew(1, &n, NPY_INT16));
  if (!values || !phases || !status) return nullptr;
  const auto data = [](const Ref& array) {
    return PyArray_DATA(reinterpret_cast<PyArrayObject*>(array.get()));
  };
  std::vector<direct::Result> results;
  for (std::size_t i = 0; i < which.size(); ++i) {
    results.push_back(
        {which[i], {static_cast<double*>(data(values)) + i * static_cast<std::size_t>(n)}});
  }
  const direct::Units units = core->with([](ZvThermoInt& engine) { return unitsOf(engine); });
  direct::Request request{*pair,
                          {static_cast<const double*>(data(a)), PyArray_SIZE(given) == 1 ? 0 : 1},
                          {static_cast<const double*>(data(b)), PyArray_SIZE(other) == 1 ? 0 : 1},
                          results};
  request.phase = {static_cast<direct::Phase*>(data(phases))};
  request.status = {static_cast<short*>(data(status))};
  request.units = &units;
  const auto compute = [&](const Chunk& chunk) {
    direct::evaluate(request, chunk.begin, chunk.end);
  };
  constexpr npy_intp few = 500;
  if (n <= few) {
    compute({0, static_cast<std::size_t>(n), 0});
  } else {
    const Unlocked unlocked;
    forEachChunk(static_cast<std::size_t>(n), allCores(), compute);
  }
  return PyTuple_Pack(3, values.get(), phases.get(), status.get());
}

// reason(core, pair, first, second, letters): why a state fails, in the user's units.
PyObject* stateReason(PyObject* /*module*/, PyObject* arguments) {
  PyObject* object = nullptr;
  const char *pairName = nullptr, *wanted = nullptr;
  double first = 0.0, second = 0.0;
  if (!PyArg_ParseTuple(arguments, "Osdds", &object, &pairName, &first, &second, &wanted)) {
    return nullptr;
  }
  Core* const core = coreArgument(object);
  if (core == nullptr) return nullptr;
  const std::optional<direct::Pair> pair = readPair(pairName);
  if (!pair) return nullptr;
  const DirectReason reason = core->with([&](ZvThermoInt& engine) {
    return directReason(*pair, first, second, readLetters(wanted), unitsOf(engine), engine);
  });
  return decoded(reason.text).release();
}

}  // namespace calvex::python
