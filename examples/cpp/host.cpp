// A whole host in C++: a window with a windmill on its page, which is edited in place with the toolbar.
// Double-click the windmill to edit it; a click beside it, or Escape, ends that. F6 goes to the toolbar.
// The control is created by its name and called by name: nothing of it is needed to build this.

#include <windows.h>

#include <ole2.h>

#include <cstdio>
#include <cwchar>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

void tell(const std::wstring& text) {
  std::wprintf(L"%ls\n", text.c_str());
  std::fflush(stdout);
}

std::wstring textOf(VARIANT& value) {
  VARIANT text;
  VariantInit(&text);
  std::wstring result;
  if (SUCCEEDED(VariantChangeType(&text, &value, VARIANT_ALPHABOOL, VT_BSTR))) result = text.bstrVal;
  VariantClear(&text);
  return result;
}

long numberOf(VARIANT& value) {
  VARIANT number;
  VariantInit(&number);
  const bool isNumber = SUCCEEDED(VariantChangeType(&number, &value, 0, VT_I4));
  return isNumber ? number.lVal : 0;
}

VARIANT number(long value, VARTYPE type = VT_I4) {
  VARIANT result;
  VariantInit(&result);
  result.vt = type;
  if (type == VT_I4) result.lVal = value;
  if (type == VT_I2) result.iVal = static_cast<SHORT>(value);
  if (type == VT_BOOL) result.boolVal = value != 0 ? VARIANT_TRUE : VARIANT_FALSE;
  return result;
}

VARIANT text(const wchar_t* value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_BSTR;
  result.bstrVal = SysAllocString(value);
  return result;
}

// Fills a variable of the caller's, which comes by reference to a number or to a variant.
void fill(VARIANT& reference, VARIANT value) {
  if (reference.vt == (VT_BYREF | VT_VARIANT)) {
    VariantClear(reference.pvarVal);
    *reference.pvarVal = value;
  } else if (reference.vt == (VT_BYREF | VT_I4)) {
    *reference.plVal = value.lVal;
  }
}

VARIANT styleNames() {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_ARRAY | VT_BSTR;
  result.parray = SafeArrayCreateVector(VT_BSTR, 0, 3);
  auto** names = static_cast<BSTR*>(result.parray->pvData);
  names[0] = SysAllocString(L"Clay");
  names[1] = SysAllocString(L"Ink");
  names[2] = SysAllocString(L"Wire");
  return result;
}

// The model: properties, which are kept, and methods, which act. Both are found by their names, as automation does.
class Model : public IDispatch {
 public:
  using Arguments = std::vector<VARIANT*>;  // in the order in which they are written
  using Method = std::function<long(const Arguments&)>;

  Model() {
    property(L"ModelName", text(L"Windmill"));
    property(L"InterfaceFlags", number(1 + 2 + 16));  // buttons for fill colour, line colour and line thickness
    property(L"LookStyleName", text(L"Clay"));
    property(L"LookStyle", text(L""));
    property(L"LineThicknessScale", number(100, VT_I2));
    property(L"BackgroundColor", number(RGB(255, 255, 255)));
    property(L"LineColor", number(RGB(0, 0, 0)));
    property(L"SurfaceColor", number(RGB(200, 120, 60)));
    for (const wchar_t* name : {L"IsBackgroundDefault", L"IsLineColorDefault", L"IsSurfaceColorDefault", L"LightIsOn"})
      property(name, number(1, VT_BOOL));
    for (const wchar_t* name : {L"IsToolbarShowing", L"IsCatalogShowing", L"DoneShowingModelCatalog", L"AnimationState",
                                L"AnimationLoopState"})
      property(name, number(0, VT_BOOL));
    for (const wchar_t* name : {L"AnimationFrameCount", L"AnimationCurrentFrame"}) property(name, number(0, VT_I2));
    property(L"TarnwellXFile", text(L""));
    property(L"ModelScale", number(0));

    method(L"MoveX", [this](const Arguments& steps) { return x -= 10 * numberOf(*steps[0]); });  // +1 is left
    method(L"MoveY", [this](const Arguments& steps) { return y -= 10 * numberOf(*steps[0]); });  // +1 is up
    method(L"ScaleModel", [this](const Arguments& steps) { return size += 10 * numberOf(*steps[0]); });
    method(L"ResetHome", [this](const Arguments&) { return x = y = size = 0; });
    for (const wchar_t* name :
         {L"RotateX", L"RotateY", L"RotateZ", L"SetOrientation", L"RefreshDisplay", L"SetLightDirection", L"StopTimer",
          L"StartTimer", L"AnimationIncrementFrame", L"AnimationDecrementFrame", L"RestoreDefaultBackgroundColor",
          L"RestoreDefaultLineColor", L"RestoreDefaultSurfaceColor"})
      method(name, [](const Arguments&) { return 0; });
    method(L"GetLookStyleList", [](const Arguments& variables) {
      fill(*variables[0], styleNames());
      return 0;
    });
    method(L"GetLightDirection", [](const Arguments& variables) {
      fill(*variables[0], number(0));
      fill(*variables[1], number(0));
      fill(*variables[2], number(100));
      return 0;  // they are filled
    });
  }
  virtual ~Model() {
    for (auto& [id, value] : values) VariantClear(&value);
  }

