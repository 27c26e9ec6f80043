#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/win32/arguments.h"

namespace nerida::host {

enum class CallKind { get, let, call };

/// One use of a member, as it came in and as it ended.
struct CallRecord {
  CallKind kind;
  std::wstring_view member;
  const Arguments& arguments;
  const VARIANT* result;  ///< null when the caller wanted none
  std::string failure;    ///< empty when it went well
};

/// One name of an automation interface; what it does not offer is null.
template <typename Object>
struct Member {
  using Get = void (*)(const Object&, VARIANT* result);
  using Let = void (*)(Object&, const Arguments&);
  using Call = void (*)(Object&, const Arguments&, VARIANT* result);

  std::wstring_view name;
  Get get = nullptr;
  Let let = nullptr;
  Call call = nullptr;
  std::size_t argumentCount = 0;  ///< of the call
};

/// Automation names are the same in capitals and small letters.
bool sameName(std::wstring_view known, const wchar_t* asked);

/// IDispatch::GetIDsOfNames over a function that gives the identifier of a name, or DISPID_UNKNOWN.
template <typename IdOf>
HRESULT findNames(REFIID reserved, LPOLESTR* names, UINT count, DISPID* ids, IdOf idOf) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  ids[0] = idOf(names[0]);
  // The arguments have no names.
  for (UINT i = 1; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

/// Where IDispatch::Invoke puts what comes out of a call. `source` names the object in errors.
struct Outcome {
  const wchar_t* source;
  VARIANT* result;
  EXCEPINFO* exception;
  UINT* badArgument;
};

/// Which use of a member the flags of a call ask for, among those that there are.
std::optional<CallKind> kindOf(WORD flags, bool canGet, bool canLet, bool canCall);

/// Whether arguments are given by position only; the value of an assignment is the one exception that automation makes.
bool givenByPosition(const DISPPARAMS& parameters);

// How a failure is told to the caller, and in the record.
HRESULT describe(const MemberError& error, const Outcome& outcome, CallRecord& record);
HRESULT describe(const CallRefused& refused, const Outcome& outcome, CallRecord& record);

/// The members of an object by name. The dispatch identifier of one is its index plus 1.
template <typename Object>
class MemberTable {
 public:
  explicit MemberTable(std::span<const Member<Object>> members) : members(members) {}

  [[nodiscard]] DISPID idOf(const wchar_t* name) const {
    for (std::size_t i = 0; i < members.size(); ++i) {
      if (sameName(members[i].name, name)) return static_cast<DISPID>(i) + 1;
    }
    return DISPID_UNKNOWN;
  }

  /// IDispatch::Invoke; `told` hears of each use that reached its member. No exception leaves it.
  template <typename Told>
  HRESULT invoke(Object& object, DISPID id, WORD flags, DISPPARAMS* parameters, const Outcome& outcome,
                 Told told) const noexcept {
    if (parameters == nullptr) return E_INVALIDARG;
    const bool known = id >= 1 && static_cast<std::size_t>(id) <= members.size();
    if (!known) return DISP_E_MEMBERNOTFOUND;
    const Member<Object>& member = members[static_cast<std::size_t>(id) - 1];
    const auto kind = kindOf(flags, member.get != nullptr, member.let != nullptr, member.call != nullptr);
    if (!kind) return DISP_E_MEMBERNOTFOUND;
    if (!givenByPosition(*parameters)) return DISP_E_NONAMEDARGS;
    const std::size_t wanted = *kind == CallKind::call ? member.argumentCount : *kind == CallKind::let ? 1 : 0;
    if (parameters->cArgs != wanted) return DISP_E_BADPARAMCOUNT;
    try {
      const Arguments arguments({parameters->rgvarg, parameters->cArgs});
      CallRecord record{*kind, member.name, arguments, outcome.result, {}};
      const HRESULT status = use(member, object, record, outcome);
      told(record);
      return status;
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    } catch (...) {
      return E_UNEXPECTED;
    }
  }

 private:
  static HRESULT use(const Member<Object>& member, Object& object, CallRecord& record, const Outcome& outcome) {
    if (outcome.result != nullptr) VariantInit(outcome.result);
    try {
      if (record.kind == CallKind::get && member.get) member.get(object, outcome.result);
      if (record.kind == CallKind::let && member.let) member.let(object, record.arguments);
      if (record.kind == CallKind::call && member.call) member.call(object, record.arguments, outcome.result);
      return S_OK;
    } catch (const MemberError& error) {
      return describe(error, outcome, record);
    } catch (const CallRefused& refused) {
      return describe(refused, outcome, record);
    }
  }

  std::span<const Member<Object>> members;
};

}  // namespace nerida::host
