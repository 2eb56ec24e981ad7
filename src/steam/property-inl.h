// Every single-phase property as a function of density and temperature, for any number type N, in
// steps of what it needs. Included inside a namespace, after transport-inl.h; property.h is the
// header of its users.

template <class N>
struct PropertiesOf {
  /// Properties that need no more than T (K) and density (kg/m3): TemperatureOrder::none.
  static N ofTemperatureAndDensity(Property property, const N& T, const N& density) {
    switch (property) {
      case Property::temperature:
        return T;
      case Property::density:
        return density;
      case Property::specificVolume:
        return 1.0 / density;
      case Property::viscosity:
        return viscosity(T, density);
      default:
        return dielectricConstant(T, density);
    }
  }

  /// Properties of the first derivatives: TemperatureOrder::pressure and energy.
  static N ofFirstDerivatives(Property property, const TemperaturePartOf<N>& temperature,
                              const HelmholtzPointOf<N>& point) {
    switch (property) {
      case Property::pressure:
        return point.pressure();
      case Property::compressibilityFactor:
        return point.pressureOverDensity() / (constants::gasConstant * temperature.T());
      case Property::enthalpy:
        return point.enthalpy();
      case Property::entropy:
        return point.entropy();
      case Property::internalEnergy:
        return point.internalEnergy();
      case Property::helmholtz:
        return point.helmholtz();
      default:
        return point.gibbs();
    }
  }

  /// Properties of the second derivatives `d` at the point: TemperatureOrder::curvature.
  static N ofSecondDerivatives(Property property, const N& T, const N& density,
                               const typename HelmholtzPointOf<N>::Derivatives& d) {
    const N r = 0.001 * density;
    // delta = 1/r - T P_T/(r^2 P_r)
    const N throttling = (d.X - d.Y) / d.Pr;
    switch (property) {
      case Property::isobaricHeatCapacity:
        return d.cp;
      case Property::isochoricHeatCapacity:
        return d.cv;
      case Property::speedOfSound:
        return sqrt(1000.0 * d.cp / d.cv * d.Pr);
      case Property::isothermalThrottling:
        return throttling;
      case Property::jouleThomson:
        return -throttling / d.cp;
      case Property::thermalExpansion:
        return d.PT / (r * d.Pr);
      case Property::compressibility:
        return 1.0 / (r * d.Pr);
      default:
        break;
    }
    const N mu = viscosity(T, density);
    const N lambda = thermalConductivity(T, density, d, mu);
    return property == Property::thermalConductivity ? lambda : prandtl(mu, d.cp, lambda);
  }

  static N prandtl(const N& mu, const N& cp, const N& lambda) { return mu * cp / (0.001 * lambda); }
};
