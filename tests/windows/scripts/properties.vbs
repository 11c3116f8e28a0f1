' VBScript drives NVRandom.ClsRandom by its ProgID: its own values (True, arrays of variants), and
' ShowForm while the C++ client (argument 1) closes the dialog as a person would. Wine's cscript
' exits 0 even when a script fails, so the last line "PASS properties.vbs" is what the test needs.
Option Explicit
Dim failures : failures = 0
Sub Check(what, actual, expected)
  If actual <> expected Then
    WScript.Echo "FAIL " & what & ": got [" & actual & "], expected [" & expected & "]"
    failures = failures + 1
  End If
End Sub

Dim o, a
Set o = CreateObject("NVRandom.ClsRandom")
o.FormStyle = 3 : Check "FormStyle", o.FormStyle, 3
o.PlayByPlayEnabled = True : Check "PlayByPlayEnabled", o.PlayByPlayEnabled, -1
o.PlayByPlayEnabled = False

' Arrays of variants, as scripts make them: a failure stops the script before its PASS line.
ReDim a(1, 2)
a(0, 0) = "ON" : a(1, 0) = "416" : a(0, 1) = "QC" : a(1, 1) = "514"
o.Prov_areacode = a
o.IPCurrencyList = Array("USD", "EUR")

o.DLLPath = Replace(WScript.Arguments(1), "/", "\")
CreateObject("WScript.Shell").Run """" & Replace(WScript.Arguments(0), "/", "\") & _
  """ --close ""Norvik - Biller / Funds Transfer Information""", 0, False
Check "ShowForm closed", o.ShowForm, 50000
If failures = 0 Then WScript.Echo "PASS properties.vbs"
