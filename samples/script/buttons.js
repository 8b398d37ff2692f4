// Flat buttons from JScript: properties, a refused value, an event. cscript //nologo buttons.js
function newControl(name) {
    try {
        return WScript.CreateObject("Quillet." + name);
    } catch (trouble) {
        WScript.Echo("Quillet is not registered: run regsvr32 quilbt.ocx, of the same kind (x86 or x64) as cscript.");
        WScript.Quit(1);
    }
}

var button = newControl("qvFlatCommand");
button.Caption = "&Save changes";
button.BorderWidth = 2;
WScript.Echo(button.Caption + ", border " + button.BorderWidth);

try {
    button.BorderWidth = 40000;
} catch (trouble) {
    WScript.Echo("40000 is refused: " + (trouble.number & 0xFFFF) + " " + trouble.message);
}

// Controls raise events without a form, too: Value set from code is a click.
function check_Click() {
    WScript.Echo("Click");
}

var check = newControl("qvFlatCheck");
try {
    WScript.ConnectObject(check, "check_");
} catch (trouble) {
    WScript.Echo("(this script host connects no events)");
}
check.Value = 1;
WScript.Echo("Value is " + check.Value);
