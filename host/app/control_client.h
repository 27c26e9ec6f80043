#pragma once

#include <span>
#include <stdexcept>
#include <string>

#include "host/win32/com.h"

namespace nerida::host {

/// The toolbar could not do what was asked; the text is for the user.
class ControlError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The editing toolbar's control. It is known by the names of its class and its members only; created when first
/// needed and then kept until dispose().
class ControlClient {
 public:
  // All of these throw ControlError.

  /// Tells the control whose toolbar it is. The toolbar reads the model's state now, and only now.
  void bind(IDispatch& model, HWND window);
  /// Shows the toolbar at a point of the screen; the result is its window.
  HWND show(POINT corner);
  void hide();
  [[nodiscard]] bool toolbarVisible();
  [[nodiscard]] bool catalogVisible();

  [[nodiscard]] bool created() const { return static_cast<bool>(control); }
  /// Quiet: whoever closes is not interested in failures.
  void dispose() noexcept;

 private:
  void create();
  void call(const wchar_t* member, std::span<VARIANT> reversedArguments, VARIANT& result);
  LONG callForNumber(const wchar_t* member, std::span<VARIANT> reversedArguments = {});

  ComRef<IDispatch> control;
};

}  // namespace nerida::host
