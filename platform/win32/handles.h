#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace nerida {

// Owners of system objects: closed when they go, never by hand.
template <class Handle, auto close>
struct HandleCloser {
  using pointer = Handle;
  void operator()(Handle handle) const { close(handle); }
};

template <class Handle, auto close>
using UniqueHandle = std::unique_ptr<std::remove_pointer_t<Handle>, HandleCloser<Handle, close>>;

using UniqueBitmap = UniqueHandle<HBITMAP, DeleteObject>;
using UniqueFont = UniqueHandle<HFONT, DeleteObject>;
using UniqueBrush = UniqueHandle<HBRUSH, DeleteObject>;
using UniquePen = UniqueHandle<HPEN, DeleteObject>;
using UniqueMemoryDc = UniqueHandle<HDC, DeleteDC>;
using UniqueMenu = UniqueHandle<HMENU, DestroyMenu>;
using UniqueWindow = UniqueHandle<HWND, DestroyWindow>;
using UniqueFile = UniqueHandle<HANDLE, CloseHandle>;

// Puts an object into a drawing context for a while.
class Selected {
 public:
  Selected(HDC context, HGDIOBJ object) : dc(context), previous(SelectObject(context, object)) {}
  ~Selected() { SelectObject(dc, previous); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc;
  HGDIOBJ previous;
};

}  // namespace nerida
