// The direct road from every pair, with every instruction set, against the table computed
// independently to 15 digits.
#include <vector>

#include "direct/states.h"
#include "support/failures.h"
#include "support/table.h"

namespace calvex::test {
namespace {

using direct::Letter;
using direct::Pair;

constexpr std::string_view names = "PTHSURVQAGMKCDZWNEIJBL";
std::string nameOf(Letter letter) {
  return std::string(1, names[static_cast<std::size_t>(letter)]);
}

// What rounding leaves of the terms that a property is the sum of: a liquid's pressure has terms
// far above its R T rho; energies and entropy lose a digit in cold water beyond 100 MPa.
double digits(Letter letter, double P) {
  if (letter == Letter::P) return 1.5e-11;
  return P > 100.0 ? 5e-12 : 1e-12;
}

TEST(DirectReferenceValues, EveryPropertyFromEveryPairThatTheTableHas) {
  const std::vector<Row> rows = readTable("single-phase.csv");
  ASSERT_GE(rows.size(), 60U);
  for (const std::string_view set : direct::instructionSets()) {
    ASSERT_TRUE(direct::useInstructionSet(set));
    Grid grid{std::string(set)};
    int others = 0;
    for (int p = 0; p < direct::pairCount; ++p) {
      const auto pair = static_cast<Pair>(p);
      const Letter a = firstOf(pair);
      const Letter b = secondOf(pair);
      if (b == Letter::Q) continue;
      for (const Row& row : rows) {
        const double T = row["T"];
        const double density = row["R"];
        const double first = row[nameOf(a)];
        const double second = row[nameOf(b)];
        if (!(first >= 0.0 && second >= 0.0)) continue;
        // A dense liquid has the enthalpy, entropy or energy of another state at its temperature,
        // which is the one that is answered.
        const double found = direct::evaluate(pair, first, second, Letter::R);
        if (a == Letter::T && density > 500.0 && found < 0.9999 * density) {
          ++others;
          continue;
        }
        for (const char name : std::string_view("TRHSUVP")) {
          const auto letter = static_cast<Letter>(names.find(name));
          double value = 0.0;
          double byA = 0.0;
          double byB = 0.0;
          short status = 0;
          const direct::Result results[] = {{letter, {&value}, {&byA}, {&byB}}};
          direct::Request request{pair, {&first}, {&second}, results};
          request.status = {&status};
          direct::evaluate(request, 0, 1);
          const std::string at = fmt::format("{} from {}{} at T = {}, rho = {}", name, nameOf(a),
                                             nameOf(b), T, density);
          grid.holds(status == 0, at);
          if (status != 0) continue;
          const double P = row["P"];
          const auto rounding = [&](Letter of, double x) {
            return digits(of, P) * std::max(std::abs(x), termsOf(of, x, T, density));
          };
          const double expected = row[nameOf(letter)];
          // As wide as the pair determines the state.
          grid.near(value, expected, 1.0,
                    rounding(letter, expected) + std::abs(byA) * rounding(a, first) +
                        std::abs(byB) * rounding(b, second),
                    at);
        }
      }
    }
    EXPECT_LT(others, 30);
  }
  EXPECT_TRUE(direct::useInstructionSet({}));
}

}  // namespace
}  // namespace calvex::test
