#include "errors.h"

namespace calvex::calc {

namespace {

struct Explained {
  std::uint32_t error;
  const char* shown;
  const char* words;
};

constexpr Explained spreadsheetErrors[] = {
    {501, "Err:501", "a character that no formula has"},
    {502, "Err:502", "an input that a function cannot take"},
    {503, "#NUM!", "no number answers it, or it is too large"},
    {504, "Err:504", "an input too many, or one of the wrong kind"},
    {508, "Err:508", "a parenthesis too many or too few"},
    {509, "Err:509", "no operator between two values"},
    {510, "Err:510", "no value beside an operator"},
    {511, "Err:511", "a missing input"},
    {519, "#VALUE!", "a text or an array where a number must be"},
    {522, "Err:522", "the cell reads itself, directly or through others"},
    {523, "Err:523", "repeated calculation does not settle"},
    {524, "#REF!", "a cell that is no more"},
    {525, "#NAME?", "a name that is not known"},
    {532, "#DIV/0!", "a division by zero"},
    {0x7fff, "#N/A", "a value that is not there"},
};

}  // namespace

std::string shownError(std::uint32_t error) {
  for (const Explained& known : spreadsheetErrors) {
    if (known.error == error) return known.shown;
  }
  return "Err:" + std::to_string(error);
}

std::string errorInWords(std::uint32_t error) {
  for (const Explained& known : spreadsheetErrors) {
    if (known.error == error) return std::string(known.shown) + ", " + known.words;
  }
  return shownError(error);
}

}  // namespace calvex::calc
