#include "activex/nerida_control.h"

namespace nerida {
namespace {

// The count while the object goes away: references that are taken and dropped meanwhile must not end it again.
constexpr ULONG ending = 0x40000000;

bool isOneOf(REFIID id, std::initializer_list<const IID*> candidates) {
  for (const IID* candidate : candidates) {
    if (*candidate == id) return true;
  }
  return false;
}

}  // namespace

IUnknown* NeridaControl::find(REFIID id) {
  if (isOneOf(id, {&IID_IUnknown, &IID_IDispatch, &IID__NeridaWindow})) return static_cast<_NeridaWindow*>(this);
  if (id == IID_IOleObject) return static_cast<IOleObject*>(this);
  if (isOneOf(id, {&IID_IOleWindow, &IID_IOleInPlaceObject})) return static_cast<IOleInPlaceObject*>(this);
  if (id == IID_IOleControl) return static_cast<IOleControl*>(this);
  if (isOneOf(id, {&IID_IPersist, &IID_IPersistStreamInit})) return static_cast<IPersistStreamInit*>(this);
  if (id == IID_IPersistPropertyBag) return static_cast<IPersistPropertyBag*>(this);
  if (isOneOf(id, {&IID_IProvideClassInfo, &IID_IProvideClassInfo2})) return static_cast<IProvideClassInfo2*>(this);
  if (isOneOf(id, {&IID_IViewObject, &IID_IViewObject2})) return static_cast<IViewObject2*>(this);
  return nullptr;
}

STDMETHODIMP NeridaControl::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  IUnknown* found = find(id);
  *result = found;
  if (found == nullptr) return E_NOINTERFACE;
  found->AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) NeridaControl::AddRef() { return ++references; }

STDMETHODIMP_(ULONG) NeridaControl::Release() {
  const ULONG left = --references;
  if (left == 0) {
    references = ending;
    delete this;
  }
  return left;
}

}  // namespace nerida
