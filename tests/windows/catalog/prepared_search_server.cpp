// The prepared search component as a server that registers itself.
#include "host/win32/server.h"
#include "tests/windows/catalog/prepared_search.h"

namespace nerida::host {
namespace {

// Keeps the module for as long as the component that it made is used: it is never unloaded in a test.
IUnknown* create() {
  ++moduleUses;
  return createPreparedSearch();
}

}  // namespace

std::span<const ServerClass> serverClasses() {
  static const ServerClass classes[] = {
      {classSearch, L"NeridaTest.Search", L"NeridaTest.Search.1", L"Prepared search", false, create}};
  return classes;
}

}  // namespace nerida::host
