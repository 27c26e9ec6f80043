#include "host/app/call_log.h"

#include <stdexcept>

namespace nerida::host {
namespace {

std::string quoted(std::wstring_view text) { return '"' + utf8(text) + '"'; }

std::string typeName(VARTYPE type) {
  struct Row {
    VARTYPE type;
    const char* name;
  };
  static constexpr Row rows[] = {{VT_EMPTY, "Empty"},     {VT_NULL, "Null"},  {VT_I2, "I2"},
                                 {VT_I4, "I4"},           {VT_R4, "R4"},      {VT_R8, "R8"},
                                 {VT_BSTR, "BSTR"},       {VT_BOOL, "BOOL"},  {VT_DISPATCH, "Dispatch"},
                                 {VT_VARIANT, "Variant"}, {VT_ERROR, "Error"}};
  if ((type & VT_BYREF) != 0) return "ByRef " + typeName(static_cast<VARTYPE>(type & ~VT_BYREF));
  if ((type & VT_ARRAY) != 0) return "Array of " + typeName(static_cast<VARTYPE>(type & ~VT_ARRAY));
  for (const Row& row : rows) {
    if (row.type == type) return row.name;
  }
  return "type " + std::to_string(type);
}

std::string argumentText(const VARIANT& argument) { return writtenValue(argument) + ':' + typeName(argument.vt); }

std::string head(const CallRecord& record) {
  const std::string name = utf8(record.member);
  if (record.kind == CallKind::get) return "get " + name;
  if (record.kind == CallKind::let) {
    return "let " + name + " = " + (record.arguments.count() == 1 ? writtenValue(record.arguments.at(0)) : "?");
  }
  std::string text = name + '(';
  for (std::size_t i = 0; i < record.arguments.count(); ++i) {
    text += (i == 0 ? "" : ", ") + argumentText(record.arguments.at(i));
  }
  return text + ')';
}

}  // namespace

std::string writtenValue(const VARIANT& value) {
  Variant plain;
  if (FAILED(VariantCopyInd(&plain, const_cast<VARIANT*>(&value)))) return "?";
  if (plain.vt == VT_BSTR) return quoted(viewOf(plain.bstrVal));
  if (plain.vt == VT_BOOL) return plain.boolVal != VARIANT_FALSE ? "True" : "False";
  if (plain.vt == VT_EMPTY) return "Empty";
  if ((plain.vt & VT_ARRAY) != 0) return "{array}";
  if (FAILED(VariantChangeType(&plain, &plain, 0, VT_BSTR))) return "?";
  return utf8(viewOf(plain.bstrVal));
}

std::string lineOf(const CallRecord& record) {
  std::string line = head(record);
  if (!record.failure.empty()) return line + " ! " + record.failure;
  if (record.result != nullptr && record.result->vt != VT_EMPTY) line += " -> " + writtenValue(*record.result);
  return line;
}

CallLog::CallLog(const std::filesystem::path& path) : file(_wfopen(path.c_str(), L"wb")) {
  if (!file) throw std::runtime_error("The log cannot be written: " + utf8(path.wstring()));
}

void CallLog::write(const CallRecord& record) {
  const std::string line = lineOf(record) + '\n';
  std::fwrite(line.data(), 1, line.size(), file.get());
  std::fflush(file.get());
}

}  // namespace nerida::host
