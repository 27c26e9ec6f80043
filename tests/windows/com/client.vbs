' A client and a model in VBScript. Every line that it prints is compared with the expected ones.
Option Explicit

Class Duck
  Public Log
  Public ModelName
  Public LookStyleName
  Public LookStyle
  Public InterfaceFlags
  Public AnimationFrameCount
  Public AnimationCurrentFrame
  Public AnimationState
  Public SurfaceColor
  Public LineColor
  Public BackgroundColor
  Private toolbarShows
  Private catalogShows
  Private Sub Class_Initialize
    ModelName = "Rubber Duck"
    LookStyleName = "Clay"
    InterfaceFlags = 0
    AnimationFrameCount = 0
    AnimationCurrentFrame = 0
    AnimationState = False
    SurfaceColor = 255
    LineColor = 0
    BackgroundColor = 16777215
    toolbarShows = False
    catalogShows = False
  End Sub
  Public Property Get IsToolbarShowing
    IsToolbarShowing = toolbarShows
  End Property
  Public Property Let IsToolbarShowing(value)
    Log = Log & " toolbar=" & value
    toolbarShows = value
  End Property
  Public Property Get IsCatalogShowing
    IsCatalogShowing = catalogShows
  End Property
  Public Property Let IsCatalogShowing(value)
    Log = Log & " catalog=" & value
    catalogShows = value
  End Property
  Public Property Let DoneShowingModelCatalog(value)
    Log = Log & " done=" & value
  End Property
  Public Sub GetLookStyleList(first, second, third)
    Log = Log & " styles"
    second = Array("Ink", "Clay")
  End Sub
  Public Sub RefreshDisplay
    Log = Log & " refresh"
  End Sub
  Public Sub StopTimer
    Log = Log & " stop"
  End Sub
  Public Sub StartTimer
    Log = Log & " start"
  End Sub
End Class

Dim model
Dim control
Dim x
Dim y
Dim reply

Sub Say(text)
  WScript.Echo text & ":" & model.Log
  model.Log = ""
End Sub

Set model = New Duck
Set control = CreateObject("ActiveNeridaToolbar.NeridaWindow")
reply = control.ToolbarInit(model, 0)
Say "init " & reply
WScript.Echo "visible " & control.IsToolbarVisible & " " & control.IsCatalogVisible
x = 100
y = 120
reply = control.ToolbarShow(x, y)
Say "show " & (reply <> -1) & " at " & x & " " & y
WScript.Echo "visible " & control.IsToolbarVisible & " " & control.IsCatalogVisible
x = 0
y = 250
reply = control.ToolbarShow(x, y)
Say "show " & (reply <> -1) & " at " & x & " " & y
On Error Resume Next
reply = 0
reply = control.ToolbarShow(40000, 1)
WScript.Echo "too far " & (Err.Number = 6) & " " & reply
On Error Goto 0
reply = control.ShowCatalog
Say "catalog " & (reply <> -1)
WScript.Echo "visible " & control.IsToolbarVisible & " " & control.IsCatalogVisible
WScript.Echo "help " & IsEmpty(control.ShowHelp)
reply = control.ToolbarHide
Say "hide " & reply
WScript.Echo "visible " & control.IsToolbarVisible & " " & control.IsCatalogVisible
reply = control.ToolbarDispose
Say "dispose " & reply
Set control = Nothing
Set control = CreateObject("ActiveNeridaToolbar.NeridaWindow.1")
reply = control.ToolbarInit(model, 0)
Say "again " & reply
Set control = Nothing
Say "released"
WScript.Echo "the end"
