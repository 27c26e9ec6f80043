#pragma once

#include <optional>

#include "host/app/control_client.h"
#include "host/app/embedded_object.h"

namespace nerida::host {

/// The editing of the object in place: when it begins, the toolbar comes up beside the object; when it ends, the
/// toolbar goes. The control is kept in between.
class InPlaceEditing {
 public:
  InPlaceEditing(EmbeddedObject& object, Metrics metrics) : object(object), metrics(metrics) {}

  [[nodiscard]] bool active() const { return isActive; }

  // These throw ControlError. While one of them runs (it may wait for the user), further ones do nothing.
  void begin(HWND document);
  void end();
  /// The catalog has closed: the toolbar comes back if the object is still being edited.
  void catalogClosed(HWND document);
  /// Another model was opened.
  void modelReplaced(HWND document);

  /// The document was minimised or came back: nothing of it floats on the screen meanwhile.
  void follow(HWND document);

  void close() noexcept;

 private:
  void showToolbar(HWND document);
  [[nodiscard]] POINT corner(HWND document) const;

  EmbeddedObject& object;
  Metrics metrics;
  ControlClient control;
  bool isActive = false;
  HWND toolbar = nullptr;
  std::optional<POINT> suspendedAt;  ///< while the document is minimised
  bool busy = false;
};

}  // namespace nerida::host
