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

/// Where user units come from. The numbers are those of the setting `AppLevel`.
enum class UnitsMode : short { catalogueLevel0 = 0, server = 1, catalogue = 2, custom = 3 };

/// The external units server of units mode 1. Every operation answers true for success; on false
/// `status` holds the server's status, whose text `errorText` gives.
class UnitsServer {
 public:
  virtual ~UnitsServer() = default;
  /// Registers a group under its display name and declares its internal unit.
  virtual bool declareGroup(std::string_view group, std::string_view internalUnit) = 0;
  virtual bool setUserUnit(std::string_view group, std::string_view unit, short& status) = 0;
  virtual bool getUserUnit(std::string_view group, std::string& unit, short& status) = 0;
  virtual bool convert(std::string_view group, std::string_view from, std::string_view to, double value,
                       double& result, short& status) = 0;
  virtual bool toUser(std::string_view group, double value, double& result, short& status) = 0;
  virtual bool toInternal(std::string_view group, double value, double& result, short& status) = 0;
  virtual bool showDialog() = 0;
  virtual std::string errorText(short status) = 0;
};

/// Connects to the units server; null when there is none.
using UnitsServerFactory = std::function<std::unique_ptr<UnitsServer>()>;

/// The unit state of one engine.
class UserUnits {
 public:
  explicit UserUnits(UnitsServerFactory connect = {});

  /// Mode 2 and custom units equal to the internal units; releases the server. The units chosen in
  /// the catalogue stay.
  void reset();

  [[nodiscard]] UnitsMode mode() const noexcept { return mode_; }
  /// False, and the mode unchanged, outside 0..3 or when mode 1 finds no server.
  bool setMode(short mode);

  /// User unit to internal unit, and back. Exactly the identity while a group's user unit is its
  /// internal unit (modes 0 and 2).
  [[nodiscard]] double toInternal(UnitGroup group, double value) const;
  [[nodiscard]] double toUser(UnitGroup group, double value) const;

  [[nodiscard]] const ZvUomLite& catalogue() const noexcept { return catalogue_; }
  /// The server while the mode is 1, else nullptr.
  [[nodiscard]] UnitsServer* server() const noexcept { return server_.get(); }

  /// Chooses the catalogue's unit of a group, whatever the mode. False for an unknown group or unit.
  bool setCatalogueUnit(int group, std::string_view unit);
  /// Mode 3 only: internal reference value = (x + offset) * factor. False otherwise.
  bool setCustomUnit(int group, std::string_view name, double factor, double offset);
  /// The name of the unit in which the group's values are now given and returned. False for an
  /// unknown group, or when the server refuses (`status` is then its status).
  bool getUserUnit(int group, std::string& unit, short& status) const;

 private:
  /// The units between which a group's values are now converted, resolved when they are chosen.
  struct Conversion {
    ZvUomLiteKeyword user;
    ZvUomLiteKeyword internal;
    bool identity;
  };
  void resolve(int group);

  UnitsServerFactory connect_;
  std::unique_ptr<UnitsServer> server_;
  UnitsMode mode_ = UnitsMode::catalogue;
  ZvUomLite catalogue_;
  struct CustomUnit {
    std::string name;
    double factor;
    double offset;
  };
  std::array<CustomUnit, unitGroupCount> custom_;
  std::array<Conversion, unitGroupCount> conversions_;
};

}  // namespace calvex
