#pragma once

#include <ole2.h>
#include <windows.h>

#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace nerida::host {

/// UTF-8 inside, UTF-16 towards the system.
std::wstring wide(std::string_view text);
std::string utf8(std::wstring_view text);

/// The system hands pointers and handles through as numbers.
template <typename Pointer>
Pointer pointerOf(LONG_PTR number) {
  return reinterpret_cast<Pointer>(number);  // NOLINT(performance-no-int-to-ptr)
}

/// A counted reference to a COM object.
template <typename Interface>
class ComRef {
 public:
  ComRef() = default;
  ComRef(const ComRef&) = delete;
  ComRef& operator=(const ComRef&) = delete;
  ComRef(ComRef&& other) noexcept : pointer(std::exchange(other.pointer, nullptr)) {}
  ComRef& operator=(ComRef&& other) noexcept {
    std::swap(pointer, other.pointer);
    return *this;
  }
  ~ComRef() { reset(); }

  void reset() {
    Interface* last = std::exchange(pointer, nullptr);
    if (last != nullptr) last->Release();
  }
  /// For functions that return a reference through an argument.
  void** out() {
    reset();
    return reinterpret_cast<void**>(&pointer);
  }
  [[nodiscard]] Interface* get() const { return pointer; }
  Interface* operator->() const { return pointer; }
  Interface& operator*() const { return *pointer; }
  explicit operator bool() const { return pointer != nullptr; }

 private:
  Interface* pointer = nullptr;
};

/// An automation variant that is cleared when it goes away.
struct Variant : VARIANT {
  Variant() { VariantInit(this); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(this); }
};

/// Throws std::bad_alloc. The caller owns the text.
inline BSTR newBstr(std::wstring_view text) {
  BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

inline std::wstring_view viewOf(BSTR text) { return {text != nullptr ? text : L"", SysStringLen(text)}; }

}  // namespace nerida::host
