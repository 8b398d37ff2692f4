// Scripts that make the control by its programmatic name, in a process of the system's own script host.
#include "base/Handles.h"
#include "kit/Library.h"

#include <gtest/gtest.h>

#include <fstream>

namespace quillet::hosting {
namespace {

constexpr DWORD kNotStarted = 0xFFFF;

struct KernelHandleTraits {
    using Handle = HANDLE;
    static void close(HANDLE handle) noexcept { ::CloseHandle(handle); }
};
using KernelHandle = UniqueHandle<KernelHandleTraits>;

/// Runs a program to its end and answers its exit code.
DWORD run(std::wstring command)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                          nullptr, &startup, &process))
        return kNotStarted;
    KernelHandle const owned(process.hProcess);
    KernelHandle const thread(process.hThread);
    constexpr DWORD kLimit = 60000;
    if (::WaitForSingleObject(owned.get(), kLimit) != WAIT_OBJECT_0)
        ::TerminateProcess(owned.get(), kNotStarted);
    DWORD code = kNotStarted;
    ::GetExitCodeProcess(owned.get(), &code);
    return code;
}

/// The component, registered for the length of the tests of this file.
class Script : public testing::Test {
protected:
    static void SetUpTestSuite() { s_registered = regsvr32(L"/s") == 0; }
    static void TearDownTestSuite() { EXPECT_EQ(regsvr32(L"/s /u"), 0U); }
    void SetUp() override { ASSERT_TRUE(s_registered) << "regsvr32 failed"; }

    /// Writes the script beside the program and answers what it quits with.
    static DWORD quits(char const* text, char const* name)
    {
        std::string const path = std::string("quillet_script_") + name;
        std::ofstream(path) << text;
        DWORD const code = run(L"cscript.exe //nologo " + std::wstring(path.begin(), path.end()));
        ::DeleteFileA(path.c_str());
        return code;
    }

private:
    static DWORD regsvr32(wchar_t const* options)
    {
        return run(std::wstring(L"regsvr32.exe ") + options + L" \"" + kit::Library::path() + L"\"");
    }
    inline static bool s_registered = false;
};

// Otherwise a script that never ran would be taken for one that succeeded.
TEST_F(Script, theScriptHostItselfRunsAndAnswers)
{
    EXPECT_EQ(quits("WScript.Quit(41);", "host.js"), 41U);
    EXPECT_EQ(quits("WScript.Quit 43", "host.vbs"), 43U);
}

// The script host's own CreateObject: that of Wine's VBScript refuses every object that has a second site.
TEST_F(Script, inVbScriptSetsAndReadsPropertiesAndSeesTheOverflow)
{
    EXPECT_EQ(quits("On Error Resume Next\n"
                    "Dim b\n"
                    "Set b = WScript.CreateObject(\"Quillet.qvFlatCommand\")\n"
                    "If Err.Number <> 0 Then WScript.Quit 10\n"
                    "b.Caption = \"&Scripted\"\n"
                    "If Err.Number <> 0 Then WScript.Quit 11\n"
                    "If b.Caption <> \"&Scripted\" Then WScript.Quit 12\n"
                    "b.BackColor = &H80000010\n"
                    "If Err.Number <> 0 Then WScript.Quit 13\n"
                    "b.Enabled = False\n"
                    "If b.Enabled Then WScript.Quit 14\n"
                    "b.BorderWidth = 3\n"
                    "If b.BorderWidth <> 3 Then WScript.Quit 15\n"
                    "b.Refresh\n"
                    "If Err.Number <> 0 Then WScript.Quit 16\n"
                    "b.BorderWidth = 40000\n"
                    "If Err.Number <> 6 Then WScript.Quit 17\n"
                    "Err.Clear\n"
                    "If b.BorderWidth <> 3 Then WScript.Quit 18\n"
                    "b.BorderWidth = \"abc\"\n"
                    "If Err.Number <> 13 Then WScript.Quit 19\n"
                    "WScript.Quit 42\n",
                    "button.vbs"),
              42U);
}

