#include "platform/win32/window.h"

#include "platform/win32/form_window.h"

namespace nerida {

std::shared_ptr<Window> SystemWindowFactory::create(const FormLayout& layout) {
  auto form = std::make_unique<FormWindow>(layout);
  return {form.release(), [](FormWindow* gone) { gone->dispose(); }};
}

}  // namespace nerida
