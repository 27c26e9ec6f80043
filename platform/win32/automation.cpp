#include "platform/win32/automation.h"

#include <new>

#include "platform/error.h"
#include "platform/win32/call_frame.h"
#include "platform/win32/late_binding.h"
#include "platform/win32/status.h"
#include "platform/win32/variant.h"

namespace nerida {
namespace {

class DispatchObject : public Object {
 public:
  explicit DispatchObject(IDispatch* dispatch) : dispatch(dispatch) {}

  Value get(const std::string& member) override;
  void let(const std::string& member, const Value& value) override;
  Value call(const std::string& member, std::span<Argument> arguments) override;

  IDispatch* reference() const {
    dispatch->AddRef();
    return dispatch.get();
  }

 private:
  ComPtr<IDispatch> dispatch;
};

// An object that says which argument it refused has not run, so it may be asked again.
bool refusesTypedReference(const Outcome& outcome) {
  return outcome.status == DISP_E_TYPEMISMATCH && outcome.refusedArgument >= 0;
}

Outcome invokeWithReferences(IDispatch& object, DISPID member, CallFrame& frame, Variant& result,
                             EXCEPINFO& exception) {
  const auto form = isScriptObject(object) ? ReferenceForm::variant : ReferenceForm::typed;
  const Outcome outcome = invoke(object, member, DISPATCH_METHOD, frame.arguments(form), &result, exception);
  if (!refusesTypedReference(outcome)) return outcome;
  return invoke(object, member, DISPATCH_METHOD, frame.arguments(ReferenceForm::variant), &result, exception);
}

// Every access holds a reference of its own: the model may make the library let go of it while it runs.
template <typename Access>
auto guardedAccess(const ComPtr<IDispatch>& dispatch, Access access) {
  const ComPtr<IDispatch> held(dispatch.get());
  try {
    return access(*held.get());
  } catch (const std::bad_alloc&) {
    throw Error(error::outOfMemory);
  }
}

Value DispatchObject::get(const std::string& member) {
  return guardedAccess(dispatch, [&](IDispatch& object) {
    Variant result;
    getMember(object, member, result);
    return fromVariant(result);
  });
}

void DispatchObject::let(const std::string& member, const Value& value) {
  guardedAccess(dispatch, [&](IDispatch& object) {
    const DISPID found = findMember(object, member);
    Variant content;
    toVariant(value, content);
    EXCEPINFO exception = {};
    const auto outcome = invoke(object, found, DISPATCH_PROPERTYPUT,
                                std::span<VARIANT>(static_cast<VARIANT*>(&content), 1), nullptr, exception);
    if (FAILED(outcome.status)) throw errorFromInvoke(outcome.status, exception);
  });
}

Value DispatchObject::call(const std::string& member, std::span<Argument> arguments) {
  return guardedAccess(dispatch, [&](IDispatch& object) {
    const DISPID found = findMember(object, member);
    CallFrame frame(arguments);
    Variant result;
    EXCEPINFO exception = {};
    const Outcome outcome = frame.hasReferences() ? invokeWithReferences(object, found, frame, result, exception)
                                                  : invoke(object, found, DISPATCH_METHOD,
                                                           frame.arguments(ReferenceForm::typed), &result, exception);
    frame.writeBack();
    if (FAILED(outcome.status)) throw errorFromInvoke(outcome.status, exception);
    return fromVariant(result);
  });
}

}  // namespace

ObjectRef wrapDispatch(IDispatch* dispatch) {
  return dispatch == nullptr ? nullptr : std::make_shared<DispatchObject>(dispatch);
}

IDispatch* dispatchOf(const ObjectRef& object) {
  const auto* dispatchObject = dynamic_cast<const DispatchObject*>(object.get());
  return dispatchObject == nullptr ? nullptr : dispatchObject->reference();
}

}  // namespace nerida
