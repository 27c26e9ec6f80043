' A client whose control lies in the system's control container. It prints what its model is told, until the model is
' sent home.
Option Explicit

Class Model
  Public ModelName
  Public LookStyleName
  Public InterfaceFlags
  Public AnimationFrameCount
  Public AnimationState
  Public IsToolbarShowing
  Public IsCatalogShowing
  Public DoneShowingModelCatalog
  Public AtHome
  Private Sub Class_Initialize
    ModelName = "Contained"
    LookStyleName = "Clay"
    AtHome = False
  End Sub
  Public Sub GetLookStyleList(names, b, c)
    names = Array("Clay")
  End Sub
  Public Sub RefreshDisplay
  End Sub
  Public Sub ScaleModel(amount)
    WScript.Echo "scale " & amount
  End Sub
  Public Sub ResetHome
    AtHome = True
  End Sub
End Class

Dim duck
Set duck = New Model
WScript.Echo "bound " & Contained.ToolbarInit(duck, 0)
WScript.Echo "shown " & (Contained.ToolbarShow(60, 860) <> -1)
Do Until duck.AtHome
  WScript.Sleep 10
Loop
Contained.ToolbarHide
Contained.ToolbarDispose
WScript.Echo "the end"
