#pragma once

#include <oaidl.h>
#include <windows.h>

namespace nerida {

inline constexpr CLSID classSearch = {0x44B2C29A, 0xF4A2, 0x11D1, {0xAD, 0x82, 0x00, 0x60, 0x97, 0x04, 0x6D, 0xBB}};
inline constexpr IID interfaceSearch = {0x44B2C299, 0xF4A2, 0x11D1, {0xAD, 0x82, 0x00, 0x60, 0x97, 0x04, 0x6D, 0xBB}};

// The system's interfaces have no virtual destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// The search component's interface. Callers go through the places in the table of functions, so it must not change.
// Arrays have one dimension; the caller destroys what it is given.
struct SearchInterface : IDispatch {
  // Names (BSTR), model numbers and flags (32 bit) of the hits, and their count.
  virtual HRESULT STDMETHODCALLTYPE Search(BSTR* query, SAFEARRAY** names, SAFEARRAY** ids, SAFEARRAY** flags,
                                           LONG* count) = 0;
  // Its second operation, which the catalog has no use for; only its place counts here.
  virtual HRESULT STDMETHODCALLTYPE unused() = 0;
  // Categories (BSTR), all sub-categories (BSTR), their number in each category (16 bit), the last category's index.
  virtual HRESULT STDMETHODCALLTYPE GetCategories(SAFEARRAY** names, SAFEARRAY** subNames, SAFEARRAY** subCounts,
                                                  LONG* last) = 0;

 protected:
  ~SearchInterface() = default;
};

#pragma GCC diagnostic pop

}  // namespace nerida
