// The preview control as the catalog uses it: by its registered class, late-bound, in a control container.
#include <gtest/gtest.h>
#include <ocidl.h>
#include <ole2.h>
#include <shellapi.h>

#include "host/scene/scene.h"
#include "host/win32/drawing.h"
#include "tests/windows/host/caller.h"

namespace nerida::host {
namespace {

std::wstring lastArgument() {
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  const std::wstring path = arguments[count - 1];
  LocalFree(arguments);
  return path.starts_with(L'/') ? L"Z:" + path : path;  // Wine shows the machine's root as drive Z
}

class Server {
 public:
  Server() : module(LoadLibraryW(lastArgument().c_str())) { EXPECT_EQ(call("DllRegisterServer"), S_OK); }
  ~Server() {
    EXPECT_EQ(call("DllCanUnloadNow"), S_OK) << "something of the control was left behind";
    EXPECT_EQ(call("DllUnregisterServer"), S_OK);
    FreeLibrary(module);
  }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  HRESULT call(const char* name) const {
    return reinterpret_cast<HRESULT(WINAPI*)()>(reinterpret_cast<void*>(GetProcAddress(module, name)))();
  }

 private:
  HMODULE module;
};

IDispatch& made(ComRef<IDispatch>& reference) {
  CLSID id = {};
  if (FAILED(CLSIDFromProgID(L"ZephraBrowser.Preview", &id)) ||
      FAILED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reference.out()))) {
    throw std::runtime_error("the control cannot be made by its name");
  }
  return *reference;
}

class Ole {
 public:
  Ole() { OleInitialize(nullptr); }
  ~Ole() { OleUninitialize(); }
};

struct Made {
  Ole ole;
  Server server;
  ComRef<IDispatch> control;
  IDispatch& dispatch = made(control);
};

class PreviewTest : public testing::Test, protected Made, protected Caller {
 protected:
  PreviewTest() : Caller(dispatch) {}

  void show(const std::filesystem::path& file) {
    EXPECT_EQ(let(L"ModelFile", Value::text(file.wstring().c_str())).status, S_OK);
    EXPECT_EQ(let(L"ModelName", Value::text(L"Flag")).status, S_OK);
    EXPECT_EQ(call(L"Load").status, S_OK);
  }

  Orientation orientation() {
    LONG x = -1, y = -1, z = -1;
    EXPECT_EQ(call(L"GetOrientation", Value::refI4(x), Value::refI4(y), Value::refI4(z)).status, S_OK);
    return {static_cast<int>(x), static_cast<int>(y), static_cast<int>(z)};
  }
};

TEST_F(PreviewTest, IsEmptyAtFirst) {
  EXPECT_EQ(textOf(L"ModelFile"), L"");
  EXPECT_EQ(textOf(L"ModelName"), L"");
  EXPECT_EQ(numberOf(L"ModelScale"), 100);
  EXPECT_EQ(textOf(L"StyleName"), wide(Scene::lookStyleNames().front()));
}

TEST_F(PreviewTest, ShowsTheModelOfAFile) {
  show(movingModel());
  EXPECT_EQ(textOf(L"ModelFile"), movingModel().wstring());
  EXPECT_EQ(textOf(L"ModelName"), L"Flag");
  EXPECT_EQ(numberOf(L"ModelScale"), 100);
  EXPECT_EQ(orientation(), Scene().orientation());
}

TEST_F(PreviewTest, HandsTheOrientationToScriptsToo) {
  Variant x, y, z;
  ASSERT_EQ(call(L"GetOrientation", Value::refVariant(x), Value::refVariant(y), Value::refVariant(z)).status, S_OK);
  EXPECT_EQ(x.vt, VT_I4);
  EXPECT_EQ(y.lVal, Scene().orientation().y);
}

TEST_F(PreviewTest, RefusesWhatItCannotShow) {
  let(L"ModelFile", Value::text(L"C:\\no such model.twe"));
  const Answer missing = call(L"Load");
  EXPECT_EQ(missing.status, DISP_E_EXCEPTION);
  EXPECT_EQ(missing.errorNumber, 53);
  EXPECT_FALSE(missing.description.empty());
  let(L"ModelFile", Value::text(brokenModel().wstring().c_str()));
  EXPECT_EQ(call(L"Load").errorNumber, 380);
  EXPECT_EQ(let(L"StyleName", Value::text(L"Ink")).status, DISP_E_MEMBERNOTFOUND);
}

// The system's own container for controls.
class InContainer : public PreviewTest {
 protected:
  InContainer() {
    function<BOOL(WINAPI*)()>("AtlAxWinInit")();
    frame = CreateWindowExW(0, L"AtlAxWin", nullptr, WS_POPUP | WS_VISIBLE, 100, 100, 200, 160, nullptr, nullptr,
                            GetModuleHandleW(nullptr), nullptr);
    ComRef<IUnknown> site;
    const auto attach = function<HRESULT(WINAPI*)(IUnknown*, HWND, void**)>("AtlAxAttachControl");
    EXPECT_EQ(attach(control.get(), frame, site.out()), S_OK);
    view = FindWindowExW(frame, nullptr, L"ZephraPreview", nullptr);
  }
  ~InContainer() override {
    DestroyWindow(frame);
    FreeLibrary(atl);
  }

