#include "host/app/model_dispatch.h"

#include <optional>

namespace nerida::host {
namespace {

const ModelMember* memberOf(DISPID id) {
  const auto members = modelMembers();
  const bool known = id >= 1 && static_cast<std::size_t>(id) <= members.size();
  return known ? &members[static_cast<std::size_t>(id) - 1] : nullptr;
}

// Automation names are the same in capitals and small letters.
DISPID idOf(const wchar_t* name) {
  const auto members = modelMembers();
  for (std::size_t i = 0; i < members.size(); ++i) {
    const std::wstring_view known = members[i].name;
    if (CompareStringOrdinal(known.data(), static_cast<int>(known.size()), name, -1, TRUE) == CSTR_EQUAL) {
      return static_cast<DISPID>(i) + 1;
    }
  }
  return DISPID_UNKNOWN;
}

std::optional<CallKind> kindOf(const ModelMember& member, WORD flags) {
  if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
    return member.let != nullptr ? std::optional(CallKind::let) : std::nullopt;
  }
  if ((flags & DISPATCH_METHOD) != 0 && member.call != nullptr) return CallKind::call;
  if ((flags & DISPATCH_PROPERTYGET) != 0 && member.get != nullptr) return CallKind::get;
  return std::nullopt;
}

std::size_t argumentCount(const ModelMember& member, CallKind kind) {
  if (kind == CallKind::call) return member.argumentCount;
  return kind == CallKind::let ? 1 : 0;
}

void perform(const ModelMember& member, ModelObject& model, CallKind kind, const Arguments& arguments,
             VARIANT* result) {
  if (kind == CallKind::get) member.get(model, result);
  if (kind == CallKind::let) member.let(model, arguments);
  if (kind == CallKind::call) member.call(model, arguments, result);
}

HRESULT describe(const MemberError& error, EXCEPINFO* exception) {
  if (exception == nullptr) return DISP_E_EXCEPTION;
  *exception = {};
  exception->wCode = static_cast<WORD>(error.number);
  exception->bstrSource = SysAllocString(L"Zephra Model");
  exception->bstrDescription = SysAllocString(wide(error.description).c_str());
  return DISP_E_EXCEPTION;
}

// By position only; the value of an assignment is the one exception that automation makes.
bool named(const DISPPARAMS& parameters) {
  if (parameters.cNamedArgs == 0) return false;
  return parameters.cNamedArgs != 1 || parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT;
}

}  // namespace

HRESULT ModelDispatch::QueryInterface(REFIID wanted, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (wanted != IID_IUnknown && wanted != IID_IDispatch) return E_NOINTERFACE;
  *result = static_cast<IDispatch*>(this);
  AddRef();
  return S_OK;
}

ULONG ModelDispatch::Release() {
  const ULONG left = --references;
  if (left == 0) delete this;
  return left;
}

HRESULT ModelDispatch::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT ModelDispatch::GetTypeInfo(UINT, LCID, ITypeInfo** result) {
  if (result != nullptr) *result = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT ModelDispatch::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  ids[0] = idOf(names[0]);
  // The arguments have no names.
  for (UINT i = 1; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ModelDispatch::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                              EXCEPINFO* exception, UINT* badArgument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  if (model == nullptr) return RPC_E_DISCONNECTED;
  const ModelMember* member = memberOf(id);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  const auto kind = kindOf(*member, flags);
  if (!kind) return DISP_E_MEMBERNOTFOUND;
  if (named(*parameters)) return DISP_E_NONAMEDARGS;
  if (parameters->cArgs != argumentCount(*member, *kind)) return DISP_E_BADPARAMCOUNT;

  const Arguments arguments({parameters->rgvarg, parameters->cArgs});
  CallRecord record{*kind, member->name, arguments, result, {}};
  return run(*member, record, result, exception, badArgument);
}

// The caller may let go of the object from inside a member.
HRESULT ModelDispatch::run(const ModelMember& member, CallRecord& record, VARIANT* result, EXCEPINFO* exception,
                           UINT* badArgument) {
  AddRef();
  HRESULT status = S_OK;
  if (result != nullptr) VariantInit(result);
  try {
    try {
      perform(member, *model, record.kind, record.arguments, result);
    } catch (const MemberError& error) {
      record.failure = std::to_string(error.number) + ' ' + error.description;
      status = describe(error, exception);
    } catch (const CallRefused& refused) {
      record.failure = "refused, argument " + std::to_string(record.arguments.count() - refused.argument);
      if (badArgument != nullptr) *badArgument = refused.argument;
      status = refused.status;
    }
    listener->called(record);
  } catch (const std::bad_alloc&) {
    status = E_OUTOFMEMORY;
  } catch (...) {
    status = E_UNEXPECTED;
  }
  Release();
  return status;
}

}  // namespace nerida::host
