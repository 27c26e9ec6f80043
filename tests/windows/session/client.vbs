' A client of the control with a model that tells of each use: "> member Type value ...". It carries out the commands
' that it finds in a file and answers each with "= ...". Both go to the standard output.
Option Explicit

Const commandFile = "@COMMAND_FILE@"
Dim raisingMember, raisingNumber, undoingMember, undoing

Function Typed(value)
  Typed = " " & TypeName(value) & " " & value
End Function

Sub Note(member, arguments)
  WScript.Echo "> " & member & arguments
  If member = raisingMember Then
    raisingMember = ""
    Err.Raise raisingNumber
  End If
  If member = undoingMember Then
    undoingMember = ""
    Undo
  End If
End Sub

' Takes the control down from inside its own call.
Sub Undo
  Select Case undoing
    Case "hide" : control.ToolbarHide
    Case "dispose" : control.ToolbarDispose
    Case "release" : Set control = Nothing
  End Select
  WScript.Echo "> undone by " & undoing
End Sub

Class Model
  Private Fields
  Private Sub Class_Initialize
    Set Fields = CreateObject("Scripting.Dictionary")
    Fields("ModelName") = "Duck"
    Fields("LookStyleName") = "Ink"
    Fields("InterfaceFlags") = 0
    Fields("AnimationFrameCount") = 0
    Fields("AnimationCurrentFrame") = 0
    Fields("AnimationState") = False
    Fields("AnimationLoopState") = True
    Fields("LightIsOn") = True
    Fields("LightX") = 0
    Fields("LightY") = 0
    Fields("LightZ") = 100
    Fields("LightStatus") = 0
    Fields("IsToolbarShowing") = False
    Fields("IsCatalogShowing") = False
    Fields("IsSurfaceColorDefault") = True
    Fields("IsLineColorDefault") = True
    Fields("IsBackgroundDefault") = True
    Fields("SurfaceColor") = 0
    Fields("LineColor") = 0
    Fields("BackgroundColor") = 0
    Fields("LineThicknessScale") = 100
  End Sub
  Public Sub Assign(name, value)
    Fields(name) = value
  End Sub
  Private Function Read(member)
    Note member, ""
    Read = Fields(member)
  End Function
  Private Sub Write(member, value)
    Note member & " :=", Typed(value)
    Fields(member) = value
  End Sub
  Private Sub Paint(member, flag, value)
    Write member, value
    Fields(flag) = False
  End Sub
  Private Sub Unpaint(member, flag)
    Note member, ""
    Fields(flag) = True
  End Sub

  Public Property Get ModelName : ModelName = Read("ModelName") : End Property
  Public Property Let ModelName(value) : Write "ModelName", value : End Property
  Public Property Let TarnwellXFile(value) : Note "TarnwellXFile :=", Typed(value) : End Property
  Public Property Let ModelScale(value) : Note "ModelScale :=", Typed(value) : End Property
  Public Property Get InterfaceFlags : InterfaceFlags = Read("InterfaceFlags") : End Property
  Public Property Get AnimationFrameCount : AnimationFrameCount = Read("AnimationFrameCount") : End Property
  Public Property Get AnimationCurrentFrame : AnimationCurrentFrame = Read("AnimationCurrentFrame") : End Property
  Public Property Let AnimationCurrentFrame(value) : Write "AnimationCurrentFrame", value : End Property
  Public Sub AnimationIncrementFrame : Note "AnimationIncrementFrame", "" : MoveFrame 1 : End Sub
  Public Sub AnimationDecrementFrame : Note "AnimationDecrementFrame", "" : MoveFrame -1 : End Sub
  Private Sub MoveFrame(frames)
    Dim frame
    frame = Fields("AnimationCurrentFrame") + frames
    If frame >= 0 And frame < Fields("AnimationFrameCount") Then Fields("AnimationCurrentFrame") = frame
  End Sub
  Public Property Get AnimationLoopState : AnimationLoopState = Read("AnimationLoopState") : End Property
  Public Property Let AnimationLoopState(value) : Write "AnimationLoopState", value : End Property
  Public Property Get LightIsOn : LightIsOn = Read("LightIsOn") : End Property
  Public Property Let LightIsOn(value) : Write "LightIsOn", value : End Property
  Public Sub SetLightDirection(x, y, z) : Note "SetLightDirection", Typed(x) & Typed(y) & Typed(z) : End Sub
  Public Function GetLightDirection(x, y, z)
    Note "GetLightDirection", ""
    x = Fields("LightX")
    y = Fields("LightY")
    z = Fields("LightZ")
    GetLightDirection = Fields("LightStatus")
  End Function
  Public Property Get LookStyleName : LookStyleName = Read("LookStyleName") : End Property
  Public Property Let LookStyle(value)
    Note "LookStyle :=", Typed(value)
    Fields("LookStyleName") = value
    If value = "" Then Fields("LookStyleName") = "none"
  End Property
  Public Property Get AnimationState : AnimationState = Read("AnimationState") : End Property
  Public Property Let AnimationState(value) : Write "AnimationState", value : End Property
  Public Property Get IsToolbarShowing : IsToolbarShowing = Read("IsToolbarShowing") : End Property
  Public Property Let IsToolbarShowing(value) : Write "IsToolbarShowing", value : End Property
  Public Property Get IsCatalogShowing : IsCatalogShowing = Read("IsCatalogShowing") : End Property
  Public Property Let IsCatalogShowing(value) : Write "IsCatalogShowing", value : End Property
  Public Property Let DoneShowingModelCatalog(value) : Note "DoneShowingModelCatalog :=", Typed(value) : End Property

  Public Property Get IsSurfaceColorDefault : IsSurfaceColorDefault = Read("IsSurfaceColorDefault") : End Property
  Public Property Get SurfaceColor : SurfaceColor = Read("SurfaceColor") : End Property
  Public Property Let SurfaceColor(value) : Paint "SurfaceColor", "IsSurfaceColorDefault", value : End Property
  Public Sub RestoreDefaultSurfaceColor : Unpaint "RestoreDefaultSurfaceColor", "IsSurfaceColorDefault" : End Sub
  Public Property Get IsLineColorDefault : IsLineColorDefault = Read("IsLineColorDefault") : End Property
  Public Property Get LineColor : LineColor = Read("LineColor") : End Property
  Public Property Let LineColor(value) : Paint "LineColor", "IsLineColorDefault", value : End Property
  Public Sub RestoreDefaultLineColor : Unpaint "RestoreDefaultLineColor", "IsLineColorDefault" : End Sub
  Public Property Get IsBackgroundDefault : IsBackgroundDefault = Read("IsBackgroundDefault") : End Property
  Public Property Get BackgroundColor : BackgroundColor = Read("BackgroundColor") : End Property
  Public Property Let BackgroundColor(value) : Paint "BackgroundColor", "IsBackgroundDefault", value : End Property
  Public Sub RestoreDefaultBackgroundColor : Unpaint "RestoreDefaultBackgroundColor", "IsBackgroundDefault" : End Sub
  Public Property Get LineThicknessScale : LineThicknessScale = Read("LineThicknessScale") : End Property
  Public Property Let LineThicknessScale(value) : Write "LineThicknessScale", value : End Property

  Public Sub GetLookStyleList(first, second, third)
    Note "GetLookStyleList", ""
    first = Array("Ink", "Clay", "Wire")
  End Sub
  Public Sub RefreshDisplay : Note "RefreshDisplay", "" : End Sub
  Public Sub ResetHome : Note "ResetHome", "" : End Sub
  Public Sub StopTimer : Note "StopTimer", "" : End Sub
  Public Sub StartTimer : Note "StartTimer", "" : End Sub
  Public Sub MoveX(amount) : Note "MoveX", Typed(amount) : End Sub
  Public Sub MoveY(amount) : Note "MoveY", Typed(amount) : End Sub
  Public Sub RotateX(amount) : Note "RotateX", Typed(amount) : End Sub
  Public Sub RotateY(amount) : Note "RotateY", Typed(amount) : End Sub
  Public Sub RotateZ(amount) : Note "RotateZ", Typed(amount) : End Sub
  Public Sub ScaleModel(amount) : Note "ScaleModel", Typed(amount) : End Sub
  Public Sub SetOrientation(x, y, z) : Note "SetOrientation", Typed(x) & Typed(y) & Typed(z) : End Sub
