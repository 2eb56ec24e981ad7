// A program in C++20: the same, in units of a plant, and arrays with a slope.
#include <calvex/calvex.hpp>
#include <cstdio>

int main() {
  calvex::Engine steam;  // one for each thread
  std::printf("%.6f kJ/kg\n", steam.HPT(10.0, 773.15));
  try {
    steam.HPT(10.0, 3000.0);
  } catch (const calvex::Error& failure) {
    std::printf("%s\n", failure.what());
  }

  steam.unit("temperature", "°C");
  steam.unit("pressure", "bar");
  const auto [power, T, h, x] = steam.TurbineA(3375.0, 100.0, 0.05, 0.85, 20.0);
  std::printf("%.0f kW, %.1f %s\n", power, T, steam.unit("T").c_str());

  const double P[] = {100.0, 50.0}, temperatures[] = {500.0, 400.0};
  double density[2], slope[2];
  short status[2];
  const calvex::StateResult results[] = {{'R', density, slope}};
  steam.states("PT", P, temperatures, results, status);
  return status[0] == 0 && status[1] == 0 && slope[0] > 0.0 ? 0 : 1;
}
