#include "steam/transport.h"

namespace calvex {

template double viscosity(const double&, const double&);
template double thermalConductivity(const double&, const double&,
                                    const HelmholtzPoint::Derivatives&, const double&);
template double surfaceTension(const double&);
template double dielectricConstant(const double&, const double&);

}  // namespace calvex
