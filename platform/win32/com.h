#pragma once

#include <ole2.h>
#include <windows.h>

#include <string_view>
#include <utility>

#include "platform/win32/text.h"

namespace nerida {

// A counted reference to a COM object.
template <typename Interface>
class ComPtr {
 public:
  ComPtr() = default;
  // Shares: adds a reference of its own.
  explicit ComPtr(Interface* pointer) : pointer(pointer) {
    if (pointer != nullptr) pointer->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.pointer) {}
  ComPtr(ComPtr&& other) noexcept : pointer(std::exchange(other.pointer, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(pointer, other.pointer);
    return *this;
  }
  ~ComPtr() {
    if (pointer != nullptr) pointer->Release();
  }

  Interface* get() const { return pointer; }
  Interface* operator->() const { return pointer; }
  explicit operator bool() const { return pointer != nullptr; }
  // For functions that return a reference through an argument.
  Interface** put() {
    ComPtr().swap(*this);
    return &pointer;
  }
  // Hands the reference over to the caller.
  Interface* release() { return std::exchange(pointer, nullptr); }
  void** putVoid() { return reinterpret_cast<void**>(put()); }

 private:
  void swap(ComPtr& other) noexcept { std::swap(pointer, other.pointer); }

  Interface* pointer = nullptr;
};

// An automation text. Throws std::bad_alloc when there is no room for it.
class Bstr {
 public:
  explicit Bstr(std::wstring_view text);
  explicit Bstr(std::string_view text) : Bstr(std::wstring_view(wide(text))) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(text); }

  BSTR get() const { return text; }
  BSTR release() { return std::exchange(text, nullptr); }

 private:
  BSTR text;
};

// An automation variant that is cleared when it goes away.
struct Variant : VARIANT {
  Variant() { VariantInit(this); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(this); }
};

}  // namespace nerida
