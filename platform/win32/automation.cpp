#include "platform/win32/automation.h"

#include <new>

#include "platform/error.h"
#include "platform/win32/call_frame.h"
#include "platform/win32/late_binding.h"
#include "platform/win32/script_array.h"
#include "platform/win32/status.h"
#include "platform/win32/variant.h"

namespace nerida {
namespace {

bool isArray(const Value& value) { return std::holds_alternative<std::shared_ptr<const Array>>(value); }

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

// Whether the failure only says that a typed reference was refused, so that the member has not run.
bool refusesTypedReferences(const Outcome& outcome, IDispatch& object) {
  if (outcome.status == DISP_E_TYPEMISMATCH) return outcome.refusedArgument >= 0;
  return outcome.status == E_NOTIMPL && isScriptObject(object);
}

Outcome invokeWithReferences(IDispatch& object, const Member& member, CallFrame& frame, Variant& result,
                             EXCEPINFO& exception) {
  const auto form = member.scriptClass ? ReferenceForm::variant : ReferenceForm::typed;
  const Outcome outcome = invoke(object, member.id, DISPATCH_METHOD, frame.arguments(form), &result, exception);
  if (SUCCEEDED(outcome.status) || !frame.hasReferences() || !refusesTypedReferences(outcome, object)) return outcome;
  return invoke(object, member.id, DISPATCH_METHOD, frame.arguments(ReferenceForm::variant), &result, exception);
}

// Script languages that do not fill references can still return an array, and theirs are objects.
void offerScriptArray(Value& value) {
  const auto* object = std::get_if<ObjectRef>(&value);
  if (object == nullptr || *object == nullptr) return;
  ComPtr<IDispatch> dispatch;
  *dispatch.put() = dispatchOf(*object);
  if (!dispatch) return;
  if (auto array = fromScriptArray(*dispatch.get())) value = std::move(array);
}

void offerScriptArrays(std::span<Argument> arguments, Value& result) {
  bool filled = false;
  for (const Argument& argument : arguments) {
    if (argument.variable == nullptr) continue;
    offerScriptArray(*argument.variable);
    filled = filled || isArray(*argument.variable);
  }
  if (!filled) offerScriptArray(result);
}

// Every access holds a reference of its own: the model may make the library let go of it while it runs.
template <typename Access>
auto guardedAccess(const ComPtr<IDispatch>& dispatch, Access access) {
  const ComPtr<IDispatch> held = dispatch;
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
    const Member found = findMember(object, member);
    Variant content;
    toVariant(value, content);
    EXCEPINFO exception = {};
    const auto outcome = invoke(object, found.id, DISPATCH_PROPERTYPUT,
                                std::span<VARIANT>(static_cast<VARIANT*>(&content), 1), nullptr, exception);
    if (FAILED(outcome.status)) throw errorFromInvoke(outcome.status, exception);
  });
}

Value DispatchObject::call(const std::string& member, std::span<Argument> arguments) {
  return guardedAccess(dispatch, [&](IDispatch& object) {
    const Member found = findMember(object, member);
    CallFrame frame(arguments);
    Variant result;
    EXCEPINFO exception = {};
    const Outcome outcome = invokeWithReferences(object, found, frame, result, exception);
    frame.writeBack();
    if (FAILED(outcome.status)) throw errorFromInvoke(outcome.status, exception);
    Value value = fromVariant(result);
    if (frame.hasReferences()) offerScriptArrays(arguments, value);
    return value;
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
