// Scripts that make the control by its programmatic name, in a process of the system's own script host.
#include "kit/Controls.h"
#include "kit/Process.h"

#include <gtest/gtest.h>

#include <fstream>

namespace quillet::hosting {
namespace {

/// The component, registered for the length of the tests of this file.
class Script : public testing::Test {
protected:
    static void SetUpTestSuite() { s_registered = kit::regsvr32(L"") == 0; }
    static void TearDownTestSuite() { EXPECT_EQ(kit::regsvr32(L"/u"), 0U); }
    void SetUp() override { ASSERT_TRUE(s_registered) << "regsvr32 failed"; }

    /// Writes the script beside the program and answers what it quits with.
    static DWORD quits(std::string const& text, char const* language)
    {
        std::string const path = std::string("quillet_script.") + language;
        std::ofstream(path) << text;
        DWORD const code = kit::run(L"cscript.exe //nologo " + std::wstring(path.begin(), path.end()));
        ::DeleteFileA(path.c_str());
        return code;
    }
    /// A script that has made the control as b, and quits before its end where it finds something wrong. (It
    /// is the script host's own CreateObject: that of Wine's VBScript refuses every object that has a second
    /// site.)
    static void expectVbScript(std::string const& name, std::string const& body)
    {
        EXPECT_EQ(quits("On Error Resume Next\nDim b\nSet b = WScript.CreateObject(\"Quillet." + name +
                            "\")\nIf Err.Number <> 0 Then WScript.Quit 10\n" + body + "WScript.Quit 42\n",
                        "vbs"),
                  42U)
            << name << body;
    }
    static void expectJScript(std::string const& name, std::string const& body)
    {
        EXPECT_EQ(quits("try { var b = new ActiveXObject('Quillet." + name +
                            "'); } catch (e) { WScript.Quit(10); }\n" + body + "WScript.Quit(42);\n",
                        "js"),
                  42U)
            << name << body;
    }

private:
    inline static bool s_registered = false;
};

// Otherwise a script that never ran would be taken for one that succeeded.
TEST_F(Script, theScriptHostItselfRunsAndAnswers)
{
    EXPECT_EQ(quits("WScript.Quit(41);", "js"), 41U);
    EXPECT_EQ(quits("WScript.Quit 43", "vbs"), 43U);
}

TEST_F(Script, inVbScriptSetsAndReadsPropertiesAndSeesTheOverflow)
{
    expectVbScript("qvFlatCommand", R"(
b.Caption = "&Scripted"
If Err.Number <> 0 Then WScript.Quit 11
If b.Caption <> "&Scripted" Then WScript.Quit 12
b.BackColor = &H80000010
If Err.Number <> 0 Then WScript.Quit 13
b.Enabled = False
If b.Enabled Then WScript.Quit 14
b.BorderWidth = 3
If b.BorderWidth <> 3 Then WScript.Quit 15
b.Refresh
If Err.Number <> 0 Then WScript.Quit 16
b.BorderWidth = 40000
If Err.Number <> 6 Then WScript.Quit 17
Err.Clear
If b.BorderWidth <> 3 Then WScript.Quit 18
b.BorderWidth = "abc"
If Err.Number <> 13 Then WScript.Quit 19
)");
}

TEST_F(Script, inVbScriptReadsColoursAsLongs)
{
    expectVbScript("qvFlatCommand", R"(
b.BackColor = &H80000010
If b.BackColor <> &H80000010 Then WScript.Quit 11
If VarType(b.BackColor) <> 3 Then WScript.Quit 12
b.HotForeColor = b.BackColor
If Err.Number <> 0 Then WScript.Quit 13
If b.HotForeColor <> b.BackColor Then WScript.Quit 14
)");
}

TEST_F(Script, inVbScriptSeesAnInvalidUseOfNull)
{
    for (char const* const name : {"CaptionIndent", "BorderWidth", "BackColor", "Enabled", "Caption"})
        expectVbScript("qvFlatCommand", std::string("b.") + name + R"( = Null
If Err.Number <> 94 Then WScript.Quit 11
If Err.Source <> "Quillet.qvFlatCommand" Then WScript.Quit 12
)");
}

TEST_F(Script, inJScriptSetsAndReadsPropertiesAndSeesTheOverflow)
{
    expectJScript("qvFlatCommand", R"(
b.Caption = '&Scripted';
if (b.Caption != '&Scripted') WScript.Quit(12);
b.CaptionIndent = 9;
if (b.CaptionIndent !== 9) WScript.Quit(13);
b.CentreCaption = true;
if (b.CentreCaption !== true) WScript.Quit(14);
b.BackColor = -2147483632;
b.Refresh();
b.BorderWidth = 3;
var number = 0;
try { b.BorderWidth = 40000; } catch (e) { number = e.number & 0xFFFF; }
if (number != 6) WScript.Quit(17);
if (b.BorderWidth != 3) WScript.Quit(18);
)");
}

TEST_F(Script, makesTheImageButtonsAndSeesARefusedPicture)
{
    for (char const* const name : {"qvImageCommand", "FlatToolButton"})
        expectJScript(name, R"(
b.Caption = '&Scripted';
b.CheckButton = true;
b.Checked = true;
if (b.Caption != '&Scripted' || b.Checked !== true) WScript.Quit(12);
if (b.InUserMode() !== true) WScript.Quit(13);
b.Active = false;
if (b.InUserMode() !== false) WScript.Quit(14);
b.Active = true;
var number = 0;
try { b.Image = null; } catch (e) { number = e.number & 0xFFFF; }
if (number == 0) WScript.Quit(15);
b.DrawButton();
)");
}

TEST_F(Script, makesTheOptionAndTheCheckBoxAndSeesARefusedState)
{
    expectJScript("qvFlatOption", R"(
b.Caption = '&Scripted';
if (b.Caption != '&Scripted') WScript.Quit(12);
b.Value = 1;
if (b.Value !== 1) WScript.Quit(13);
b.Value = 2;
if (b.Value !== 0) WScript.Quit(14);
b.HotForeColor = 255;
if (b.HotForeColor !== 255) WScript.Quit(15);
b.Refresh();
)");
    expectJScript("qvFlatCheck", R"(
b.Value = 2;
if (b.Value !== 2) WScript.Quit(13);
function failing(value) {
    try { b.Value = value; } catch (e) { return e.number & 0xFFFF; }
    return 0;
}
if (failing(70000) != 6) WScript.Quit(14);
if (failing(3) != 380) WScript.Quit(15);
if (b.Value !== 2) WScript.Quit(16);
b.Refresh();
)");
}

TEST_F(Script, inVbScriptMakesEveryControl)
{
    for (kit::ControlKind const& each : kit::kControls)
        expectVbScript(each.name, R"(
b.Caption = "&Scripted"
If b.Caption <> "&Scripted" Then WScript.Quit 11
b.Enabled = False
If b.Enabled Then WScript.Quit 12
b.Refresh
If Err.Number <> 0 Then WScript.Quit 13
If b.hwnd = 0 Then WScript.Quit 14
b.hwnd = 1
If Err.Number = 0 Then WScript.Quit 15
Err.Clear
b.Nothing_of_the_kind
If Err.Number <> 438 Then WScript.Quit 16
)");
}

TEST_F(Script, ofTheSampleRuns) { EXPECT_EQ(kit::run(L"cscript.exe //nologo \"" QUILLET_SAMPLE L"\""), 0U); }

TEST_F(Script, byTheVersionedNameToo) { expectJScript("qvFlatCommand.1", "b.Caption = 'x';\n"); }

TEST_F(Script, manyButtonsAtATime)
{
    expectJScript("qvFlatCommand", R"(
var all = [];
for (var i = 0; i < 200; ++i) {
    all[i] = new ActiveXObject('Quillet.qvFlatCommand');
    all[i].Caption = 'Button ' + i;
}
for (var k = 0; k < 200; ++k)
    if (all[k].Caption != 'Button ' + k) WScript.Quit(11);
)");
}

} // namespace
} // namespace quillet::hosting
