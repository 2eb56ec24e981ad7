#include <algorithm>
#include <array>
#include <limits>

#include "direct/chunks.h"
#include "direct/direct_road.h"
#include "functions.h"
#include "numpy_api.h"
#include "server/direct_members.h"
#include "server/member_columns.h"
#include "steam/constants.h"

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

// The member that answers a letter from a pair; null for the pair's own letters.
const Member* memberOf(direct::Pair pair, direct::Letter letter) {
  using Table = std::array<std::array<const Member*, direct::letterCount>, direct::pairCount>;
  static const Table table = [] {
    Table all{};
    for (const Member& member : memberTable()) {
      const std::optional<DirectMember> row = directMember(member);
      if (!row) continue;
      const Member*& place =
          all.at(static_cast<std::size_t>(row->pair)).at(static_cast<std::size_t>(row->result));
      if (place == nullptr) place = &member;
    }
    return all;
  }();
  return table.at(static_cast<std::size_t>(pair)).at(static_cast<std::size_t>(letter));
}

// Asks a member for points of a pair. TSatP and its like have the pair's first input alone.
void askMember(const Member& member, const direct::Request& request, direct::Target<double> value,
               direct::Target<short> status,
               const std::function<void(std::size_t, std::string_view)>& reason,
               ZvThermoInt& engine, std::size_t n) {
  const NumericMember numeric = *NumericMember::of(member);
  const direct::Column inputs[] = {request.first, request.second};
  const MemberRequest::Output output{0, value};
  evaluate(MemberRequest{numeric, {inputs, numeric.inputs().size()}, {&output, 1}, status, reason},
           engine, 0, n);
}

// A letter of the request's points by the members; by the direct road where no member has it.
void askLetter(direct::Letter letter, const direct::Request& request, double* values, short* status,
               ZvThermoInt& engine, std::size_t n) {
  const bool first = letter == direct::firstOf(request.pair);
  if (first || letter == direct::secondOf(request.pair)) {
    const direct::Column& given = first ? request.first : request.second;
    for (std::size_t i = 0; i < n; ++i) {
      values[i] = given.data[static_cast<std::ptrdiff_t>(i) * given.stride];
      status[i] = 0;
    }
  } else if (const Member* member = memberOf(request.pair, letter)) {
    askMember(*member, request, {values}, {status}, {}, engine, n);
  } else {
    const direct::Result result[] = {{letter, {values}}};
    direct::Request alone{request.pair, request.first, request.second, result};
    alone.status = {status};
    alone.units = request.units;
    direct::evaluate(alone, 0, n);
    // What pressure and temperature leave open on the exact line is settled by the phase.
    if (letter == direct::Letter::Q) std::fill_n(status, n, short{0});
  }
}

// The request's points from that one on.
direct::Request from(const direct::Request& request, std::size_t begin,
                     std::vector<direct::Result>& results) {
  const auto shifted = [&](const direct::Column& column) {
    return direct::Column{column.data + static_cast<std::ptrdiff_t>(begin) * column.stride,
                          column.stride};
  };
  results.assign(request.results.begin(), request.results.end());
  for (direct::Result& result : results) result.value.data += begin;
  direct::Request rest{request.pair, shifted(request.first), shifted(request.second), results};
  rest.phase = {request.phase.data + begin};
  rest.status = {request.status.data + begin};
  rest.units = request.units;
  return rest;
}

