// Prints the texts that are made from the product's tables; see scripts/update-generated and
// web/site.
#include <iostream>
#include <string_view>

#include "formulation.h"
#include "server/generated_texts.h"

int main(int count, char** arguments) {
  const std::string_view what = count == 2 ? arguments[1] : "";
  if (what == "interface") {
    std::cout << calvex::interfaceDefinition();
  } else if (what == "strings") {
    std::cout << calvex::stringResources();
  } else if (what == "worksheet") {
    std::cout << calvex::worksheetFunctions();
  } else if (what == "entries") {
    std::cout << calvex::worksheetEntryPoints();
  } else if (what == "results") {
    std::cout << calvex::wrapperResults();
  } else if (what == "members") {
    std::cout << calvex::wrapperMembers();
  } else if (what == "visits") {
    std::cout << calvex::wrapperVisits();
  } else if (what == "formulation") {
    std::cout << calvex::formulation();
  } else {
    std::cerr << "usage: generate interface|strings|worksheet|entries|results|members|visits|"
                 "formulation\n";
    return 2;
  }
}