End Class

Dim files, control, duck, running, words
Set files = CreateObject("Scripting.FileSystemObject")
Set duck = New Model

Function NextCommand
  Dim stream
  Do Until files.FileExists(commandFile)
    WScript.Sleep 10
  Loop
  Set stream = files.OpenTextFile(commandFile, 1)
  NextCommand = Split(stream.ReadLine, "|")
  stream.Close
  files.DeleteFile commandFile
End Function

Sub Answer(text)
  WScript.Echo "= " & text
End Sub

Sub ShowAt(left, top)
  Dim x, y, window
  x = CInt(left)
  y = CInt(top)
  window = control.ToolbarShow(x, y)
  Answer window & " " & x & " " & y
End Sub

Sub SetField(name, kind, value)
  Select Case kind
    Case "text" : duck.Assign name, value
    Case "number" : duck.Assign name, CLng(value)
    Case "truth" : duck.Assign name, CBool(value)
  End Select
End Sub

Sub SetFields
  Dim i
  For i = 1 To UBound(words) - 2 Step 3
    SetField words(i), words(i + 1), words(i + 2)
  Next
  Answer "set"
End Sub

Sub SetRaising(member, number)
  raisingMember = member
  raisingNumber = CLng(number)
  Answer member
End Sub

Sub SetUndoing(member, way)
  undoingMember = member
  undoing = way
  Answer member
End Sub

Sub CarryOut
  Select Case words(0)
    Case "create" : Set control = CreateObject("ActiveNeridaToolbar.NeridaWindow") : Answer "created"
    Case "init" : Answer control.ToolbarInit(duck, CLng(words(1)))
    Case "show" : ShowAt words(1), words(2)
    Case "hide" : Answer control.ToolbarHide()
    Case "dispose" : Answer control.ToolbarDispose()
    Case "catalog" : Answer control.ShowCatalog()
    Case "about" : Answer TypeName(control.ShowAboutBox())
    Case "help" : Answer TypeName(control.ShowHelp())
    Case "visible" : Answer control.IsToolbarVisible() & " " & control.IsCatalogVisible()
    Case "set" : SetFields
    Case "raise" : SetRaising words(1), words(2)
    Case "undo" : SetUndoing words(1), words(2)
    Case "document" : Answer MsgBox("The client's own window", 0, "Document")
    Case "release" : Set control = Nothing : Answer "released"
    Case "quit" : running = False : Answer "over"
  End Select
End Sub

running = True
Answer "ready"
Do While running
  words = NextCommand
  CarryOut
Loop
