#include "support/checkout.h"

namespace calvex::test {

std::string dataFolder() { return CALVEX_TEST_DATA; }

std::string docsFolder() { return CALVEX_DOCS; }

std::string projectVersion() { return CALVEX_VERSION; }

}  // namespace calvex::test
