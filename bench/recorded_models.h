/// \file
/// The equipment models, compiled once more on an engine that notes their property calls, so that
/// the calls can be made again without the models.
#pragma once

#include <functional>
#include <string_view>
#include <type_traits>
#include <vector>

#include "engine/thermo_engine.h"

namespace recorded {

/// A property call with the arguments of a model; false if it fails.
using PropertyCall = std::function<bool(calvex::ZvThermoInt&)>;

/// The engine with the property members that models call, each noted before it is made.
class Recorder : public calvex::ZvThermoInt {
 public:
  std::vector<PropertyCall> calls;

#define RECORDED(member)                             \
  template <class... A>                              \
  int member(A... arguments) {                       \
    return note(&ZvThermoInt::member, arguments...); \
  }
  RECORDED(HPS)
  RECORDED(HPTQ)
  RECORDED(HSatPQ)
  RECORDED(HSatTQ)
  RECORDED(HVLTSat_PQ)
  RECORDED(QTR_PH)
  RECORDED(QTS_PH)
  RECORDED(SPH)
  RECORDED(TPH)
  RECORDED(TSatP)
#undef RECORDED

  /// What models ask the formulation itself.
  class Steam {
   public:
    explicit Steam(Recorder& recorder) : recorder_(recorder) {}
    double waterEnthalpy(double P, double T) {
      recorder_.calls.push_back([=](calvex::ZvThermoInt& engine) {
        static_cast<void>(engine.steam().waterEnthalpy(P, T));
        return true;
      });
      return recorder_.original().steam().waterEnthalpy(P, T);
    }
    const calvex::ZvSolver& solver() { return recorder_.original().steam().solver(); }

   private:
    Recorder& recorder_;
  };
  Steam steam() { return Steam(*this); }

 private:
  calvex::ZvThermoInt& original() { return *this; }

  // A call made again writes its results where nobody reads them.
  template <class T>
  static T again(T argument, double& unread) {
    if constexpr (std::is_pointer_v<T>) {
      return &unread;
    } else {
      return argument;
    }
  }

  template <class... A>
  int note(int (ZvThermoInt::*member)(A...), A... arguments) {
    calls.push_back([=](calvex::ZvThermoInt& engine) {
      double unread = 0.0;
      return (engine.*member)(again(arguments, unread)...) != 0;
    });
    return (original().*member)(arguments...);
  }
};

/// The property calls of the model of that name for these inputs with these flags, in its order;
/// none if there is no such model or it fails.
std::vector<PropertyCall> propertyCalls(std::string_view model, const std::vector<double>& inputs,
                                        const int* flags);

}  // namespace recorded
