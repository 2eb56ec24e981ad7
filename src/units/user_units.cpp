#include "units/user_units.h"

#include <stdexcept>
#include <utility>

namespace calvex {

UserUnits::UserUnits(UnitsServerFactory connect) : connect_(std::move(connect)) {
  for (std::size_t group = 0; group < custom_.size(); ++group) {
    const ZvUomLiteKeyword& unit = catalogue_[UnitGroup(group)].internalUnit();
    custom_[group] = {std::string(unit.name), unit.factor, unit.offset};
  }
}

void UserUnits::reset() {
  server_.reset();
  mode_ = UnitsMode::catalogue;
}

bool UserUnits::setMode(short mode) {
  if (mode < 0 || mode > 3) return false;
  const auto wanted = UnitsMode(mode);
  if (wanted == mode_) return true;
  std::unique_ptr<UnitsServer> server;
  if (wanted == UnitsMode::server) {
    if (connect_) server = connect_();
    if (!server) return false;
    // A group that the server does not take makes its conversions fail later, not the connection.
    for (const UnitGroupRow& row : unitGroupTable())
      server->declareGroup(row.displayName, row.internalUnit);
  }
  server_ = std::move(server);
  mode_ = wanted;
  return true;
}

double UserUnits::convertByServer(ServerConversion conversion, UnitGroup group,
                                  double value) const {
  double result = value;
  short status = 0;
  // Held: a server of another process lets the client in, which may leave the mode meanwhile.
  const std::shared_ptr<UnitsServer> server = server_;
  if (!((*server).*conversion)(catalogue_[group].row().displayName, value, result, status)) {
    throw std::runtime_error(server->errorText(status));
  }
  return result;
}

bool UserUnits::setCatalogueUnit(int group, std::string_view unit) {
  return catalogue_.setUserUnit(group, unit);
}

bool UserUnits::setCustomUnit(int group, std::string_view name, double factor, double offset) {
  if (mode_ != UnitsMode::custom || !isUnitGroup(group)) return false;
  custom_[static_cast<std::size_t>(group)] = {std::string(name), factor, offset};
  return true;
}

bool UserUnits::getUserUnit(int group, std::string& unit, short& status) const {
  if (!isUnitGroup(group)) return false;
  const auto index = UnitGroup(group);
  switch (mode_) {
    case UnitsMode::server: {
      std::string name;
      if (!server_->getUserUnit(catalogue_[index].row().displayName, name, status)) return false;
      unit = std::move(name);
      return true;
    }
    case UnitsMode::custom:
      unit = custom(index).name;
      return true;
    default:
      return catalogue_.getUserUnit(group, unit);
  }
}

}  // namespace calvex
