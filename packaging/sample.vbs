' Makes a flat command button from script. Register quilbt.ocx first, then: cscript sample.vbs
Option Explicit
Dim button
Set button = WScript.CreateObject("Quillet.qvFlatCommand")
button.Caption = "&Save changes"
button.BorderWidth = 2
WScript.Echo button.Caption & ", border " & button.BorderWidth

On Error Resume Next
button.BorderWidth = 40000
WScript.Echo "40000 is refused: " & Err.Description
If button.BorderWidth <> 2 Then WScript.Quit 1
