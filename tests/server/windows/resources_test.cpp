// What the module carries beside its code, read as the system reads it.
#include <map>

#include "diagnostics/messages.h"
#include "server/windows/client.h"
#include "support/checkout.h"
#include "units/unit_catalogue.h"

namespace calvex::test {
namespace {

class Resources : public testing::Test {
 protected:
  ~Resources() override { FreeLibrary(module); }
  HMODULE module = LoadLibraryExA(CALVEX_SERVER, nullptr,
                                  LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
};

std::wstring unicode(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), size)));
  return wide;
}

TEST_F(Resources, TheStringTableIsTheEnginesOwnListAndNothingElse) {
  ASSERT_NE(module, nullptr);
  std::map<UINT, std::wstring> expected;
#define X(number, name, text) expected[number] = unicode(messageText(number));
  CALVEX_MESSAGES(X)
#undef X
  UINT group = 0;
  for (const UnitGroupRow& row : unitGroupTable()) {
    expected[20 + group] = unicode(row.displayName);
    expected[50 + group] = unicode(row.internalUnit);
    ++group;
  }
  EXPECT_EQ(expected.at(1), unicode(test::projectVersion()));
  EXPECT_EQ(expected.at(46), L"Pressure Difference");
  EXPECT_EQ(expected.at(76), L"MPa");
  for (UINT number = 0; number < 1000; ++number) {
    wchar_t text[512] = {};
    LoadStringW(module, number, text, 512);
    const auto found = expected.find(number);
    EXPECT_EQ(std::wstring(text), found == expected.end() ? L"" : found->second) << number;
  }
}

TEST_F(Resources, TheVersionIsThatOfTheProduct) {
  ASSERT_NE(module, nullptr);
  const HRSRC place =
      FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16));  // RT_VERSION
  ASSERT_NE(place, nullptr);
  // The fixed part follows the length words and the key "VS_VERSION_INFO", at 40 bytes.
  const auto* words = static_cast<const DWORD*>(LockResource(LoadResource(module, place))) + 10;
  EXPECT_EQ(words[0], 0xFEEF04BDU);
  EXPECT_EQ(words[2], (4U << 16) | 4U);
  EXPECT_EQ(words[3], 8U << 16);
}

TEST_F(Resources, TheTypeLibraryIsResourceOne) {
  ASSERT_NE(module, nullptr);
  EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(1), L"TYPELIB"), nullptr);
}

}  // namespace
}  // namespace calvex::test
