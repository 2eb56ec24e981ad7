/// \file
/// The values and callbacks of Excel's C interface (Excel 2007 and later), as Microsoft's reference
/// "Excel XLL SDK API" describes them; the names are those of the reference.
#pragma once

#include <windows.h>

namespace calvex::excel {

using XCHAR = wchar_t;
using RW = INT32;
using COL = INT32;
using IDSHEET = DWORD_PTR;

/// A rectangle of cells, counted from 0, its last row and column included.
struct XLREF12 {
  RW rwFirst;
  RW rwLast;
  COL colFirst;
  COL colLast;
};

/// `count` rectangles follow.
struct XLMREF12 {
  WORD count;
  XLREF12 reftbl[1];
};

struct XLOPER12 {
  union Value {
    double num;
    XCHAR* str;  ///< the number of characters, then these; no zero at the end
    BOOL xbool;
    int err;
    int w;
    struct {
      WORD count;
      XLREF12 ref;
    } sref;
    struct {
      XLMREF12* lpmref;
      IDSHEET idSheet;
    } mref;
    struct {
      XLOPER12* lparray;  ///< row by row
      RW rows;
      COL columns;
    } array;
  } val;
  DWORD xltype;
};
static_assert(sizeof(XLOPER12) == 32, "as the host lays it out");

enum : DWORD {
  xltypeNum = 0x0001,
  xltypeStr = 0x0002,
  xltypeBool = 0x0004,
  xltypeRef = 0x0008,
  xltypeErr = 0x0010,
  xltypeMulti = 0x0040,
  xltypeMissing = 0x0080,
  xltypeNil = 0x0100,
  xltypeSRef = 0x0400,
  xltypeInt = 0x0800,
  xlbitXLFree = 0x1000,
  xlbitDLLFree = 0x4000,
  xltypeMask = 0x0fff,
};

enum : int {
  xlerrNull = 0,
  xlerrDiv0 = 7,
  xlerrValue = 15,
  xlerrRef = 23,
  xlerrName = 29,
  xlerrNum = 36,
  xlerrNA = 42,
};

enum : int { xlretSuccess = 0, xlretFailed = 32 };

/// Functions of the host; those of 0x4000 have no counterpart in its sheets.
enum : int {
  xlFree = 0x4000,
  xlCoerce = 0x4002,
  xlSheetId = 0x4004,
  xlSheetNm = 0x4005,
  xlGetName = 0x4009,
  xlfSetName = 88,
  xlfCaller = 89,
  xlfGetName = 107,
  xlfRegister = 149,
  xlfGetCell = 185,
  xlfUnregister = 201,
  xlfEvaluate = 257,
};

/// What the host exports as MdCallBack12.
using Callback = int(WINAPI*)(int function, int count, XLOPER12** arguments, XLOPER12* result);

}  // namespace calvex::excel
