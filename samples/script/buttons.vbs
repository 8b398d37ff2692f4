' Flat buttons from VBScript: properties, a refused value, an event. cscript //nologo buttons.vbs
Option Explicit
Dim button, check

On Error Resume Next
Set button = WScript.CreateObject("Quillet.qvFlatCommand")
If Err.Number <> 0 Then
    WScript.Echo "Quillet is not registered: run regsvr32 quilbt.ocx, of the same kind (x86 or x64) as cscript."
    WScript.Quit 1
End If
On Error Goto 0

button.Caption = "&Save changes"
button.BorderWidth = 2
WScript.Echo button.Caption & ", border " & button.BorderWidth

On Error Resume Next
button.BorderWidth = 40000
WScript.Echo "40000 is refused: " & Err.Number & " " & Err.Description
Err.Clear
On Error Goto 0

' Controls raise events without a form, too: Value set from code is a click.
Set check = WScript.CreateObject("Quillet.qvFlatCheck")
On Error Resume Next
WScript.ConnectObject check, "check_"
If Err.Number <> 0 Then WScript.Echo "(this script host connects no events)"
On Error Goto 0
check.Value = 1
WScript.Echo "Value is " & check.Value

Sub check_Click()
    WScript.Echo "Click"
End Sub