TEST_F(Script, inVbScriptReadsColoursAsLongs)
{
    EXPECT_EQ(quits("On Error Resume Next\n"
                    "Dim b\n"
                    "Set b = WScript.CreateObject(\"Quillet.qvFlatCommand\")\n"
                    "b.BackColor = &H80000010\n"
                    "If b.BackColor <> &H80000010 Then WScript.Quit 11\n"
                    "If VarType(b.BackColor) <> 3 Then WScript.Quit 12\n"
                    "b.HotForeColor = b.BackColor\n"
                    "If Err.Number <> 0 Then WScript.Quit 13\n"
                    "If b.HotForeColor <> b.BackColor Then WScript.Quit 14\n"
                    "WScript.Quit 42\n",
                    "colour.vbs"),
              42U);
}

TEST_F(Script, inVbScriptSeesAnInvalidUseOfNull)
{
    for (char const* const name : {"CaptionIndent", "BorderWidth", "BackColor", "Enabled", "Caption"}) {
        std::string const text = std::string("On Error Resume Next\n"
                                             "Dim b\n"
                                             "Set b = WScript.CreateObject(\"Quillet.qvFlatCommand\")\n"
                                             "If Err.Number <> 0 Then WScript.Quit 10\n"
                                             "b.") +
                                 name +
                                 " = Null\n"
                                 "If Err.Number <> 94 Then WScript.Quit 11\n"
                                 "If Err.Source <> \"Quillet.qvFlatCommand\" Then WScript.Quit 12\n"
                                 "WScript.Quit 42\n";
        EXPECT_EQ(quits(text.c_str(), "null.vbs"), 42U) << name;
    }
}

TEST_F(Script, inJScriptSetsAndReadsPropertiesAndSeesTheOverflow)
{
    EXPECT_EQ(
        quits("try { var b = new ActiveXObject('Quillet.qvFlatCommand'); } catch (e) { WScript.Quit(10); }\n"
              "b.Caption = '&Scripted';\n"
              "if (b.Caption != '&Scripted') WScript.Quit(12);\n"
              "b.CaptionIndent = 9;\n"
              "if (b.CaptionIndent !== 9) WScript.Quit(13);\n"
              "b.CentreCaption = true;\n"
              "if (b.CentreCaption !== true) WScript.Quit(14);\n"
              "b.BackColor = -2147483632;\n"
              "b.Refresh();\n"
              "b.BorderWidth = 3;\n"
              "var number = 0;\n"
              "try { b.BorderWidth = 40000; } catch (e) { number = e.number & 0xFFFF; }\n"
              "if (number != 6) WScript.Quit(17);\n"
              "if (b.BorderWidth != 3) WScript.Quit(18);\n"
              "WScript.Quit(42);\n",
              "button.js"),
        42U);
}

TEST_F(Script, makesTheImageButtonsAndSeesARefusedPicture)
{
    for (char const* const progId : {"Quillet.qvImageCommand", "Quillet.FlatToolButton"}) {
        std::string const text = std::string("var b = new ActiveXObject('") + progId +
                                 "');\n"
                                 "b.Caption = '&Scripted';\n"
                                 "b.CheckButton = true;\n"
                                 "b.Checked = true;\n"
                                 "if (b.Caption != '&Scripted' || b.Checked !== true) WScript.Quit(12);\n"
                                 "if (b.InUserMode() !== true) WScript.Quit(13);\n"
                                 "b.Active = false;\n"
                                 "if (b.InUserMode() !== false) WScript.Quit(14);\n"
                                 "b.Active = true;\n"
                                 "var number = 0;\n"
                                 "try { b.Image = null; } catch (e) { number = e.number & 0xFFFF; }\n"
                                 "if (number == 0) WScript.Quit(15);\n"
                                 "b.DrawButton();\n"
                                 "WScript.Quit(42);\n";
        EXPECT_EQ(quits(text.c_str(), "image.js"), 42U) << progId;
    }
}

