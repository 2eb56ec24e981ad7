#include "steam/fundamental_equation.h"

namespace calvex {

template class TemperaturePartOf<double>;
template class HelmholtzPointOf<double>;

}  // namespace calvex
