// The gas turbine and its boiler: anchors, balances, both pinch cases, limits and messages.
#include "equipment/models.h"

namespace calvex {
namespace {

using enum UnitGroup;
using namespace models;

constexpr double cp = 1.1;                // kJ/(kg.K)
constexpr double heatingValue = 44310.0;  // kJ/kg

struct Inputs {
  double GTPower = 5000.0;
  double FPRatio = 0.3;
  double AirTemp = 288.15;
  double ExhaustTemp = 800.0;
  double SteamPress = 4.0;
  double SteamTemp = 673.0;
  double BFWTemp = 378.0;
  double SteamDemand = 4.0;
  double DTMin = 15.0;
  double MinO2Stack = 0.03;
};

struct Outputs {
  double TWhb, DWhbFuel, TDewPtActual, TDewPtMax, RExhaustO2, DGTFuel, DHeatLoss, RHeatUtil,
      MBaseLoad, MActual;
};

int run(ZvThermoInt& engine, Outputs& out, const Inputs& in) {
  return GasTurbineA(engine, &out.TWhb, &out.DWhbFuel, &out.TDewPtActual, &out.TDewPtMax,
                     &out.RExhaustO2, &out.DGTFuel, &out.DHeatLoss, &out.RHeatUtil, &out.MBaseLoad,
                     &out.MActual, in.GTPower, in.FPRatio, in.AirTemp, in.ExhaustTemp,
                     in.SteamPress, in.SteamTemp, in.BFWTemp, in.SteamDemand, in.DTMin,
                     in.MinO2Stack);
}

class GasTurbine : public testing::Test {
 protected:
  Outputs succeed(const Inputs& in) {
    Outputs out{};
    EXPECT_EQ(run(engine, out, in), 1) << engine.LastError();
    return out;
  }
  Outputs atDemand(double demand) {
    Inputs in;
    in.SteamDemand = demand;
    return succeed(in);
  }
  // Feed water to steam, kJ/kg.
  double steamDuty(const Inputs& in) {
    double steam = 0.0;
    double water = 0.0;
    EXPECT_EQ(engine.HPT(&steam, in.SteamPress, in.SteamTemp), 1);
    EXPECT_EQ(engine.HPT(&water, in.SteamPress, in.BFWTemp), 1);
    return steam - water;
  }
  double unusedHeat(const Inputs& in, const Outputs& out) {
    const double exhaust = out.DGTFuel - in.GTPower;
    return exhaust - out.MBaseLoad * steamDuty(in);
  }