// The points of a request by the members, for an engine whose settings are not the direct road's.
// Next to the saturation line the density tells the phase that they took, and the vapour fraction
// whether there are two.
void evaluateByMembers(const direct::Request& request, ZvThermoInt& engine, std::size_t n) {
  using direct::Letter;
  using direct::Phase;
  direct::Request phases{request.pair, request.first, request.second, {}};
  phases.phase = request.phase;
  phases.units = request.units;
  direct::evaluate(phases, 0, n);
  std::vector<short> status(n);
  std::fill_n(request.status.data, n, short{0});
  for (const direct::Result& result : request.results) {
    askLetter(result.letter, request, result.value.data, status.data(), engine, n);
    for (std::size_t i = 0; i < n; ++i) {
      if (request.status.data[i] == 0) request.status.data[i] = status[i];
    }
  }
  std::vector<double> fraction(n), density(n);
  askLetter(Letter::Q, request, fraction.data(), status.data(), engine, n);
  askLetter(Letter::R, request, density.data(), status.data(), engine, n);
  const bool onLine = direct::secondOf(request.pair) == Letter::Q;
  const bool fractionIsTheirs = onLine || memberOf(request.pair, Letter::Q) != nullptr;
  const direct::Unit& ofDensity = request.units->at(static_cast<std::size_t>(Letter::R));
  const direct::Unit& ofFraction = request.units->at(static_cast<std::size_t>(Letter::Q));
  for (std::size_t i = 0; i < n; ++i) {
    Phase& phase = request.phase.data[i];
    const double x = (fraction[i] + ofFraction.offset) * ofFraction.factor;
    if (request.status.data[i] != 0) {
      for (const direct::Result& result : request.results) {
        result.value.data[i] = std::numeric_limits<double>::quiet_NaN();
      }
      phase = Phase::none;
    } else if (onLine || (fractionIsTheirs && x > 0.0 && x < 1.0)) {
      phase = Phase::twoPhase;
    } else if (phase != Phase::supercritical) {
      const bool dense =
          (density[i] + ofDensity.offset) * ofDensity.factor > constants::criticalDensity;
      phase = dense ? Phase::liquid : Phase::vapour;
      for (const direct::Result& result : request.results) {
        if (result.letter != Letter::Q || fractionIsTheirs) continue;
        result.value.data[i] = (dense ? 0.0 : 1.0) / ofFraction.factor - ofFraction.offset;
      }
    }
  }
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
  const npy_intp n = PyArray_SIZE(given) == 1 ? PyArray_SIZE(other) : PyArray_SIZE(given);
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
  results.reserve(which.size());
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
  const bool byRoad = core->with([](ZvThermoInt& engine) { return hasDirectSettings(engine); });
  const auto compute = [&](const Chunk& chunk) {
    if (byRoad) return direct::evaluate(request, chunk.begin, chunk.end);
    Core::Loan loan(*core);
    std::vector<direct::Result> rest;
    evaluateByMembers(from(request, chunk.begin, rest), loan.engine(), chunk.end - chunk.begin);
  };
  constexpr npy_intp few = 500;
  try {
    if (n <= few) {
      compute({0, static_cast<std::size_t>(n), 0});
    } else {
      const Unlocked unlocked;
      forEachChunk(static_cast<std::size_t>(n), allCores(), compute);
    }
  } catch (const std::exception& failure) {
    PyErr_SetString(PyExc_RuntimeError, failure.what());
    return nullptr;
  }
  return PyTuple_Pack(3, values.get(), phases.get(), status.get());
}

// state_reason(core, pair, first, second, letters): why a state fails, in the user's units, and
// what is behind that: both as a member says it that fails there.
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
  const std::vector<direct::Letter> which = readLetters(wanted);
  DirectReason reason;
  Core::Loan loan(*core);
  direct::Request request{*pair, {&first, 0}, {&second, 0}, {}};
  for (const direct::Letter letter : which) {
    const Member* const member = memberOf(*pair, letter);
    double value = 0.0;
    const auto tell = [&](std::size_t /*row*/, std::string_view text) {
      reason = {std::string(text), loan.engine().diagnostics().cause()};
    };
    if (member != nullptr) askMember(*member, request, {&value}, {}, tell, loan.engine(), 1);
    if (!reason.text.empty()) break;
  }
  if (reason.text.empty()) {
    reason = directReason(*pair, first, second, which, unitsOf(loan.engine()), loan.engine());
  }
  const Ref why = unicode(reason.text);
  const Ref behind = unicode(reason.cause);
  return why && behind ? PyTuple_Pack(2, why.get(), behind.get()) : nullptr;
}

}  // namespace calvex::python
