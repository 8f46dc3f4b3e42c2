' Drives Quorbel.dll the way a script host does: creation by ProgID, calls by name,
' by-reference arguments, and the error of a failing call through Err.
Option Explicit
Dim passed, failed
passed = 0 : failed = 0

Sub Check(name, ok)
    If ok Then
        passed = passed + 1
        WScript.Echo "ok   " & name
    Else
        failed = failed + 1
        WScript.Echo "FAIL " & name
    End If
End Sub

Dim p, w, refer, code, script
Set p = CreateObject("Quorbel.Plugin")
Set w = CreateObject("Quorbel.Wizard")
Check "Plugin created", IsObject(p)
Check "Wizard created", IsObject(w)

refer = "MOD1" : code = "C" : script = "S"
Check "modeloValido by reference true", p.modeloValido(refer, code, script) = True
refer = "@MOD1"
Check "modeloValido by reference false", p.modeloValido(refer, code, script) = False
Check "modeloValido keeps arguments", refer = "@MOD1" And script = "S"
refer = String(200000, "x") & Chr(0) & "y" : script = Chr(0)
Check "long string with NUL passes", p.modeloValido(refer, code, script) = True
Check "long string comes back whole", Len(refer) = 200002
refer = "W" : script = ""
Check "Wizard modeloValido empty script", w.modeloValido(refer, code, script) = False

On Error Resume Next
p.InicEsp
Check "InicEsp runs", Err.Number = 0
Err.Clear
Dim r
r = p.OnAppStartAfter(7)
Check "failing call raises 429", (Err.Number And &HFFFF&) = 429
Check "failing call description", Err.Description = "ActiveX component can't create object"
Check "failing call source", Err.Source = "Quorbel"
Err.Clear
r = w.OnObjectPlaceAfter(7)
Check "Wizard failing call raises 429", (Err.Number And &HFFFF&) = 429
On Error GoTo 0

WScript.Echo "vbs " & passed & " passed, " & failed & " failed"
