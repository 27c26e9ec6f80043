#pragma once

#include <span>
#include <string_view>

#include "host/app/model_arguments.h"
#include "host/app/model_object.h"

namespace nerida::host {

/// One name of the object's automation interface; what it does not offer is null.
struct ModelMember {
  using Get = void (*)(const ModelObject&, VARIANT* result);
  using Let = void (*)(ModelObject&, const Arguments&);
  using Call = void (*)(ModelObject&, const Arguments&, VARIANT* result);

  std::wstring_view name;
  Get get = nullptr;
  Let let = nullptr;
  Call call = nullptr;
  std::size_t argumentCount = 0;  ///< of the call
};

/// All members. The dispatch identifier of one is its index plus 1.
std::span<const ModelMember> modelMembers();

}  // namespace nerida::host
