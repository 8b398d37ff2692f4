' Creates each of the five controls by its name, uses it, and says so.
Option Explicit
Dim name, control
For Each name In Array("qvFlatCommand", "qvImageCommand", "FlatToolButton", "qvFlatOption", "qvFlatCheck")
    Set control = WScript.CreateObject("Quillet." & name)
    control.Caption = "&" & name
    WScript.Echo control.Caption
Next
