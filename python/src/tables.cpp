#include <cmath>

#include "functions.h"
#include "numpy_api.h"
#include "server/member_columns.h"
#include "server/member_explanations.h"
#include "units/unit_words.h"

namespace calvex::python {

namespace {

std::string_view kindOf(const Member& member) {
  if (member.isProperty) return member.put == nullptr ? "reading" : "setting";
  const std::optional<NumericMember> numeric = NumericMember::of(member);
  return numeric && !numeric->inputs().empty() ? "ufunc" : "method";
}

Ref slots(std::span<const NumericMember::Slot> all) {
  Ref list(PyList_New(0));
  for (const NumericMember::Slot& slot : all) {
    const Ref row(
        Py_BuildValue("(s#i)", slot.name.data(), Py_ssize_t(slot.name.size()), int{slot.group}));
    if (!list || !row || PyList_Append(list.get(), row.get()) < 0) return {};
  }
  return list;
}

std::string_view typeName(ValueType type) {
  switch (type) {
    case ValueType::real:
      return "float";
    case ValueType::shortInteger:
    case ValueType::longInteger:
      return "int";
    case ValueType::text:
      return "str";
    case ValueType::array:
      break;
  }
  return "array";
}

// (name, type, direction, group, label, words, low, high, above low, below high)
Ref parameterRow(const Parameter& parameter, const ParameterExplanation& explained) {
  const Limits limits = explained.limits.value_or(Limits{});
  const std::string_view type = typeName(parameter.type);
  const std::string_view direction = directionName(parameter.direction);
  return Ref(Py_BuildValue(
      "(s#s#s#is#s#ddOO)", parameter.name.data(), Py_ssize_t(parameter.name.size()), type.data(),
      Py_ssize_t(type.size()), direction.data(), Py_ssize_t(direction.size()), int{parameter.group},
      explained.label.data(), Py_ssize_t(explained.label.size()), explained.words.data(),
      Py_ssize_t(explained.words.size()), limits.low, limits.high,
      limits.aboveLow ? Py_True : Py_False, limits.belowHigh ? Py_True : Py_False));
}

// (name, group, words) of a token's result.
Ref tokenRows(const Member& member) {
  Ref list(PyList_New(0));
  for (const spreadsheet::Token& token : tokensOf(member)) {
    const std::string words = tokenWords(member, token);
    const Ref row(Py_BuildValue("(s#is#)", token.text.data(), Py_ssize_t(token.text.size()),
                                int(token.group), words.data(), Py_ssize_t(words.size())));
    if (!list || !row || PyList_Append(list.get(), row.get()) < 0) return {};
  }
  return list;
}

Ref exampleOf(const ExampleCall& call) {
  Ref inputs(PyList_New(0));
  for (const ExampleInput& input : call.inputs) {
    const Ref value = std::holds_alternative<double>(input)
                          ? Ref(PyFloat_FromDouble(std::get<double>(input)))
                          : unicode(std::get<std::string>(input));
    if (!inputs || !value || PyList_Append(inputs.get(), value.get()) < 0) return {};
  }
  return inputs;
}

bool put(const Ref& dict, const char* name, Ref value) {
  return value && PyDict_SetItemString(dict.get(), name, value.get()) == 0;
}

std::optional<UnitGroup> groupArgument(int group) {
  if (isUnitGroup(group)) return UnitGroup(group);
  PyErr_Format(PyExc_ValueError, "there is no unit group %d", group);
  return std::nullopt;
}

// name, factor, offset: reference value = (x + offset) * factor.
Ref unitRow(const ZvUomLiteKeyword& unit) {
  const Ref name = unicode(unit.name);
  return Ref(name ? Py_BuildValue("(Odd)", name.get(), unit.factor, unit.offset) : nullptr);
}

}  // namespace

// [(name, kind, inputs, outputs)]
PyObject* members(PyObject* /*module*/, PyObject* /*none*/) {
  Ref list(PyList_New(0));
  for (const Member& member : memberTable()) {
    const std::string_view kind = kindOf(member);
    const std::optional<NumericMember> numeric = NumericMember::of(member);
    const Ref inputs = numeric ? slots(numeric->inputs()) : Ref(PyList_New(0));
    const Ref outputs = numeric ? slots(numeric->outputs()) : Ref(PyList_New(0));
    if (!list || !inputs || !outputs) return nullptr;
    const Ref row(Py_BuildValue("(s#s#OO)", member.name.data(), Py_ssize_t(member.name.size()),
                                kind.data(), Py_ssize_t(kind.size()), inputs.get(), outputs.get()));
    if (!row || PyList_Append(list.get(), row.get()) < 0) return nullptr;
  }
  return list.release();
}

PyObject* explain(PyObject* /*module*/, PyObject* name) {
  const Member* const member = memberArgument(name);
  if (member == nullptr) return nullptr;
  const MemberExplanation explained = explanation(*member);
  Ref dict(PyDict_New());
  Ref parameters(PyList_New(0));
  for (std::size_t i = 0; i < explained.parameters.size(); ++i) {
    const Ref row = parameterRow(member->parameters()[i], explained.parameters[i]);
    if (!parameters || !row || PyList_Append(parameters.get(), row.get()) < 0) return nullptr;
  }
  const bool complete = dict && put(dict, "heading", unicode(headingText(explained.heading))) &&
                        put(dict, "title", unicode(explained.title)) &&
                        put(dict, "notes", unicode(explained.notes)) &&
                        put(dict, "parameters", std::move(parameters)) &&
                        put(dict, "tokens", tokenRows(*member)) &&
                        put(dict, "example", exampleOf(explained.example));
  return complete ? dict.release() : nullptr;
}

// [(name, keywords, model unit, [(unit, factor, offset)], [units beside the catalogue])]
PyObject* groups(PyObject* /*module*/, PyObject* /*none*/) {
  Ref list(PyList_New(0));
  for (int number = 0; number < unitGroupCount; ++number) {
    const UnitGroupRow& row = unitGroupTable()[static_cast<std::size_t>(number)];
    const Ref keywords(PyList_New(0)), units(PyList_New(0)), beside(PyList_New(0));
    if (!list || !keywords || !units || !beside) return nullptr;
    for (const std::string_view keyword : row.keywords) {
      const Ref text = unicode(keyword);
      if (!text || PyList_Append(keywords.get(), text.get()) < 0) return nullptr;
    }
    for (const ZvUomLiteKeyword& unit : row.units) {
      const Ref item = unitRow(unit);
      if (!item || PyList_Append(units.get(), item.get()) < 0) return nullptr;
    }
    for (const ZvUomLiteKeyword& unit : unitsBesideCatalogue(UnitGroup(number))) {
      const Ref item = unitRow(unit);
      if (!item || PyList_Append(beside.get(), item.get()) < 0) return nullptr;
    }
    const Ref internal = unicode(row.internalUnit);
    const Ref item(internal ? Py_BuildValue("(s#OOOO)", row.displayName.data(),
                                            Py_ssize_t(row.displayName.size()), keywords.get(),
                                            internal.get(), units.get(), beside.get())
                            : nullptr);
    if (!item || PyList_Append(list.get(), item.get()) < 0) return nullptr;
  }
  return list.release();
}

PyObject* findGroup(PyObject* /*module*/, PyObject* word) {
  const char* const text = PyUnicode_AsUTF8(word);
  if (text == nullptr) return nullptr;
  const std::optional<UnitGroup> group = findGroupWord(text);
  if (!group) Py_RETURN_NONE;
  return PyLong_FromLong(static_cast<long>(*group));
}

// (name, factor, offset, whether it is in the catalogue, notice), or the names that the word may
// mean.
PyObject* findUnit(PyObject* /*module*/, PyObject* arguments) {
  int number = 0;
  const char* word = nullptr;
  if (!PyArg_ParseTuple(arguments, "is", &number, &word)) return nullptr;
  const std::optional<UnitGroup> group = groupArgument(number);
  if (!group) return nullptr;
  const UnitWord found = findUnitWord(*group, word);
  if (found.unit != nullptr) {
    const Ref name = unicode(found.unit->name);
    if (!name) return nullptr;
    return Py_BuildValue("(OddOs#)", name.get(), found.unit->factor, found.unit->offset,
                         isInCatalogue(*group, *found.unit) ? Py_True : Py_False,
                         found.notice.data(), Py_ssize_t(found.notice.size()));
  }
  Ref candidates(PyList_New(0));
  for (const ZvUomLiteKeyword* unit : found.candidates) {
    const Ref name = unicode(unit->name);
    if (!candidates || !name || PyList_Append(candidates.get(), name.get()) < 0) return nullptr;
  }
  return candidates.release();
}

PyObject* chooseUnit(PyObject* /*module*/, PyObject* arguments) {
  PyObject *object = nullptr, *name = nullptr;
  int number = 0;
  double factor = 0.0, offset = 0.0;
  int inCatalogue = 0;
  if (!PyArg_ParseTuple(arguments, "OiUddp", &object, &number, &name, &factor, &offset,
                        &inCatalogue)) {
    return nullptr;
  }
  Core* const core = coreArgument(object);
  const std::optional<UnitGroup> group = groupArgument(number);
  if (core == nullptr || !group) return nullptr;
  const std::optional<std::string> text = encoded(name);
  if (!text) return nullptr;
  core->change([&](ZvThermoInt& engine) {
    const auto custom = [&](UnitGroup which, std::string_view unit, double by, double plus) {
      engine.SetCustomUserUnitIndex(static_cast<short>(which), unit, by, plus);
    };
    if (inCatalogue != 0) engine.SetUserUnitIndex(static_cast<short>(*group), *text);
    if (engine.units().mode() != UnitsMode::custom) {
      if (inCatalogue != 0) return;
      // The engine leaves the catalogue for a unit beside it; the other groups keep theirs.
      engine.SetAppLevel(static_cast<short>(UnitsMode::custom));
      for (int other = 0; other < unitGroupCount; ++other) {
        const ZvUomLiteKeyword& unit = engine.units().catalogue()[UnitGroup(other)].currentUnit();
        custom(UnitGroup(other), unit.name, unit.factor, unit.offset);
      }
    }
    custom(*group, *text, factor, offset);
  });
  Py_RETURN_NONE;
}

PyObject* unitOf(PyObject* /*module*/, PyObject* arguments) {
  PyObject* object = nullptr;
  int group = 0;
  if (!PyArg_ParseTuple(arguments, "Oi", &object, &group)) return nullptr;
  Core* const core = coreArgument(object);
  if (core == nullptr) return nullptr;
  std::string name;
  short status = 0;
  core->with([&](ZvThermoInt& engine) { return engine.units().getUserUnit(group, name, status); });
  return unicode(name).release();
}

// (a, b): value in the engine's own unit = a * value in the user's unit + b.
PyObject* conversion(PyObject* /*module*/, PyObject* arguments) {
  PyObject* object = nullptr;
  int number = 0;
  if (!PyArg_ParseTuple(arguments, "Oi", &object, &number)) return nullptr;
  Core* const core = coreArgument(object);
  const std::optional<UnitGroup> group = groupArgument(number);
  if (core == nullptr || !group) return nullptr;
  const auto [zero, one] = core->with([&](ZvThermoInt& engine) {
    return std::pair(engine.units().toInternal(*group, 0.0),
                     engine.units().toInternal(*group, 1.0));
  });
  return Py_BuildValue("(dd)", one - zero, zero);
}

}  // namespace calvex::python
