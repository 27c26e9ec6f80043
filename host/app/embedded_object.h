#pragma once

#include <memory>
#include <string>

#include "host/app/call_log.h"
#include "host/app/model_dispatch.h"
#include "host/app/model_object.h"
#include "host/render/picture.h"
#include "host/win32/drawing.h"

namespace nerida::host {

// Posted to the document's window, because they must wait until the object's caller has finished.
inline constexpr UINT messageModelLoaded = WM_APP + 1;
inline constexpr UINT messageCatalogDone = WM_APP + 2;

/// The 3D object on the page: its model, its automation face, its picture and its frame.
class EmbeddedObject final : public ModelSite, public CallListener {
 public:
  explicit EmbeddedObject(Metrics metrics);
  EmbeddedObject(const EmbeddedObject&) = delete;
  EmbeddedObject& operator=(const EmbeddedObject&) = delete;
  ~EmbeddedObject() override;

  /// The window to keep informed; null ends it.
  void attach(HWND document) { window = document; }
  void logTo(const std::filesystem::path& file) { log = std::make_unique<CallLog>(file); }

  [[nodiscard]] ModelObject& model() { return object; }
  [[nodiscard]] IDispatch& automation() { return *dispatch; }
  [[nodiscard]] const std::wstring& lastCall() const { return words; }
  /// Whether another model or name came since the last time this was asked.
  [[nodiscard]] bool takeModelChange() { return std::exchange(modelIsNew, false); }

  void place(const RECT& area);
  [[nodiscard]] const RECT& area() const { return bounds; }
  /// The picture with whatever surrounds it while it is being edited.
  [[nodiscard]] RECT areaWithFrame() const;
  void paint(HDC dc, bool active);

  [[nodiscard]] const Playback& animation() const { return object.scene.animation; }
  /// Plays from the start again when the animation has come to its end.
  void togglePlaying();
  /// Lets the animation go on; the timer belongs to the window.
  void timePasses();

  void displayChanged() override;
  void animationChanged() override;
  void modelLoaded() override;
  void catalogDone() override;
  void called(const CallRecord& record) override;

 private:
  void render();
  void paintActiveFrame(HDC dc) const;

  Metrics metrics;
  HWND window = nullptr;
  RECT bounds{};
  ModelObject object;
  ModelDispatch* dispatch;
  std::unique_ptr<CallLog> log;
  std::wstring words;
  Picture picture;
  bool outOfDate = true;
  bool modelIsNew = true;
  LONGLONG lastTick = 0;
};

}  // namespace nerida::host
