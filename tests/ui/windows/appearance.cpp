#include "ui/windows/appearance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <vector>

namespace calvex::test {

namespace {

RECT screenRectangle(HWND window) {
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  return rectangle;
}

SIZE extentOf(HWND window, const std::wstring& text) {
  const HDC context = GetDC(window);
  const HGDIOBJ before =
      SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
  RECT rectangle{};
  DrawTextW(context, text.c_str(), -1, &rectangle, DT_CALCRECT | DT_SINGLELINE);
  SelectObject(context, before);
  ReleaseDC(window, context);
  return {rectangle.right, rectangle.bottom};
}

std::wstring classOf(HWND window) {
  wchar_t name[64];
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 64))};
}

void expectFit(HWND control, const std::wstring& text, LONG margin, LONG height) {
  RECT client{};
  GetClientRect(control, &client);
  const SIZE extent = extentOf(control, text);
  EXPECT_LE(extent.cx + margin, client.right) << testing::PrintToString(text);
  EXPECT_LE(extent.cy, height) << testing::PrintToString(text);
}

struct Picture {
  BITMAPINFOHEADER info{};
  std::vector<char> pixels;
};

// What is shown of the window.
Picture pictureOf(HWND window) {
  const RECT place = screenRectangle(window);
  const int width = place.right - place.left, height = place.bottom - place.top;
  const HDC shown = GetWindowDC(window);
  const HDC memory = CreateCompatibleDC(shown);
  const HBITMAP bitmap = CreateCompatibleBitmap(shown, width, height);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, shown, 0, 0, SRCCOPY);
  SelectObject(memory, before);

  Picture picture;
  BITMAPINFOHEADER& info = picture.info;
  info.biSize = sizeof info;
  info.biWidth = width;
  info.biHeight = height;
  info.biPlanes = 1;
  info.biBitCount = 32;
  info.biSizeImage = static_cast<DWORD>(width * height * 4);
  picture.pixels.resize(info.biSizeImage);
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), picture.pixels.data(),
            reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(window, shown);
  return picture;
}

}  // namespace

void expectEverythingFits(HWND dialog) {
  RECT inside{};
  GetClientRect(dialog, &inside);
  MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&inside), 2);
  const std::vector<HWND> controls = controlsOf(dialog);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const HWND control = controls[i];
    const RECT place = screenRectangle(control);
    RECT common{};
    EXPECT_TRUE(UnionRect(&common, &place, &inside) && EqualRect(&common, &inside))
        << "outside: " << testing::PrintToString(textOf(control));
    for (std::size_t j = 0; j < i; ++j) {
      const RECT other = screenRectangle(controls[j]);
      EXPECT_FALSE(IntersectRect(&common, &place, &other))
          << testing::PrintToString(textOf(control)) << " over "
          << testing::PrintToString(textOf(controls[j]));
    }

    const std::wstring kind = classOf(control);
    const LONG height = place.bottom - place.top;
    if (kind == L"Static") expectFit(control, textOf(control), 0, height);
    if (kind == L"Button") expectFit(control, textOf(control), 8, height);
    if (kind != L"ComboBox") continue;
    const int count = static_cast<int>(SendMessageW(control, CB_GETCOUNT, 0, 0));
    EXPECT_GT(count, 0);
    for (int entry = 0; entry < count; ++entry) {
      expectFit(control, entryOf(control, entry), GetSystemMetrics(SM_CXVSCROLL) + 5, height);
    }
  }
}

RECT placeOf(HWND control) {
  RECT place = screenRectangle(control);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

void enlarge(HWND dialog, int width, int height) {
  const RECT place = screenRectangle(dialog);
  SetWindowPos(dialog, nullptr, 0, 0, place.right - place.left + width,
               place.bottom - place.top + height, SWP_NOMOVE | SWP_NOZORDER);
}

void expectResizable(HWND dialog) {
  EXPECT_NE(GetWindowLongPtrW(dialog, GWL_STYLE) & WS_THICKFRAME, 0);
  const RECT before = screenRectangle(dialog);
  enlarge(dialog, -100, -100);
  const RECT after = screenRectangle(dialog);
  EXPECT_TRUE(EqualRect(&before, &after));
}

void expectDrawnWhole(HWND dialog) {
  for (const auto& [width, height] : {std::pair(150, 80), {-90, -40}, {30, -40}}) {
    enlarge(dialog, width, height);
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const Picture shown = pictureOf(dialog);
    RedrawWindow(dialog, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const Picture anew = pictureOf(dialog);
    const auto first = std::ranges::mismatch(shown.pixels, anew.pixels).in1;
    EXPECT_EQ(first, shown.pixels.end())
        << "pixel " << (first - shown.pixels.begin()) / 4 % shown.info.biWidth << " from the left";
    const auto [darkest, brightest] = std::ranges::minmax(anew.pixels);
    EXPECT_NE(darkest, brightest) << "an empty picture";
  }
}

void expectCentred(const std::function<void(DialogUser::Turn)>& show) {
  RECT work{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const auto middle = [](LONG from, LONG to) { return (from + to) / 2; };
  const auto expectAt = [&](POINT expected) {
    show([&](HWND dialog) {
      const RECT place = screenRectangle(dialog);
      // Where the middle would take it beyond the work area, it is moved as little as need be.
      const LONG halfWidth = (place.right - place.left) / 2;
      const LONG halfHeight = (place.bottom - place.top) / 2;
      const LONG x = std::clamp(expected.x, work.left + halfWidth, work.right - halfWidth);
      const LONG y = std::clamp(expected.y, work.top + halfHeight, work.bottom - halfHeight);
      EXPECT_NEAR(middle(place.left, place.right), x, 1);
      EXPECT_NEAR(middle(place.top, place.bottom), y, 1);
    });
  };
  const POINT screen{middle(work.left, work.right), middle(work.top, work.bottom)};
  expectAt(screen);
  struct Owner {
    int x, y;
    bool minimised;
  };
  for (const auto& [x, y, minimised] :
       {Owner{330, 250, false}, Owner{-100, -50, false},
        Owner{work.right - 60, work.bottom - 60, false}, Owner{100, 50, true}}) {
    const HWND owner = CreateWindowExW(0, L"Static", L"Owner", WS_OVERLAPPEDWINDOW, x, y, 300, 200,
                                       nullptr, nullptr, nullptr, nullptr);
    ShowWindow(owner, minimised ? SW_SHOWMINIMIZED : SW_SHOW);
    SetActiveWindow(owner);
    EXPECT_EQ(GetActiveWindow(), owner);
    expectAt(minimised ? screen : POINT{x + 150, y + 100});
    DestroyWindow(owner);
  }
}

void takePicture(HWND window, const std::string& name) {
  const char* folder = std::getenv("CALVEX_PICTURES");
  if (folder == nullptr) return;
  SetForegroundWindow(window);
  // What is drawn reaches the screen with a delay.
  for (const ULONGLONG end = GetTickCount64() + 1000; GetTickCount64() < end; Sleep(10)) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
  const Picture picture = pictureOf(window);
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof picture.info;
  header.bfSize = header.bfOffBits + picture.info.biSizeImage;
  std::ofstream file(std::string(folder) + "/" + name + ".bmp", std::ios::binary);
  file.write(reinterpret_cast<const char*>(&header), sizeof header);
  file.write(reinterpret_cast<const char*>(&picture.info), sizeof picture.info);
  file.write(picture.pixels.data(), static_cast<std::streamsize>(picture.pixels.size()));
  EXPECT_TRUE(file.good()) << folder;
}

}  // namespace calvex::test
