// From the press of a button to the inside of the model's member.
#include <cstdio>

#include "bench/bar_buttons.h"
#include "bench/control.h"
#include "bench/measurements.h"
#include "bench/stopwatch.h"

namespace nerida::bench {
namespace {

constexpr int pressCount = 4000;

template <class Act>
double timeToMember(Model& model, Act act) {
  double entered = 0;
  model.moved = [&] { entered = now(); };
  std::vector<double> samples;
  for (int i = 0; i < pressCount; ++i) {
    entered = 0;
    const double start = act();
    require(entered > 0, "the press reaches the model");
    samples.push_back(entered - start);
    pumpMessages();
  }
  model.moved = nullptr;
  return middle(samples);
}

// Without any toolbar: the name is looked up, and the member is called.
double callModel(IDispatch& model) {
  VARIANTARG step = {};
  step.vt = VT_I2;
  step.iVal = 1;
  wchar_t text[] = L"MoveY";
  LPOLESTR name = text;
  DISPID member = DISPID_UNKNOWN;
  DISPPARAMS parameters = {&step, nullptr, 1, 0};
  VARIANT result;
  VariantInit(&result);
  const double start = now();
  model.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &member);
  model.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &result, nullptr, nullptr);
  return start;
}

double release(const BarButton& button) {
  button.hover();
  button.hold();
  const double start = now();
  button.release();
  return start;
}

double doDefaultAction(const BarButton& button) {
  const double start = now();
  button.press();
  return start;
}

}  // namespace

void presses() {
  Model model;
  const Control control(model);
  paintNow(control.window());
  findButton(control.window(), L"Model Orientation").press();  // unfolds the movement groups
  paintNow(control.window());
  const BarButton nudge = findButton(control.window(), L"Nudge up");
  const double bare = timeToMember(model, [&] { return callModel(*model.automation()); });
  const double action = timeToMember(model, [&] { return doDefaultAction(nudge); });
  const double mouse = timeToMember(model, [&] { return release(nudge); });
  std::printf("press.bare %.3f\npress.action %.3f\npress.mouse %.3f\n", bare, action, mouse);
}

}  // namespace nerida::bench
