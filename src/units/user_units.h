/// \file
/// The caller's units: which unit each quantity has now, and the two conversions between it and the
/// engine's internal unit that every member calls.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "units/unit_catalogue.h"

namespace calvex {

/// Where user units come from. The numbers are those of the setting `AppLevel`; 0 and 2 are two
/// numbers for one behaviour.
enum class UnitsMode : short { builtIn = 0, server = 1, catalogue = 2, custom = 3 };

/// The external units server of units mode 1. Every operation answers true for success; on false
/// `status` holds the server's status, whose text `errorText` gives.
class UnitsServer {
 public:
  virtual ~UnitsServer() = default;
  /// Registers a group under its display name and declares its internal unit.
  virtual bool declareGroup(std::string_view group, std::string_view internalUnit) = 0;
  virtual bool setUserUnit(std::string_view group, std::string_view unit, short& status) = 0;
  virtual bool getUserUnit(std::string_view group, std::string& unit, short& status) = 0;
  virtual bool convert(std::string_view group, std::string_view from, std::string_view to,
                       double value, double& result, short& status) = 0;
  virtual bool toUser(std::string_view group, double value, double& result, short& status) = 0;
  virtual bool toInternal(std::string_view group, double value, double& result, short& status) = 0;
  virtual bool showDialog() = 0;
  virtual std::string errorText(short status) = 0;
};

/// Connects to the units server, up to the first `declareGroup`; null when there is none.
using UnitsServerFactory = std::function<std::unique_ptr<UnitsServer>()>;

/// The unit state of one engine.
class UserUnits {
 public:
  explicit UserUnits(UnitsServerFactory connect = {});

  /// Mode 2; releases the server. The units that the client chose stay, in the catalogue and in
  /// mode 3.
  void reset();

  [[nodiscard]] UnitsMode mode() const noexcept { return mode_; }
  /// Entering mode 1 connects to the server and declares the groups; leaving it releases the
  /// server. False, and the mode unchanged, outside 0..3 or when mode 1 finds no server.
  bool setMode(short mode);

  /// User unit to internal unit, and back. Exactly the identity while a group's user unit is its
  /// internal unit (modes 0 and 2). Throw std::runtime_error with the server's text when it
  /// refuses.
  [[nodiscard]] double toInternal(UnitGroup group, double value) const;
  [[nodiscard]] double toUser(UnitGroup group, double value) const;
  /// Whether the two are the identity for a group.
  [[nodiscard]] bool isInternal(UnitGroup group) const noexcept {
    const ZvUomLiteGroup& units = catalogue_[group];
    return (mode_ == UnitsMode::builtIn || mode_ == UnitsMode::catalogue) &&
           &units.currentUnit() == &units.internalUnit();
  }

  /// The unit of a group's values, of the catalogue or custom; of a server's nothing is known here.
  [[nodiscard]] ZvUomLiteKeyword currentUnit(UnitGroup group) const noexcept {
    if (mode_ != UnitsMode::custom) return catalogue_[group].currentUnit();
    const CustomUnit& unit = custom(group);
    return {unit.name, unit.factor, unit.offset};
  }

  [[nodiscard]] const ZvUomLite& catalogue() const noexcept { return catalogue_; }
  /// The server while the mode is 1, else nullptr.
  [[nodiscard]] UnitsServer* server() const noexcept { return server_.get(); }

  /// Chooses the catalogue's unit of a group, whatever the mode. False for an unknown group or
  /// unit.
  bool setCatalogueUnit(int group, std::string_view unit);
  /// Mode 3 only: reference value = (x + offset) * factor, in the catalogue's reference unit. False
  /// otherwise and for an unknown group. The numbers are taken as they are.
  bool setCustomUnit(int group, std::string_view name, double factor, double offset);
  /// The name of the unit in which the group's values are now given and returned. False, and `unit`
  /// untouched, for an unknown group, or when the server refuses (`status` is then its status).
  bool getUserUnit(int group, std::string& unit, short& status) const;

 private:
  struct CustomUnit {
    std::string name;
    double factor = 1;
    double offset = 0;
  };

  UnitsServerFactory connect_;
  std::shared_ptr<UnitsServer> server_;
  UnitsMode mode_ = UnitsMode::catalogue;
  ZvUomLite catalogue_;
  std::array<CustomUnit, unitGroupCount> custom_;

  using ServerConversion = bool (UnitsServer::*)(std::string_view group, double value,
                                                 double& result, short& status);
  [[nodiscard]] double convertByServer(ServerConversion conversion, UnitGroup group,
                                       double value) const;

  /// The same as `convert` but for rounding: custom units form the ratio of the factors first.
  template <typename From, typename To>
  [[nodiscard]] static double convertByRatio(const From& from, const To& to,
                                             double value) noexcept {
    return (from.factor / to.factor) * (value + from.offset) - to.offset;
  }
  [[nodiscard]] static double convertByCatalogue(const ZvUomLiteKeyword& from,
                                                 const ZvUomLiteKeyword& to,
                                                 double value) noexcept {
    return &from == &to ? value : convert(from, to, value);
  }
  [[nodiscard]] const CustomUnit& custom(UnitGroup group) const noexcept {
    return custom_[static_cast<std::size_t>(group)];
  }
};

inline double UserUnits::toInternal(UnitGroup group, double value) const {
  const ZvUomLiteGroup& units = catalogue_[group];
  switch (mode_) {
    case UnitsMode::server:
      return convertByServer(&UnitsServer::toInternal, group, value);
    case UnitsMode::custom:
      return convertByRatio(custom(group), units.internalUnit(), value);
    default:
      return convertByCatalogue(units.currentUnit(), units.internalUnit(), value);
  }
}

inline double UserUnits::toUser(UnitGroup group, double value) const {
  const ZvUomLiteGroup& units = catalogue_[group];
  switch (mode_) {
    case UnitsMode::server:
      return convertByServer(&UnitsServer::toUser, group, value);
    case UnitsMode::custom:
      return convertByRatio(units.internalUnit(), custom(group), value);
    default:
      return convertByCatalogue(units.internalUnit(), units.currentUnit(), value);
  }
}

}  // namespace calvex
