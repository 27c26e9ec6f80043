// A whole host in JScript: a model, the toolbar beside it, and the end of both.
//
//     cscript //nologo host.js
//
// Press the toolbar's buttons and look at what the model is asked to do; the toolbar's close box ends it.

function tell(text) { WScript.Echo(text); }

// The model. What it keeps are data properties, which the toolbar reads and assigns by their names; nothing runs when
// one is assigned, so this host compares them afterwards.
var model = {
  ModelName: "Windmill",
  InterfaceFlags: 1 + 2 + 16,  // buttons for fill colour, line colour and line thickness
  IsToolbarShowing: false,
  IsCatalogShowing: false,
  DoneShowingModelCatalog: false,

  LookStyleName: "Clay",
  LookStyle: "",
  IsBackgroundDefault: true,
  IsLineColorDefault: true,
  IsSurfaceColorDefault: true,
  BackgroundColor: 0xFFFFFF,  // red + 256 green + 65536 blue
  LineColor: 0,
  SurfaceColor: 0x3C78C8,
  LineThicknessScale: 100,
  LightIsOn: true,
  AnimationFrameCount: 0,  // above 0 the animation button can be pressed
  AnimationCurrentFrame: 0,
  AnimationState: false,
  AnimationLoopState: false,
  TarnwellXFile: "",
  ModelScale: 0,

  // Steps come with a sign: +1 is left, up and larger; +2 tilts up, left and clockwise.
  MoveX: function (amount) { tell("MoveX " + amount); },
  MoveY: function (amount) { tell("MoveY " + amount); },
  RotateX: function (amount) { tell("RotateX " + amount); },
  RotateY: function (amount) { tell("RotateY " + amount); },
  RotateZ: function (amount) { tell("RotateZ " + amount); },
  ScaleModel: function (amount) { tell("ScaleModel " + amount); },
  ResetHome: function () { tell("ResetHome"); },
  RefreshDisplay: function () { tell("RefreshDisplay"); },
  SetOrientation: function (x, y, z) { tell("SetOrientation " + x + ", " + y + ", " + z); },

  // JScript cannot fill variables of its caller: the list of styles is returned instead.
  GetLookStyleList: function () { return ["Clay", "Ink", "Wire"]; },

  RestoreDefaultBackgroundColor: function () { this.IsBackgroundDefault = true; },
  RestoreDefaultLineColor: function () { this.IsLineColorDefault = true; },
  RestoreDefaultSurfaceColor: function () { this.IsSurfaceColorDefault = true; },

  SetLightDirection: function (x, y, z) { tell("SetLightDirection " + x + ", " + y + ", " + z); },
  // For the same reason this one cannot answer; anything but 0 says so, and no lamp is shown as pressed.
  GetLightDirection: function () { return 1; },

  AnimationIncrementFrame: function () { tell("AnimationIncrementFrame"); },
  AnimationDecrementFrame: function () { tell("AnimationDecrementFrame"); },
  StopTimer: function () { tell("StopTimer"); },
  StartTimer: function () { tell("StartTimer"); }
};

var toolbar = new ActiveXObject("ActiveNeridaToolbar.NeridaWindow");

// A script has no window of its own: 0 stands for none. The answer is 0, or the number of an error that was shown.
tell("bound: " + toolbar.ToolbarInit(model, 0));

// Screen pixels.
var shown = toolbar.ToolbarShow(100, 100) != -1;
tell("shown: " + shown);

// Sleeping serves the windows of this script meanwhile. Without that no press would ever arrive.
while (toolbar.IsToolbarVisible()) WScript.Sleep(20);

tell("style: " + model.LookStyle);
toolbar.ToolbarHide();     // the object is no longer edited; ToolbarShow may follow again
toolbar.ToolbarDispose();  // the object closes: all windows go, and the model is let go of
toolbar = null;
tell("the end");
