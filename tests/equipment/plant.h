/// \file
/// A client of the equipment models: calls members by name, in model units whatever units the
/// engine has been told to use.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "diagnostics/outline.h"
#include "equipment/heat_exchangers.h"
#include "equipment/own_units.h"
#include "server/zv_calvex.h"

namespace calvex {

/// Outputs by name, in model units; only those that were written.
struct Answer {
  int success = 0;
  std::map<std::string, double, std::less<>> values;

  /// NaN where there is none.
  double operator[](std::string_view name) const {
    const auto found = values.find(name);
    return found == values.end() ? std::nan("") : found->second;
  }
  [[nodiscard]] bool wrote(std::string_view name) const { return values.contains(name); }
};

/// A unit other than the model unit for each quantity of the models.
inline constexpr std::pair<const char*, const char*> mixedUnits[] = {
    {"Temperature", "F"},      {"Pressure", "psig"},  {"Enthalpy", "Btu/lb"},
    {"Entropy", "Btu/(lb.R)"}, {"Quality", "%"},      {"Mass Flow Rate", "klb/h"},
    {"Heat Duty", "MMBtu/h"},  {"Efficiency", "%"},   {"Ratio", "%"},
    {"Power", "hp"},           {"Density", "lb/ft³"}, {"DP", "psig"}};

class Plant {
 public:
  ZvThermoInt& engine() { return object_.engine(); }

  void useMixedUnits() {
    for (const auto& [group, unit] : mixedUnits) {
      ASSERT_EQ(engine().SetUserUnit(group, unit), 1) << group << ' ' << unit;
    }
  }

  void useOffsetUnits() { chooseOffsetUnits(engine()); }
  /// What the offset of the enthalpy unit is in kJ/kg: a difference of enthalpies that is converted
  /// as an enthalpy gains it.
  double enthalpyShift() { return engine().units().toInternal(UnitGroup::enthalpy, 0.0); }

  /// Values in the client's units.
  Answer call(std::string_view name, const std::vector<double>& inputs) {
    return run(name, inputs, false);
  }
  /// Values in model units.
  Answer operator()(std::string_view name, const std::vector<double>& inputs) {
    return run(name, inputs, true);
  }

  /// The exchangers have no plain member.
  Answer exchanger(std::string_view name, std::vector<double> inputs) {
    const bool a = name == "HeatExchangerA";
    static constexpr UnitGroup inputGroups[] = {
        UnitGroup::massFlow,    UnitGroup::pressure,    UnitGroup::pressureDifference,
        UnitGroup::temperature, UnitGroup::temperature, UnitGroup::quality,
        UnitGroup::quality,     UnitGroup::pressure,    UnitGroup::pressureDifference,
        UnitGroup::temperature, UnitGroup::temperature, UnitGroup::quality,
        UnitGroup::quality};
    for (std::size_t i = 0; i < inputs.size(); ++i) {
      const bool duty = !a && i == 4;
      inputs[i] = engine().units().toUser(duty ? UnitGroup::heatDuty : inputGroups[i], inputs[i]);
    }
    const char* names[] = {"pHCIn", "pHCOut", "pHHIn", "pHHOut", "pMHOut", a ? "pDuty" : "pTCOut"};
    const UnitGroup groups[] = {
        UnitGroup::enthalpy, UnitGroup::enthalpy, UnitGroup::enthalpy,
        UnitGroup::enthalpy, UnitGroup::massFlow, a ? UnitGroup::heatDuty : UnitGroup::temperature};
    constexpr double unwritten = -12345.6789;
    double out[6];
    std::fill_n(out, 6, unwritten);
    Answer answer;
    const std::vector<double>& x = inputs;
    answer.success = (a ? HeatExchangerA : HeatExchangerB)(
        engine(), &out[0], &out[1], &out[2], &out[3], &out[4], &out[5], x[0], x[1], x[2], x[3],
        x[4], x[5], x[6], x[7], x[8], x[9], x[10], x[11], x[12]);
    for (int i = 0; i < 6; ++i) {
      if (out[i] != unwritten) {
        answer.values[names[i]] = engine().units().toInternal(groups[i], out[i]);
      }
    }
    return answer;
  }

  /// The trace as an outline.
  std::string trace() { return outline(engine().diagnostics().root()); }

  /// The property calls that the last call made, at reporting level 2, where each leaves a note.
  std::vector<std::string> propertyCalls() {
    std::vector<std::string> names;
    const ZvFunctionCall* last = nullptr;
    for (const auto* node = engine().diagnostics().root().firstChild(); node != nullptr;
         node = node->nextSibling()) {
      last = node;
    }
    for (const auto* node = last == nullptr ? nullptr : last->firstChild(); node != nullptr;
         node = node->nextSibling()) {
      if (node->kind() == ZvFunctionCall::Kind::call) names.emplace_back(node->text());
    }
    return names;
  }

 private:
  Answer run(std::string_view name, const std::vector<double>& inputs, bool modelUnits) {
    if (name.starts_with("HeatExchanger")) return exchanger(name, inputs);
    const Member* member = findMember(name);
    if (member == nullptr) throw std::invalid_argument(std::string(name));
    const auto parameters = member->parameters();
    const auto convert = [&](const Parameter& parameter, double value, bool in) {
      if (!modelUnits || !parameter.hasUnit()) return value;
      const auto group = UnitGroup(parameter.group);
      return in ? engine().units().toUser(group, value) : engine().units().toInternal(group, value);
    };
    std::vector<Value> arguments(parameters.size());
    auto input = inputs.begin();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      if (parameters[i].isInput()) arguments[i] = convert(parameters[i], *input++, true);
    }
    if (input != inputs.end()) throw std::invalid_argument("inputs of " + std::string(name));
    Answer answer;
    answer.success = object_.invoke(*member, arguments).success;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      const double* value = std::get_if<double>(&arguments[i]);
      if (parameters[i].isOutput() && value != nullptr) {
        answer.values[std::string(parameters[i].name)] = convert(parameters[i], *value, false);
      }
    }
    return answer;
  }

  Module module_;
  ZvCalvex object_{module_};
};

/// A member's checks in their order: every input starts wrong, and each message goes when its input
/// is put right.
struct Fault {
  std::string message;
  std::size_t input;
  double right;
};
inline void expectFaultsInOrder(Plant& plant, std::string_view name, std::vector<double> inputs,
                                const std::vector<Fault>& faults) {
  for (const Fault& fault : faults) {
    const Answer answer = plant.call(name, inputs);
    EXPECT_EQ(answer.success, 0) << name << ": " << fault.message;
    EXPECT_EQ(plant.engine().LastError(), fault.message) << name;
    EXPECT_TRUE(answer.values.empty()) << name << ": " << fault.message;
    inputs.at(fault.input) = fault.right;
  }
  EXPECT_EQ(plant.call(name, inputs).success, 1) << name << ": " << plant.engine().LastError();
}

/// The range errors of an input by its name.
inline std::string outOfRange(const std::string& name) { return name + " parameter out of range."; }
inline std::string badPressure(const std::string& name) {
  return name + " parameter out of range (Valid range 0.00 to 3000.00 MPa).";
}
inline std::string badTemperature(const std::string& name) {
  return name + " parameter out of range (Valid range 260.00 to 2500.00 K).";
}
inline std::string badEfficiency(const std::string& name) {
  return name + " parameter out of range (Valid range 0.00 to 1.00 Fraction).";
}

}  // namespace calvex