TEST_F(Script, makesTheOptionAndTheCheckBoxAndSeesARefusedState)
{
    EXPECT_EQ(quits("var b = new ActiveXObject('Quillet.qvFlatOption');\n"
                    "b.Caption = '&Scripted';\n"
                    "if (b.Caption != '&Scripted') WScript.Quit(12);\n"
                    "b.Value = 1;\n"
                    "if (b.Value !== 1) WScript.Quit(13);\n"
                    "b.Value = 2;\n"
                    "if (b.Value !== 0) WScript.Quit(14);\n"
                    "b.HotForeColor = 255;\n"
                    "if (b.HotForeColor !== 255) WScript.Quit(15);\n"
                    "b.Refresh();\n"
                    "WScript.Quit(42);\n",
                    "option.js"),
              42U);
    EXPECT_EQ(quits("var b = new ActiveXObject('Quillet.qvFlatCheck');\n"
                    "b.Value = 2;\n"
                    "if (b.Value !== 2) WScript.Quit(13);\n"
                    "function failing(value) {\n"
                    "    try { b.Value = value; } catch (e) { return e.number & 0xFFFF; }\n"
                    "    return 0;\n"
                    "}\n"
                    "if (failing(70000) != 6) WScript.Quit(14);\n"
                    "if (failing(3) != 380) WScript.Quit(15);\n"
                    "if (b.Value !== 2) WScript.Quit(16);\n"
                    "b.Refresh();\n"
                    "WScript.Quit(42);\n",
                    "check.js"),
              42U);
}

TEST_F(Script, inVbScriptMakesEveryControl)
{
    for (char const* const name :
         {"qvFlatCommand", "qvImageCommand", "FlatToolButton", "qvFlatOption", "qvFlatCheck"}) {
        std::string const text = std::string("On Error Resume Next\n"
                                             "Dim b\n"
                                             "Set b = WScript.CreateObject(\"Quillet.") +
                                 name +
                                 "\")\n"
                                 "If Err.Number <> 0 Then WScript.Quit 10\n"
                                 "b.Caption = \"&Scripted\"\n"
                                 "If b.Caption <> \"&Scripted\" Then WScript.Quit 11\n"
                                 "b.Enabled = False\n"
                                 "If b.Enabled Then WScript.Quit 12\n"
                                 "b.Refresh\n"
                                 "If Err.Number <> 0 Then WScript.Quit 13\n"
                                 "If b.hwnd = 0 Then WScript.Quit 14\n"
                                 "b.hwnd = 1\n"
                                 "If Err.Number = 0 Then WScript.Quit 15\n"
                                 "Err.Clear\n"
                                 "b.Nothing_of_the_kind\n"
                                 "If Err.Number <> 438 Then WScript.Quit 16\n"
                                 "WScript.Quit 42\n";
        EXPECT_EQ(quits(text.c_str(), "each.vbs"), 42U) << name;
    }
}

TEST_F(Script, ofTheSampleRuns) { EXPECT_EQ(run(L"cscript.exe //nologo \"" QUILLET_SAMPLE L"\""), 0U); }

TEST_F(Script, byTheVersionedNameToo)
{
    EXPECT_EQ(
        quits("new ActiveXObject('Quillet.qvFlatCommand.1').Caption = 'x'; WScript.Quit(42);", "version.js"),
        42U);
}

TEST_F(Script, manyButtonsAtATime)
{
    EXPECT_EQ(quits("var all = [];\n"
                    "for (var i = 0; i < 200; ++i) {\n"
                    "    all[i] = new ActiveXObject('Quillet.qvFlatCommand');\n"
                    "    all[i].Caption = 'Button ' + i;\n"
                    "}\n"
                    "for (var k = 0; k < 200; ++k)\n"
                    "    if (all[k].Caption != 'Button ' + k) WScript.Quit(11);\n"
                    "WScript.Quit(42);\n",
                    "many.js"),
              42U);
}

} // namespace
} // namespace quillet::hosting
