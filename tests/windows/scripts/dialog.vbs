' A script host shows the biller dialog modally; a person (the helper program close_dialog.exe,
' started first, standing in for one) presses Cancel. ShowForm then returns the close result of a
' cancelled dialog. Arguments: the helper's path, the installation folder.
' Wine's cscript exits 0 even when a script fails: the last line "PASS dialog.vbs" is required.
Option Explicit
Dim helper, install, o, shell, result
helper = Replace(WScript.Arguments(0), "/", "\")
install = Replace(WScript.Arguments(1), "/", "\")

Set o = CreateObject("NVRandom.ClsRandom")
o.DLLPath = install

Set shell = CreateObject("WScript.Shell")
shell.Run """" & helper & """ ""Norvik - Biller / Funds Transfer Information"" Cancel 20", 0, False
result = o.ShowForm
If result = 50000 Then
  WScript.Echo "PASS dialog.vbs"
Else
  WScript.Echo "FAIL ShowForm returned " & result & " (expected 50000: cancelled)"
End If
