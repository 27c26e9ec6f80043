#pragma once

#include "host/app/call_log.h"
#include "host/app/model_members.h"

namespace nerida::host {

/// The automation face of the embedded object: members by name, nothing else. Lives as long as somebody holds it;
/// after disconnect() every use fails, so that a late caller cannot reach an object that has gone.
class ModelDispatch final : public IDispatch {
 public:
  ModelDispatch(ModelObject& model, CallListener& listener) : model(&model), listener(&listener) {}
  void disconnect() { model = nullptr; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** result) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID language,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID language, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

 private:
  ~ModelDispatch() = default;

  ULONG references = 1;
  ModelObject* model;
  CallListener* listener;
};

}  // namespace nerida::host
