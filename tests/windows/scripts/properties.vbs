' A script host drives NVRandom.ClsRandom by its ProgID: VBScript's own values (True, arrays of
' variants made by ReDim and Array) and a run-time error's number as Err.Number. Every text
' property's round trip is the C++ client's (it walks the member table), the type library's
' conversion errors properties.js's. Wine's cscript exits 0 even when a script fails, so the last
' line "PASS properties.vbs" is what the test requires.
Option Explicit
Dim failures : failures = 0
Sub Check(what, actual, expected)
  If actual <> expected Then
    WScript.Echo "FAIL " & what & ": got [" & actual & "], expected [" & expected & "]"
    failures = failures + 1
  End If
End Sub

Dim o, a, b
Set o = CreateObject("NVRandom.ClsRandom")
o.FormStyle = 3 : Check "FormStyle", o.FormStyle, 3
o.PlayByPlayEnabled = True : Check "PlayByPlayEnabled", o.PlayByPlayEnabled, -1
o.PlayByPlayEnabled = False

' Arrays of variants, as scripts make them: a failure stops the script before its PASS line.
ReDim a(1, 2)
a(0, 0) = "ON" : a(1, 0) = "416" : a(0, 1) = "QC" : a(1, 1) = "514"
o.Prov_areacode = a
o.IPCurrencyList = Array("USD", "EUR")
o.NVMemberType = 3
o.IPBillerNameAcctExist = True

' The component's run-time error as Err.Number.
ReDim b(1, 30)
On Error Resume Next
o.Prov_areacode = b
Check "Prov_areacode past the table", Err.Number, 9
On Error GoTo 0

If failures = 0 Then WScript.Echo "PASS properties.vbs"