  ZvThermoInt engine;
};

TEST_F(GasTurbine, BaseLoadIsWhatTheExhaustRaises) {
  const Outputs out = atDemand(4.0);
  EXPECT_NEAR(out.MBaseLoad, 2.803, 0.0005);
  EXPECT_NEAR(out.DGTFuel, 5000.0 / 0.3, 1e-8);
}

TEST_F(GasTurbine, DemandOfFourIsFiredToTheHotEndPinch) {
  const Inputs in;
  const Outputs out = succeed(in);
  EXPECT_NEAR(out.TWhb, 910.0, 0.5);
  EXPECT_NEAR(out.DWhbFuel / heatingValue, 0.0567, 5e-5);
  EXPECT_NEAR(out.RHeatUtil, 0.578, 5e-4);
  EXPECT_NEAR(out.MActual, 4.0, 1e-9);
  // The gas leaves the evaporator DTMin above boiling water, and the stack is hotter than it must.
  const double flow = out.DWhbFuel / (cp * (out.TWhb - in.ExhaustTemp));
  double tSat = 0.0;
  double hg = 0.0;
  double hf = 0.0;
  double hs = 0.0;
  ASSERT_TRUE(engine.TSatP(&tSat, in.SteamPress) && engine.HSatTQ(&hg, tSat, 1.0) &&
              engine.HSatTQ(&hf, tSat, 0.0) && engine.HPT(&hs, in.SteamPress, in.SteamTemp));
  EXPECT_NEAR(out.TWhb - out.MActual * (hs - hf) / (cp * flow), tSat + in.DTMin, 1e-8);
  EXPECT_GT(out.TWhb - out.MActual * steamDuty(in) / (cp * flow), in.BFWTemp + in.DTMin + 1.0);
}

TEST_F(GasTurbine, DemandOfSixIsFiredToTheColdEndPinch) {
  Inputs in;
  in.SteamDemand = 6.0;
  const Outputs out = succeed(in);
  EXPECT_NEAR(out.TWhb, 1115.0, 0.5);
  EXPECT_NEAR(out.MActual, 6.0, 1e-9);
  const double flow = out.DWhbFuel / (cp * (out.TWhb - in.ExhaustTemp));
  EXPECT_NEAR(out.TWhb - out.MActual * steamDuty(in) / (cp * flow), in.BFWTemp + in.DTMin, 1e-8);
}

TEST_F(GasTurbine, FuelIsCappedByTheOxygenLeftInTheStack) {
  const Outputs out = atDemand(20.0);
  EXPECT_NEAR(out.DWhbFuel / heatingValue, 0.752, 5e-4);
  EXPECT_NEAR(out.MActual, 15.51, 0.005);
  EXPECT_NEAR(out.RExhaustO2, 0.03, 1e-12);
  EXPECT_NEAR(out.TDewPtActual, out.TDewPtMax, 1e-9);
}

TEST_F(GasTurbine, DewPointAtMaximumFiringDoesNotDependOnTheDemand) {
  EXPECT_EQ(atDemand(4.0).TDewPtMax, atDemand(20.0).TDewPtMax);
  EXPECT_LT(atDemand(4.0).TDewPtActual, atDemand(6.0).TDewPtActual);
}

TEST_F(GasTurbine, DewPointAndOxygenContentFollowFromOneCombustion) {
  // The oxygen that is missing before firing is 2 of each (N + fuel) mole; water comes with it.
  const Outputs a = atDemand(4.0);
  const Outputs b = atDemand(6.0);
  const auto waterFraction = [&](double TDewPt) {
    double P = 0.0;
    EXPECT_EQ(engine.PSatT(&P, TDewPt), 1);
    return P / 0.101325;
  };
  const auto fuel = [](const Outputs& x) { return x.DWhbFuel / 708960.0; };
  // x = O2/(N + f), y = H2O/(N + f): the moles N of the turbine's exhaust from each of both.
  const double oxygenN = ((b.RExhaustO2 + 2.0) * fuel(b) - (a.RExhaustO2 + 2.0) * fuel(a)) /
                         (a.RExhaustO2 - b.RExhaustO2);
  const double ya = waterFraction(a.TDewPtActual);
  const double yb = waterFraction(b.TDewPtActual);
  const double waterN = ((2.0 - yb) * fuel(b) - (2.0 - ya) * fuel(a)) / (yb - ya);
  EXPECT_NEAR(oxygenN, waterN, 1e-5 * waterN);
}

TEST_F(GasTurbine, EnergyBalanceClosesWithoutFiring) {
  Inputs in;
  in.SteamDemand = atDemand(4.0).MBaseLoad;
  const Outputs out = succeed(in);
  EXPECT_NEAR(out.DGTFuel, in.GTPower + out.MActual * steamDuty(in) + out.DHeatLoss,
              1e-9 * out.DGTFuel);
}

TEST_F(GasTurbine, EnergyBalanceOfTheFiredBoilerCloses) {
  for (const double demand : {1.0, 2.0, 3.5, 5.0, 8.0, 12.0, 20.0}) {
    Inputs in;
    in.SteamDemand = demand;
    const Outputs out = succeed(in);
    const double flow = out.DWhbFuel / (cp * (out.TWhb - in.ExhaustTemp));
    const double heat = (out.TWhb - in.AirTemp) * cp * flow;
    // The heat loss counts the base load's unused exhaust heat too.
    const double stackLoss = out.DHeatLoss - unusedHeat(in, out);
    EXPECT_NEAR(heat, out.MActual * steamDuty(in) + stackLoss, 1e-9 * heat) << demand;
    EXPECT_NEAR(out.RHeatUtil, out.MActual * steamDuty(in) / (out.DWhbFuel + out.DGTFuel), 1e-9);
  }
}

TEST_F(GasTurbine, GasGainsTheMassOfTheFuel) {
  const Inputs in;
  const auto flow = [&](const Outputs& out) {
    return out.DWhbFuel / (cp * (out.TWhb - in.ExhaustTemp));
  };
  const Outputs a = atDemand(4.0);
  const Outputs b = atDemand(12.0);
  EXPECT_NEAR(flow(b) - flow(a), (b.DWhbFuel - a.DWhbFuel) / heatingValue, 1e-9 * flow(b));
}

TEST_F(GasTurbine, DemandAtBaseLoadNeedsNoFiring) {
  const Outputs fired = atDemand(4.0);
  const Inputs in;
  for (const double off : {-0.9e-4, 0.0, 0.9e-4}) {
    const Outputs out = atDemand(fired.MBaseLoad * (1.0 + off));
    EXPECT_EQ(out.TWhb, 278.4);
    EXPECT_EQ(out.TDewPtActual, 278.4);
    EXPECT_EQ(out.TDewPtMax, 278.4);
    EXPECT_EQ(out.DWhbFuel, 0.0);
    EXPECT_EQ(out.MActual, out.MBaseLoad);
    EXPECT_EQ(out.MBaseLoad, fired.MBaseLoad);
    EXPECT_NEAR(out.DHeatLoss, unusedHeat(in, out), 1e-8);
    EXPECT_NEAR(out.RHeatUtil, out.MBaseLoad * steamDuty(in) / out.DGTFuel, 1e-12);
    EXPECT_GT(out.RExhaustO2, fired.RExhaustO2);
  }
  EXPECT_NE(atDemand(fired.MBaseLoad * 1.00011).TWhb, 278.4);
}

TEST_F(GasTurbine, DewPointsOfNoFiringAreAPlainNumberInAnyUnit) {
  ASSERT_EQ(engine.SetUserUnitIndex(0, "F"), 1);
  Inputs in;
  for (double* T : {&in.AirTemp, &in.ExhaustTemp, &in.SteamTemp, &in.BFWTemp}) {
    *T = engine.units().toUser(temperature, *T);
  }
  in.SteamDemand = succeed(in).MBaseLoad;
  const Outputs out = succeed(in);
  EXPECT_EQ(out.TDewPtActual, 278.4);
  EXPECT_EQ(out.TDewPtMax, 278.4);
  EXPECT_NEAR(out.TWhb, 278.4 * 1.8 - 459.67, 1e-6);
}

TEST_F(GasTurbine, DemandBelowBaseLoadGivesNegativeFuel) {
  const Outputs out = atDemand(1.0);
  EXPECT_LT(out.DWhbFuel, 0.0);
  EXPECT_LT(out.TWhb, 800.0);
  EXPECT_NEAR(out.MActual, 1.0, 1e-9);
}

TEST_F(GasTurbine, FiringRisesWithDemandUpToTheCap) {
  double before = -1e9;
  for (double demand = 0.5; demand < 15.5; demand += 0.5) {
    const Outputs out = atDemand(demand);
    EXPECT_GT(out.DWhbFuel, before) << demand;
    EXPECT_NEAR(out.MActual, demand, 1e-8) << demand;
    before = out.DWhbFuel;
  }
}

TEST_F(GasTurbine, BaseLoadTakesTheColdEndWhenItPinchesFirst) {
  // Hot exhaust: most heat is above the pinch, and the stack comes down to the feed water.
  Inputs in;
  in.ExhaustTemp = 1200.0;
  const Outputs out = succeed(in);
  const double exhaustFlow = (out.DGTFuel - in.GTPower) / (cp * (in.ExhaustTemp - in.AirTemp));
  EXPECT_NEAR(in.ExhaustTemp - out.MBaseLoad * steamDuty(in) / (cp * exhaustFlow),
              in.BFWTemp + in.DTMin, 1e-8);
}

TEST_F(GasTurbine, SaturatedSteamIsAccepted) {
  Inputs in;
  ASSERT_EQ(engine.TSatP(&in.SteamTemp, in.SteamPress), 1);
  const Outputs out = succeed(in);
  EXPECT_NEAR(out.MActual, in.SteamDemand, 1e-9);
}

TEST_F(GasTurbine, FaultsAreReportedInOrder) {
  std::vector<double> in(gasTurbineExample);
  in[4] = -1.0;
  in[5] = 100.0;
  in[6] = 100.0;
  in[7] = -100.0;
  constexpr NextFault faults[] = {
      {4, 30.0, "Steam Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa)."},
      {5, 500.0, "Steam Temperature parameter out of range (Valid range 260.00 to 2500.00 K)."},
      {4, 4.0, "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa)."},
      {5, 673.0, "Steam temperature less than saturation temperature"},
      {6, 378.0, "Temperature parameter out of range (Valid range 260.00 to 2500.00 K)."},
      {7, 4.0, "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa)."},
  };
  expectFaultsInOrder(gasTurbine, engine, in, faults);
}

TEST_F(GasTurbine, FaultsAreReportedInTheClientsUnits) {
  chooseMixedUnits(engine);
  Outputs out{};
  Inputs in;
  in.SteamPress = 1e6;
  EXPECT_EQ(run(engine, out, in), 0);
  EXPECT_EQ(engine.LastError(),
            "Steam Pressure parameter out of range (Valid range -14.70 to 435097.87 psig).");
  in.SteamPress = 600.0;
  in.SteamTemp = 9999.0;
  EXPECT_EQ(run(engine, out, in), 0);
  EXPECT_EQ(engine.LastError(),
            "Steam Temperature parameter out of range (Valid range 8.33 to 4040.33 F).");
}

TEST_F(GasTurbine, TraceOfAFailureShowsTheCallThatFailed) {
  Outputs out{};
  Inputs in;
  in.SteamPress = 30.0;
  in.SteamTemp = 900.0;
  EXPECT_EQ(run(engine, out, in), 0);
  EXPECT_EQ(test::traceOf(engine),
            "GasTurbineA\n"
            "  TSatP\n"
            "    error: Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).\n");
}

TEST_F(GasTurbine, AnswersTheSameInMixedUnits) {
  for (const double demand : {1.0, 4.0, 6.0, 20.0}) {
    std::vector<double> in(gasTurbineExample);
    in[7] = demand;
    expectSameInMixedUnits(gasTurbine, in);
    expectSameInUnits(gasTurbine, in, chooseOffsetUnits);
  }
}

TEST_F(GasTurbine, RandomPlantsMeetTheirDemandOrTheirOxygenLimit) {
  constexpr std::uint64_t seed = 20240611;
  SCOPED_TRACE(seed);
  std::mt19937_64 random(seed);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution(low, high)(random);
  };
  for (int plant = 0; plant < 500; ++plant) {
    Inputs in;
    in.GTPower = between(500.0, 50000.0);
    in.FPRatio = between(0.2, 0.4);
    in.AirTemp = between(265.0, 310.0);
    in.ExhaustTemp = between(730.0, 900.0);
    in.SteamPress = between(0.5, 8.0);
    double tSat = 0.0;
    ASSERT_EQ(engine.TSatP(&tSat, in.SteamPress), 1);
    in.SteamTemp = tSat + between(1.0, 120.0);
    in.BFWTemp = between(330.0, 390.0);
    in.DTMin = between(5.0, 30.0);
    in.SteamDemand = in.GTPower * between(0.0002, 0.004);
    in.MinO2Stack = between(0.01, 0.05);
    const Outputs out = succeed(in);
    const bool capped = std::fabs(out.RExhaustO2 - in.MinO2Stack) < 1e-10;
    if (out.TWhb == 278.4) continue;
    if (capped) {
      EXPECT_LE(out.MActual, in.SteamDemand * (1.0 + 1e-9)) << plant;
    } else {
      EXPECT_NEAR(out.MActual, in.SteamDemand, 1e-6 * in.SteamDemand) << plant;
      EXPECT_GT(out.RExhaustO2, in.MinO2Stack) << plant;
    }
    const double flow = out.DWhbFuel / (cp * (out.TWhb - in.ExhaustTemp));
    const double heat = (out.TWhb - in.AirTemp) * cp * flow;
    const double stackLoss = out.DHeatLoss - unusedHeat(in, out);
    EXPECT_NEAR(heat, out.MActual * steamDuty(in) + stackLoss, 1e-8 * heat) << plant;
  }
}

TEST_F(GasTurbine, ArbitraryInputsNeverGiveANaN) {
  expectSanityOnArbitraryDoubles(gasTurbine, 31, 4000, gasTurbineExample);
}

}  // namespace
}  // namespace calvex
