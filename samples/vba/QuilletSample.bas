Attribute VB_Name = "QuilletSample"
' Flat buttons in Office: ShowButtons for a UserForm, SetUpButton for a form of Access. The README has the steps.
Option Explicit

Private Const ClassNotRegistered As Long = 429

' Shows the empty UserForm1 with a flat button on it.
Public Sub ShowButtons()
    Dim events As QuilletEvents
    If Not IsRegistered Then Exit Sub
    Set events = New QuilletEvents
    events.Attach UserForm1
    UserForm1.Show
End Sub

' Call it from the Load event of an Access form: SetUpButton Me!cmdSave
Public Sub SetUpButton(ByVal place As Object)
    If Not IsRegistered Then Exit Sub
    With place.Object
        .Caption = "&Save changes"
        .CentreCaption = True
        .HotBackColor = RGB(&HD6, &HDF, &HF7)
        .HotBorderColor = RGB(&H31, &H6A, &HC5)
    End With
End Sub

Private Function IsRegistered() As Boolean
    Dim button As Object
    On Error Resume Next
    Set button = CreateObject("Quillet.qvFlatCommand")
    IsRegistered = Err.Number <> ClassNotRegistered
    If Not IsRegistered Then MsgBox "Quillet is not registered: run regsvr32 quilbt.ocx, of the same kind (x86 or x64) as Office.", vbCritical
End Function