  template <typename Function>
  Function function(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(atl, name)));
  }

  void mouse(UINT message, int x, int y) { SendMessageW(view, message, 0, MAKELPARAM(x, y)); }

  /// How many pixels of the picture are not as its upper left corner is.
  int drawnPixels() {
    RedrawWindow(view, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    HDC dc = GetDC(view);
    const COLORREF ground = GetPixel(dc, 4, 4);
    int drawn = 0;
    for (int y = 0; y < 160; y += 4) {
      for (int x = 0; x < 200; x += 4) drawn += GetPixel(dc, x, y) != ground ? 1 : 0;
    }
    ReleaseDC(view, dc);
    return drawn;
  }

  HMODULE atl = LoadLibraryW(L"atl.dll");
  HWND frame = nullptr;
  HWND view = nullptr;
};

TEST_F(InContainer, FillsItsPlace) {
  ASSERT_NE(view, nullptr);
  RECT place;
  GetClientRect(view, &place);
  EXPECT_EQ(widthOf(place), 200);
  EXPECT_EQ(heightOf(place), 160);
}

TEST_F(InContainer, DrawsTheModelAndNamesIt) {
  EXPECT_EQ(drawnPixels(), 0);
  show(movingModel());
  EXPECT_GT(drawnPixels(), 20);
  wchar_t name[20];
  GetWindowTextW(view, name, 20);
  EXPECT_STREQ(name, L"Flag");
}

TEST_F(InContainer, TurnsUnderTheMouse) {
  show(movingModel());
  const Orientation home = orientation();
  mouse(WM_LBUTTONDOWN, 50, 50);
  mouse(WM_MOUSEMOVE, 90, 50);
  EXPECT_NE(orientation(), home);
  mouse(WM_LBUTTONUP, 90, 50);
  const Orientation turned = orientation();
  mouse(WM_MOUSEMOVE, 150, 50);
  EXPECT_EQ(orientation(), turned);
  mouse(WM_LBUTTONDBLCLK, 50, 50);
  EXPECT_EQ(orientation(), home);
}

TEST_F(InContainer, GrowsUnderTheWheel) {
  show(movingModel());
  SendMessageW(view, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2), 0);
  EXPECT_EQ(numberOf(L"ModelScale"), 100);
  SendMessageW(view, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2), 0);
  EXPECT_EQ(numberOf(L"ModelScale"), 110);
}

TEST_F(InContainer, ObeysTheKeyboard) {
  show(movingModel());
  const Orientation home = orientation();
  SendMessageW(view, WM_KEYDOWN, VK_RIGHT, 0);
  SendMessageW(view, WM_KEYDOWN, VK_SUBTRACT, 0);
  EXPECT_NE(orientation(), home);
  EXPECT_EQ(numberOf(L"ModelScale"), 91);
  SendMessageW(view, WM_KEYDOWN, VK_HOME, 0);
  EXPECT_EQ(orientation(), home);
  EXPECT_EQ(numberOf(L"ModelScale"), 100);
}

// A user who is about to open the menu of a window, and then goes so many times down and presses Enter.
struct MenuUser {
  HWND window = nullptr;
  int down = 0;
};

MenuUser& menuUser() {
  static MenuUser user;
  return user;
}

void CALLBACK pressKeysInMenu(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  for (int i = 0; i < menuUser().down; ++i) PostMessageW(menuUser().window, WM_KEYDOWN, VK_DOWN, 1);
  PostMessageW(menuUser().window, WM_KEYDOWN, VK_RETURN, 1);
}

void pickFromMenu(HWND view, int down) {
  menuUser() = {view, down};
  SetTimer(nullptr, 0, 50, pressKeysInMenu);
  SendMessageW(view, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(view), MAKELPARAM(-1, -1));
}

TEST_F(InContainer, IsShownInTheStyleThatIsPickedFromItsMenu) {
  show(movingModel());
  const std::vector<std::string> styles = Scene::lookStyleNames();
  for (const int entry : {2, 1, static_cast<int>(styles.size())}) {
    pickFromMenu(view, entry);
    EXPECT_EQ(textOf(L"StyleName"), wide(styles[static_cast<std::size_t>(entry) - 1]));
  }
  show(movingModel());
  EXPECT_EQ(textOf(L"StyleName"), wide(styles.back())) << "it stays for the next model";
}

TEST_F(InContainer, GoesHomeFromItsMenu) {
  show(movingModel());
  const Orientation home = orientation();
  SendMessageW(view, WM_KEYDOWN, VK_RIGHT, 0);
  ASSERT_NE(orientation(), home);
  pickFromMenu(view, static_cast<int>(Scene::lookStyleNames().size()) + 1);
  EXPECT_EQ(orientation(), home);
}

TEST_F(InContainer, KeepsWhatItShowsWhenAFileIsBad) {
  show(movingModel());
  const int before = drawnPixels();
  let(L"ModelFile", Value::text(brokenModel().wstring().c_str()));
  EXPECT_EQ(call(L"Load").status, DISP_E_EXCEPTION);
  EXPECT_NEAR(drawnPixels(), before, before / 4.0);  // the flag waves on
}

}  // namespace
}  // namespace nerida::host
