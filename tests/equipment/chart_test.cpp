// The chart of the thermocompressors: its curves, its ends and its inverse.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "equipment/thermocompressor_chart.h"

namespace calvex {
namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Compression ratios of the printed coefficients at expansion ratios of 5 and of 20, computed
// apart.
struct Point {
  double R, at5, at20;
};
constexpr Point points[] = {
    {0.25, 1.0787596681661484, 1.1632576453264738}, {0.3, 1.0946852935750755, 1.1910596531548374},
    {0.4, 1.131299135720934, 1.248003205245922},    {0.5, 1.1691569735109384, 1.3193402799777016},
    {0.6, 1.2107387170656176, 1.3959965774391037},  {0.8, 1.2878919311784964, 1.5503410495692487},
    {1.0, 1.3889993089033925, 1.7609762490014926},  {1.2, 1.4706429891656827, 1.9364576150579231},
    {1.5, 1.60442518535699, 2.2120378429327348},    {2.0, 1.7914587664804003, 2.644884190778779},
    {3.0, 2.03340025419738, 3.2080959833345974},    {4.0, 2.195025307913258, 3.6529139853428765},
    {5.0, 2.305319215403555, 3.860100018526191},    {10.0, 2.7526902476975526, 5.189533147331369}};

TEST(ThermocompressorChart, ReproducesThePrintedCoefficients) {
  for (const Point& point : points) {
    EXPECT_NEAR(ChartCompressionRatio(5.0, point.R), point.at5, 1e-13) << point.R;
    EXPECT_NEAR(ChartCompressionRatio(20.0, point.R), point.at20, 1e-13) << point.R;
    EXPECT_NEAR(ChartEntrainmentRatio(5.0, point.at5), point.R, 1e-11) << point.R;
    EXPECT_NEAR(ChartEntrainmentRatio(20.0, point.at20), point.R, 1e-11) << point.R;
  }
}

TEST(ThermocompressorChart, NoMotiveFlowDoesNotCompress) {
  for (const double ER : {0.5, 1.0, 5.0, 20.0}) {
    EXPECT_EQ(ChartCompressionRatio(ER, 0.0), 1.0);
    EXPECT_EQ(ChartCompressionRatio(ER, 0.99e-4), 1.0);
    EXPECT_EQ(ChartEntrainmentRatio(ER, 1.0), 0.0);
    EXPECT_EQ(ChartEntrainmentRatio(ER, 0.3), 0.0);
  }
}

TEST(ThermocompressorChart, BeginsAtAFlowRatioOfExactlyOneInTenThousand) {
  EXPECT_EQ(ChartCompressionRatio(5.0, std::nextafter(1e-4, 0.0)), 1.0);
  EXPECT_NEAR(ChartCompressionRatio(5.0, 1e-4) - 1.0, 4e-4 * (points[0].at5 - 1.0), 1e-15);
}

TEST(ThermocompressorChart, AHundredfoldMotiveFlowCompressesToTheMotivePressure) {
  for (const double ER : {2.0, 5.0, 9.0, 20.0, 80.0}) {
    EXPECT_NEAR(ChartCompressionRatio(ER, 100.0), ER, 1e-12 * ER);
    EXPECT_NEAR(ChartEntrainmentRatio(ER, ER), 100.0, 1e-10);
  }
}

TEST(ThermocompressorChart, IsLinearBetweenTheCurves) {
  EXPECT_NEAR(ChartCompressionRatio(5.0, 2.5), 0.5 * (points[9].at5 + points[10].at5), 1e-13);
  EXPECT_NEAR(ChartCompressionRatio(5.0, 0.1), 1.0 + (points[0].at5 - 1.0) * 0.4, 1e-13);
  EXPECT_NEAR(ChartCompressionRatio(5.0, 55.0), 0.5 * (points[13].at5 + 5.0), 1e-13);
  EXPECT_NEAR(ChartCompressionRatio(5.0, 190.0), 2.0 * 5.0 - points[13].at5, 1e-12);
}

TEST(ThermocompressorChart, EntrainmentRatioUndoesCompressionRatio) {
  for (double ER = 2.0; ER < 100.0; ER *= 1.07) {
    for (double R = 1e-3; R < 300.0; R *= 1.13) {
      const double CR = ChartCompressionRatio(ER, R);
      EXPECT_NEAR(ChartEntrainmentRatio(ER, CR), R, 1e-11 * std::max(1.0, R)) << ER << ' ' << R;
    }
  }
}

TEST(ThermocompressorChart, CompressionRatioRisesWithTheMotiveFlow) {
  for (double ER = 2.0; ER < 100.0; ER *= 1.3) {
    double before = 0.0;
    for (double R = 1e-4; R <= 100.0; R *= 1.05) {
      const double CR = ChartCompressionRatio(ER, R);
      EXPECT_GT(CR, before) << ER << ' ' << R;
      before = CR;
    }
  }
}

TEST(ThermocompressorChart, JumpsAtAnExpansionRatioOfTen) {
  // exp(A ln 10 + B) of the last curve's two pairs
  EXPECT_NEAR(ChartCompressionRatio(std::nextafter(10.0, 0.0), 10.0), 3.793011573251843, 1e-12);
  EXPECT_NEAR(ChartCompressionRatio(10.0, 10.0), 3.8000199973981528, 1e-12);
}

TEST(ThermocompressorChart, HasNothingForImpossibleRatios) {
  for (const double ER : {0.0, -1.0, -infinity, NaN}) {
    EXPECT_EQ(ChartCompressionRatio(ER, 1.0), -1.0);
    EXPECT_EQ(ChartEntrainmentRatio(ER, 1.5), -1.0);
  }
  for (const double negative : {-1e-9, -1.0, -infinity, NaN}) {
    EXPECT_EQ(ChartCompressionRatio(5.0, negative), -1.0);
    EXPECT_EQ(ChartEntrainmentRatio(5.0, negative), -1.0);
  }
}

}  // namespace
}  // namespace calvex
