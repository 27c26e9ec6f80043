#include "host/preview/preview_control.h"

namespace nerida::host {

std::span<const ServerClass> serverClasses() {
  static const ServerClass classes[] = {
      {previewClass, L"ZephraBrowser.Preview", L"ZephraBrowser.Preview.1", L"Zephra Preview Control", true,
       [] { return static_cast<IUnknown*>(static_cast<IDispatch*>(new PreviewControl)); }}};
  return classes;
}

}  // namespace nerida::host
