' A whole host in VBScript: a model, the toolbar beside it, and the end of both.
'
'     cscript //nologo host.vbs
'
' Press the toolbar's buttons and look at what the model is asked to do; OK in the message box ends it.
Option Explicit

' The model. What it keeps are plain variables, which the toolbar reads and assigns by their names. A member that the
' toolbar asks for and that is missing here is told to the user as an error, nothing worse.
Class Windmill
  Public ModelName
  Public InterfaceFlags
  Public IsToolbarShowing
  Public IsCatalogShowing
  Public LookStyleName
  Public IsBackgroundDefault
  Public IsLineColorDefault
  Public IsSurfaceColorDefault
  Public LightIsOn
  Public AnimationFrameCount
  Public AnimationCurrentFrame
  Public AnimationState
  Public AnimationLoopState
  Private background
  Private lines
  Private surface
  Private thickness
  Private lightX
  Private lightY
  Private lightZ

  Private Sub Class_Initialize
    ModelName = "Windmill"
    InterfaceFlags = 1 + 2 + 16  ' buttons for fill colour, line colour and line thickness
    IsToolbarShowing = False
    IsCatalogShowing = False
    LookStyleName = "Clay"
    background = RGB(255, 255, 255) : IsBackgroundDefault = True
    lines = RGB(0, 0, 0)            : IsLineColorDefault = True
    surface = RGB(200, 120, 60)     : IsSurfaceColorDefault = True
    thickness = 100
    LightIsOn = True
    lightX = 0 : lightY = 0 : lightZ = 100
    AnimationFrameCount = 0         ' above 0 the animation button can be pressed
    AnimationCurrentFrame = 0
    AnimationState = False
    AnimationLoopState = False
  End Sub

  ' Steps come with a sign: +1 is left, up and larger; +2 tilts up, left and clockwise.
  Public Sub MoveX(amount)      : Tell "MoveX " & amount      : End Sub
  Public Sub MoveY(amount)      : Tell "MoveY " & amount      : End Sub
  Public Sub RotateX(amount)    : Tell "RotateX " & amount    : End Sub
  Public Sub RotateY(amount)    : Tell "RotateY " & amount    : End Sub
  Public Sub RotateZ(amount)    : Tell "RotateZ " & amount    : End Sub
  Public Sub ScaleModel(amount) : Tell "ScaleModel " & amount : End Sub
  Public Sub ResetHome          : Tell "ResetHome"            : End Sub
  Public Sub RefreshDisplay     : Tell "RefreshDisplay"       : End Sub
  ' Hundredths of a degree.
  Public Sub SetOrientation(x, y, z) : Tell "SetOrientation " & x & ", " & y & ", " & z : End Sub

  ' The toolbar fills its list with the array that it finds in one of the three variables.
  Public Sub GetLookStyleList(names, unused, unusedToo)
    names = Array("Clay", "Ink", "Wire")
  End Sub
  Public Property Let LookStyle(name)
    Tell "LookStyle " & name
    LookStyleName = name
    If name = "" Then LookStyleName = "none"  ' the custom style
  End Property

  ' A colour that is assigned is the user's; restoring goes back to the style's.
  Public Property Get BackgroundColor : BackgroundColor = background : End Property
  Public Property Let BackgroundColor(value)
    background = value : IsBackgroundDefault = False : Tell "BackgroundColor " & Hex(value)
  End Property
  Public Sub RestoreDefaultBackgroundColor
    IsBackgroundDefault = True : Tell "RestoreDefaultBackgroundColor"
  End Sub
  Public Property Get LineColor : LineColor = lines : End Property
  Public Property Let LineColor(value)
    lines = value : IsLineColorDefault = False : Tell "LineColor " & Hex(value)
  End Property
  Public Sub RestoreDefaultLineColor
    IsLineColorDefault = True : Tell "RestoreDefaultLineColor"
  End Sub
  Public Property Get SurfaceColor : SurfaceColor = surface : End Property
  Public Property Let SurfaceColor(value)
    surface = value : IsSurfaceColorDefault = False : Tell "SurfaceColor " & Hex(value)
  End Property
  Public Sub RestoreDefaultSurfaceColor
    IsSurfaceColorDefault = True : Tell "RestoreDefaultSurfaceColor"
  End Sub
  Public Property Get LineThicknessScale : LineThicknessScale = thickness : End Property
  Public Property Let LineThicknessScale(percent)
    thickness = percent : Tell "LineThicknessScale " & percent
  End Property

  Public Sub SetLightDirection(x, y, z)
    lightX = x : lightY = y : lightZ = z : Tell "SetLightDirection " & x & ", " & y & ", " & z
  End Sub
  Public Function GetLightDirection(x, y, z)
    x = lightX : y = lightY : z = lightZ
    GetLightDirection = 0  ' they are filled
  End Function

  Public Sub AnimationIncrementFrame : Tell "AnimationIncrementFrame" : End Sub
  Public Sub AnimationDecrementFrame : Tell "AnimationDecrementFrame" : End Sub
  Public Sub StopTimer               : Tell "StopTimer"               : End Sub
  Public Sub StartTimer              : Tell "StartTimer"              : End Sub

  ' What the catalog does with a model that its user inserts.
  Public Property Let TarnwellXFile(path)         : Tell "TarnwellXFile " & path : End Property
  Public Property Let ModelScale(scale)           : Tell "ModelScale " & scale   : End Property
  Public Property Let DoneShowingModelCatalog(on_) : Tell "the catalog has closed" : End Property
End Class

Sub Tell(text)
  WScript.Echo text
End Sub

Dim model, toolbar, x, y, window
Set model = New Windmill
Set toolbar = CreateObject("ActiveNeridaToolbar.NeridaWindow")

' A script has no window of its own: 0 stands for none. The answer is 0, or the number of an error that was shown.
Tell "bound: " & toolbar.ToolbarInit(model, 0)

' Screen pixels. A host with a window may pass 0, 0 for the corner of its client area.
x = 100
y = 100
window = toolbar.ToolbarShow(x, y)
Tell "shown: " & (window <> -1) & " at " & x & ", " & y

' While this box waits, its message loop serves the toolbar too. Without one no press would ever arrive.
MsgBox "Edit the model with the toolbar, then press OK.", 0, "Windmill"

Tell "visible: " & toolbar.IsToolbarVisible
toolbar.ToolbarHide     ' the object is no longer edited; ToolbarShow may follow again
toolbar.ToolbarDispose  ' the object closes: all windows go, and the model is let go of
Set toolbar = Nothing
Tell "the end"