  VARIANT& valueOf(const wchar_t* property) {
    DISPID id = DISPID_UNKNOWN;
    auto* name = const_cast<OLECHAR*>(property);
    GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    return values[id];
  }

  std::function<void()> changed;
  long x = 0, y = 0, size = 0;

  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    *result = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  // It lives as long as the program, so nobody's last reference ends it.
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** asked, UINT, LCID, DISPID* id) override {
    for (const auto& [known, name] : names) {
      if (_wcsicmp(name.c_str(), asked[0]) != 0) continue;
      *id = known;
      return S_OK;
    }
    return DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    Arguments arguments;
    for (UINT i = parameters->cArgs; i > 0; --i) arguments.push_back(&parameters->rgvarg[i - 1]);
    if (const auto found = methods.find(id); found != methods.end()) return run(id, found->second, arguments, result);
    if ((flags & DISPATCH_PROPERTYPUT) != 0) return let(id, *arguments.at(0));
    return result != nullptr ? VariantCopy(result, &values[id]) : S_OK;
  }

 private:
  DISPID named(const wchar_t* name) {
    names[++lastId] = name;
    return lastId;
  }
  void property(const wchar_t* name, VARIANT value) { values[named(name)] = value; }
  void method(const wchar_t* name, Method action) { methods[named(name)] = std::move(action); }

  HRESULT run(DISPID id, const Method& action, const Arguments& arguments, VARIANT* result) {
    std::wstring line = names[id];
    for (VARIANT* argument : arguments) {
      if ((argument->vt & VT_BYREF) == 0) line += L" " + textOf(*argument);
    }
    tell(line);
    const long answer = action(arguments);
    if (result != nullptr) *result = number(answer);
    if (changed) changed();
    return S_OK;
  }

  HRESULT let(DISPID id, VARIANT& value) {
    tell(names[id] + L" = " + textOf(value));
    if (names[id] == L"LookStyle") {
      VARIANT& current = valueOf(L"LookStyleName");
      VariantClear(&current);
      current = text(textOf(value).empty() ? L"none" : textOf(value).c_str());
    }
    if (changed) changed();
    return VariantCopy(&values[id], &value);
  }

  DISPID lastId = 0;
  std::map<DISPID, std::wstring> names;
  std::map<DISPID, VARIANT> values;
  std::map<DISPID, Method> methods;
};

// The control, called by name. A failing call is told here; the control itself shows its own failures to the user.
class Toolbar {
 public:
  bool create() {
    CLSID id;
    HRESULT status = CLSIDFromProgID(L"ActiveNeridaToolbar.NeridaWindow", &id);
    if (SUCCEEDED(status))
      status = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(&control));
    return SUCCEEDED(status);
  }
  void release() {
    if (control != nullptr) control->Release();
    control = nullptr;
  }

  // The arguments in the order in which they are written. The result as a number.
  long call(const wchar_t* method, std::vector<VARIANT> arguments = {}) {
    DISPID id = DISPID_UNKNOWN;
    auto* name = const_cast<OLECHAR*>(method);
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    VARIANT result;
    VariantInit(&result);
    HRESULT status = control->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    if (SUCCEEDED(status))
      status =
          control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &result, nullptr, nullptr);
    if (FAILED(status)) tell(std::wstring(method) + L" failed");
    return numberOf(result);
  }

 private:
  IDispatch* control = nullptr;
};

Model model;
Toolbar toolbar;
HWND toolbarWindow = nullptr;  // while the model is edited

