#include "ui/windows/appearance.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <vector>

#include "ui/windows/dialog_user.h"

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

void takePicture(HWND window, const std::string& name) {
  const char* folder = std::getenv("CALVEX_PICTURES");
  if (folder == nullptr) return;
  SetForegroundWindow(window);
  // What is drawn reaches the screen with a delay.
  for (const ULONGLONG end = GetTickCount64() + 1000; GetTickCount64() < end; Sleep(10)) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
  const RECT place = screenRectangle(window);
  const int width = place.right - place.left, height = place.bottom - place.top;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
  SelectObject(memory, before);

  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = width;
  info.biHeight = height;
  info.biPlanes = 1;
  info.biBitCount = 32;
  info.biSizeImage = static_cast<DWORD>(width * height * 4);
  std::vector<char> pixels(info.biSizeImage);
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(),
            reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);

  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof info;
  header.bfSize = header.bfOffBits + info.biSizeImage;
  std::ofstream file(std::string(folder) + "/" + name + ".bmp", std::ios::binary);
  file.write(reinterpret_cast<const char*>(&header), sizeof header);
  file.write(reinterpret_cast<const char*>(&info), sizeof info);
  file.write(pixels.data(), static_cast<std::streamsize>(pixels.size()));
  EXPECT_TRUE(file.good()) << folder;
}

}  // namespace calvex::test
