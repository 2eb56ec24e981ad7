/// \file
/// States of water as the commands for people show them: numbers that members answer, the phase's
/// name, and every property of a state once its temperature and density are known.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "client.h"
#include "server/member_explanations.h"

namespace calvex::cli {

/// A number in the client's unit, or why there is none.
struct Answer {
  std::optional<double> value;
  std::string failure;  ///< the message, and what is behind it
};

/// An input of a member by its letter, in the client's unit.
struct Given {
  char letter;
  double value;
};

/// Asks members for numbers and keeps what they warn of.
class Water {
 public:
  explicit Water(Client& client) : client_(client) {}

  /// A member's first output. It must take nothing but these letters, in any order.
  [[nodiscard]] Answer ask(std::string_view name, const std::vector<Given>& inputs);

  /// A property of the one phase with that temperature and density (K, kg/m3), in the client's
  /// unit.
  [[nodiscard]] double property(char letter, double T, double density) const;

  [[nodiscard]] double toUser(char letter, double value) const;
  [[nodiscard]] double toModel(char letter, double value) const;
  /// The unit of a letter; empty when it has none.
  [[nodiscard]] std::string unit(char letter) const;
  [[nodiscard]] Client& client() noexcept { return client_; }

  void warnOf(std::string_view text);
  /// What was warned of, each text once.
  [[nodiscard]] const std::vector<std::string>& warnings() const noexcept { return warnings_; }

 private:
  Client& client_;
  std::vector<std::string> warnings_;
};

/// "superheated vapour"; T in K, P in MPa, density in kg/m3.
[[nodiscard]] std::string_view phaseName(double P, double T, double density);

/// The saturation line at a temperature or pressure.
struct Saturation {
  double P, T;  ///< MPa, K
  double liquidDensity, vapourDensity;
};
/// At a temperature (letter T) or pressure (P) in the client's unit; nothing where there is no
/// line, with the reason if it is asked for.
[[nodiscard]] std::optional<Saturation> saturationAt(Water& water, Given given,
                                                     std::string* failure = nullptr);

}  // namespace calvex::cli
