// The control in the system's own control container.

#include <gtest/gtest.h>

#include <functional>

#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/installation.h"
#include "tests/windows/com/module_file.h"

namespace nerida {
namespace {

using AxWinInit = BOOL(WINAPI*)();
using AxAttachControl = HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**);
using AxGetControl = HRESULT(WINAPI*)(HWND, IUnknown**);

class Container : public testing::Test {
 protected:
  static void SetUpTestSuite() { OleInitialize(nullptr); }
  static void TearDownTestSuite() { OleUninitialize(); }

  template <typename Function>
  Function atl(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
  }

  template <typename Interface>
  ComPtr<Interface> query(REFIID id) {
    ComPtr<Interface> result;
    EXPECT_EQ(control->QueryInterface(id, result.putVoid()), S_OK);
    return result;
  }

  const Installation installation;
  BoxWatcher boxes{IDOK};
  HMODULE library = LoadLibraryW(L"atl.dll");
  const ControlModule module;
  ComPtr<_NeridaWindow> control = module.create();
};

TEST_F(Container, IsHostedAndLeftByTheSystemsContainer) {
  ASSERT_TRUE(atl<AxWinInit>("AtlAxWinInit")());
  HWND site = CreateWindowExW(0, L"AtlAxWin", nullptr, WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                              GetModuleHandleW(nullptr), nullptr);
  ASSERT_NE(site, nullptr);
  ComPtr<IUnknown> host;
  ASSERT_EQ(atl<AxAttachControl>("AtlAxAttachControl")(control.get(), site, host.put()), S_OK);
  ComPtr<IUnknown> hosted;
  ASSERT_EQ(atl<AxGetControl>("AtlAxGetControl")(site, hosted.put()), S_OK);
  ComPtr<IDispatch> dispatch;
  EXPECT_EQ(hosted->QueryInterface(IID_IDispatch, dispatch.putVoid()), S_OK);
  ComPtr<IOleClientSite> clientSite;
  query<IOleObject>(IID_IOleObject)->GetClientSite(clientSite.put());
  EXPECT_TRUE(clientSite);
  DestroyWindow(site);
  EXPECT_EQ(boxes.seen(), std::vector<std::string>());
}

TEST_F(Container, KeepsItsExtentAndTellsItsClass) {
  const auto object = query<IOleObject>(IID_IOleObject);
  SIZEL size = {1000, 2000};
  EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &size), S_OK);
  SIZEL read = {};
  EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, &read), S_OK);
  EXPECT_EQ(read.cy, 2000);
  CLSID id;
  EXPECT_EQ(object->GetUserClassID(&id), S_OK);
  EXPECT_EQ(id, CLSID_NeridaWindow);
  DWORD status = 0;
  object->GetMiscStatus(DVASPECT_CONTENT, &status);
  EXPECT_NE(status & OLEMISC_INVISIBLEATRUNTIME, 0U);
}

TEST_F(Container, DescribesItsClassWithoutARegisteredTypeLibrary) {
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(query<IProvideClassInfo2>(IID_IProvideClassInfo2)->GetClassInfo(info.put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_EQ(attributes->guid, CLSID_NeridaWindow);
  info->ReleaseTypeAttr(attributes);
}

class Listener : public IAdviseSink {
 public:
  virtual ~Listener() = default;
  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    *result = id == IID_IUnknown || id == IID_IAdviseSink ? this : nullptr;
    return *result != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM*) override {}
  STDMETHODIMP_(void) OnViewChange(DWORD, LONG) override {}
  STDMETHODIMP_(void) OnRename(IMoniker*) override {}
  STDMETHODIMP_(void) OnSave() override {}
  STDMETHODIMP_(void) OnClose() override {
    ++closed;
    if (whenClosed) whenClosed();
  }

  int closed = 0;
  std::function<void()> whenClosed;
};

TEST_F(Container, MayBeLetGoFromInsideItsClosing) {
  auto object = query<IOleObject>(IID_IOleObject);
  Listener listener;
  Listener second;
  DWORD connection = 0;
  ASSERT_EQ(object->Advise(&listener, &connection), S_OK);
  ASSERT_EQ(object->Advise(&second, &connection), S_OK);
  IOleObject* last = object.release();
  control = {};
  listener.whenClosed = [&] {
    last->Release();
    EXPECT_EQ(module.call("DllCanUnloadNow"), S_FALSE) << "its method still runs";
  };
  EXPECT_EQ(last->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(second.closed, 1);
  EXPECT_EQ(module.call("DllCanUnloadNow"), S_OK);
}

TEST_F(Container, TellsItsListenersWhenItIsClosed) {
  const auto object = query<IOleObject>(IID_IOleObject);
  Listener listener;
  DWORD connection = 0;
  EXPECT_EQ(object->Unadvise(1), OLE_E_NOCONNECTION);
  EXPECT_EQ(object->Advise(&listener, &connection), S_OK);
  EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(listener.closed, 1);
  EXPECT_EQ(object->Unadvise(connection), S_OK);
  EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(listener.closed, 1);
}

TEST_F(Container, DrawsAPlaceholder) {
  HDC screen = GetDC(nullptr);
  HDC context = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, 80, 40);
  HGDIOBJ before = SelectObject(context, bitmap);
  PatBlt(context, 0, 0, 80, 40, BLACKNESS);
  const RECTL bounds = {0, 0, 80, 40};
  const auto view = query<IViewObject2>(IID_IViewObject2);
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, &bounds, nullptr, nullptr, 0), S_OK);
  EXPECT_EQ(GetPixel(context, 10, 35), GetSysColor(COLOR_BTNFACE));
  EXPECT_EQ(GetBkMode(context), OPAQUE) << "the context is the container's";
  DeleteObject(SelectObject(context, before));
  DeleteDC(context);
  ReleaseDC(nullptr, screen);
}

TEST_F(Container, IsNotAggregated) {
  ComPtr<IUnknown> result;
  EXPECT_EQ(module.factory()->CreateInstance(control.get(), IID_IUnknown, result.putVoid()), CLASS_E_NOAGGREGATION);
}

}  // namespace
}  // namespace nerida
