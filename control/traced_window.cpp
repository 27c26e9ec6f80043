#include "control/traced_window.h"

#include <array>

#include "core/trace_text.h"
#include "core/traced_object.h"

namespace nerida {
namespace {

// Window handles have 32 significant bits, and cross as such.
Value handleValue(WindowHandle window) { return static_cast<std::int32_t>(window); }

std::string initArguments(const ObjectRef& model, WindowHandle hostWindow) {
  return traceText(std::array<Argument, 2>{Argument(model), Argument(handleValue(hostWindow))});
}

}  // namespace

TracedWindow::TracedWindow(Library& library, std::shared_ptr<Trace> trace) : trace(std::move(trace)) {
  const TracedCall line(this->trace, "create NeridaWindow");
  control.emplace(library);
}

TracedWindow::~TracedWindow() {
  const TracedCall line(trace, "release NeridaWindow");
  control.reset();
}

// A method without arguments whose result is a value.
template <class Body>
auto TracedWindow::traced(const char* method, Body body) {
  if (!trace) return body();
  TracedCall line(trace, method, "()");
  auto result = body();
  line.returned(result);
  return result;
}

bool TracedWindow::IsToolbarVisible() {
  return traced("IsToolbarVisible", [this] { return control->IsToolbarVisible(); });
}

bool TracedWindow::IsCatalogVisible() {
  return traced("IsCatalogVisible", [this] { return control->IsCatalogVisible(); });
}

std::int32_t TracedWindow::ToolbarDispose() {
  return traced("ToolbarDispose", [this] { return control->ToolbarDispose(); });
}

std::int32_t TracedWindow::ToolbarHide() {
  return traced("ToolbarHide", [this] { return control->ToolbarHide(); });
}

WindowHandle TracedWindow::ToolbarShow(std::int16_t& x, std::int16_t& y) {
  if (!trace) return control->ToolbarShow(x, y);
  std::array<Value, 2> point{x, y};
  const std::array<Argument, 2> arguments{Argument(&point[0]), Argument(&point[1])};
  TracedCall line(trace, "ToolbarShow", traceText(arguments));
  const WindowHandle result = control->ToolbarShow(x, y);
  point = {x, y};
  line.returned(handleValue(result), arguments);
  return result;
}

std::int32_t TracedWindow::ToolbarInit(ObjectRef model, WindowHandle hostWindow) {
  if (!trace) return control->ToolbarInit(std::move(model), hostWindow);
  TracedCall line(trace, "ToolbarInit", initArguments(model, hostWindow));
  const std::int32_t result = control->ToolbarInit(watched(std::move(model), trace), hostWindow);
  line.returned(result);
  return result;
}

void TracedWindow::ShowAboutBox() {
  traced("ShowAboutBox", [this] {
    control->ShowAboutBox();
    return Value();
  });
}

void TracedWindow::ShowHelp() {
  traced("ShowHelp", [this] {
    control->ShowHelp();
    return Value();
  });
}

WindowHandle TracedWindow::ShowCatalog() {
  return traced("ShowCatalog", [this] { return static_cast<std::int32_t>(control->ShowCatalog()); });
}

}  // namespace nerida
