#pragma once

#include <unknwn.h>
#include <windows.h>

#include <new>

namespace nerida {

// The failure of a COM method, thrown from where it cannot be returned.
struct Refusal {
  HRESULT status;
};

// Runs what stands behind a COM method; no exception may cross into the caller.
template <typename Body>
HRESULT border(Body body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const Refusal& refusal) {
    return refusal.status;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

// A reference that an object holds on itself while one of its methods runs: the caller may release its last one inside.
class SelfReference {
 public:
  explicit SelfReference(IUnknown& object) : object(object) { object.AddRef(); }
  ~SelfReference() { object.Release(); }
  SelfReference(const SelfReference&) = delete;
  SelfReference& operator=(const SelfReference&) = delete;

 private:
  IUnknown& object;
};

}  // namespace nerida