RECT modelArea(HWND page) {
  RECT client;
  GetClientRect(page, &client);
  const long half = 60 + model.size;
  const long x = client.right / 2 + model.x, y = client.bottom / 2 + model.y;
  return {x - half, y - half, x + half, y + half};
}

void beginEditing(HWND page) {
  if (toolbarWindow != nullptr) return;
  VARIANT object;
  VariantInit(&object);
  object.vt = VT_DISPATCH;
  object.pdispVal = &model;
  tell(L"bound: " + std::to_wstring(toolbar.call(L"ToolbarInit", {object, number(HandleToLong(page))})));
  POINT place = {20, 20};
  ClientToScreen(page, &place);
  const long window = toolbar.call(L"ToolbarShow", {number(place.x, VT_I2), number(place.y, VT_I2)});
  tell(window != -1 ? L"shown" : L"not shown");
  toolbarWindow = window != -1 ? static_cast<HWND>(LongToHandle(window)) : nullptr;
  InvalidateRect(page, nullptr, TRUE);
}

void endEditing(HWND page) {
  if (toolbarWindow == nullptr) return;
  toolbarWindow = nullptr;
  InvalidateRect(page, nullptr, TRUE);
  toolbar.call(L"ToolbarHide");
  tell(L"hidden");
}

void paint(HWND page) {
  PAINTSTRUCT painting;
  const HDC context = BeginPaint(page, &painting);
  const RECT area = modelArea(page);
  SelectObject(context, GetStockObject(DC_BRUSH));
  SelectObject(context, GetStockObject(DC_PEN));
  SetDCBrushColor(context, static_cast<COLORREF>(numberOf(model.valueOf(L"SurfaceColor"))));
  SetDCPenColor(context, static_cast<COLORREF>(numberOf(model.valueOf(L"LineColor"))));
  const long x = (area.left + area.right) / 2, y = (area.top + area.bottom) / 2, quarter = (area.right - x) / 3;
  const POINT sails[] = {{x, area.top},    {x + quarter, y - quarter}, {area.right, y}, {x + quarter, y + quarter},
                         {x, area.bottom}, {x - quarter, y + quarter}, {area.left, y},  {x - quarter, y - quarter}};
  Polygon(context, sails, 8);
  if (toolbarWindow != nullptr) DrawFocusRect(context, &area);
  EndPaint(page, &painting);
}

LRESULT CALLBACK pageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point = {static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))};
  const RECT area = modelArea(page);
  switch (message) {
    case WM_PAINT:
      paint(page);
      return 0;
    case WM_LBUTTONDBLCLK:
      if (PtInRect(&area, point)) beginEditing(page);
      return 0;
    case WM_LBUTTONDOWN:
      if (!PtInRect(&area, point)) endEditing(page);
      return 0;
    case WM_KEYDOWN:
      if (wParam == VK_ESCAPE) endEditing(page);
      return 0;
    case WM_DESTROY:
      toolbar.call(L"ToolbarDispose");
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(page, message, wParam, lParam);
  }
}

// F6 goes from the page to the toolbar and back. Only the host's loop sees the keys of both.
bool goesToTheOther(const MSG& message, HWND page) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_F6 || toolbarWindow == nullptr) return false;
  SetForegroundWindow(GetActiveWindow() == page ? toolbarWindow : page);
  return true;
}

HWND makePage() {
  WNDCLASSEXW page = {};
  page.cbSize = sizeof page;
  page.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  page.lpfnWndProc = pageProcedure;
  page.hInstance = GetModuleHandleW(nullptr);
  page.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  page.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  page.lpszClassName = L"Page";
  RegisterClassExW(&page);
  return CreateWindowExW(0, L"Page", L"Windmill", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 640, 480, nullptr, nullptr,
                         page.hInstance, nullptr);
}

}  // namespace

int wmain() {
  OleInitialize(nullptr);
  if (!toolbar.create()) {
    tell(L"The toolbar is not installed.");
    return 1;
  }
  const HWND page = makePage();
  model.changed = [page] { InvalidateRect(page, nullptr, TRUE); };
  // The plain loop is nearly enough: the toolbar's windows belong to this thread and are served with its own. What a
  // host translates (accelerators, dialogs) must be its own windows' messages only.
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (goesToTheOther(message, page)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  toolbar.release();
  OleUninitialize();
  tell(L"the end");
  return 0;
}
