// A client and a model in JScript. Every line that it prints is compared by the runner with the expected ones.
var log = "";
var model = {
  ModelName: "Rubber Duck",
  LookStyleName: "Clay",
  LookStyle: "",
  InterfaceFlags: 0,
  AnimationFrameCount: 0,
  AnimationCurrentFrame: 0,
  AnimationState: false,
  SurfaceColor: 255,
  LineColor: 0,
  BackgroundColor: 16777215,
  IsToolbarShowing: false,
  IsCatalogShowing: false,
  DoneShowingModelCatalog: false,
  GetLookStyleList: function (first, second, third) {
    log += " styles";
    return ["Ink", "Clay"];
  },
  RefreshDisplay: function () { log += " refresh"; },
  StopTimer: function () { log += " stop"; },
  StartTimer: function () { log += " start"; }
};

function say(text) {
  WScript.Echo(text + ":" + log + " toolbar=" + model.IsToolbarShowing + " catalog=" + model.IsCatalogShowing);
  log = "";
}

var control = new ActiveXObject("ActiveNeridaToolbar.NeridaWindow");
say("init " + control.ToolbarInit(model, 0));
say("show " + (control.ToolbarShow(100, 120) != -1));
say("visible " + control.IsToolbarVisible() + " " + control.IsCatalogVisible());
var refused = "";
try {
  control.ToolbarShow(40000, 1);
} catch (e) {
  refused = "refused";
}
say("too far " + refused);
say("catalog " + (control.ShowCatalog() != -1));
say("help " + (control.ShowHelp() === undefined));
say("hide " + control.ToolbarHide());
say("visible " + control.IsToolbarVisible() + " " + control.IsCatalogVisible());
say("dispose " + control.ToolbarDispose());
control = null;
WScript.Echo("the end");
