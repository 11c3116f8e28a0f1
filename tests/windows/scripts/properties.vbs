' A script host drives NVRandom.ClsRandom by its ProgID: defaults, every readable property, the
' shared record, arrays, and the run-time error numbers. Wine's cscript exits 0 even when a script
' fails, so the last line "PASS properties.vbs" is what the test requires.
Option Explicit
Dim failures : failures = 0
Sub Check(what, actual, expected)
  If actual <> expected Then
    WScript.Echo "FAIL " & what & ": got [" & actual & "], expected [" & expected & "]"
    failures = failures + 1
  End If
End Sub

Dim o, o2, value, a, b
Set o = CreateObject("NVRandom.ClsRandom")
Check "WhatKindOfBiller default", o.WhatKindOfBiller, " "
Check "CurrencyCodeFromMain default", o.CurrencyCodeFromMain, "CAD"
Check "PayeeName default", o.PayeeName, ""

' Every property the host may read: a text with non-ASCII characters in, the same text out.
Sub RoundTrip(name, actual)
  Check name, actual, name & " " & Chr(233)
End Sub
o.PayeeName = "PayeeName " & Chr(233) : RoundTrip "PayeeName", o.PayeeName
o.PayeeBillAccount = "PayeeBillAccount " & Chr(233) : RoundTrip "PayeeBillAccount", o.PayeeBillAccount
o.PayeeStreet = "PayeeStreet " & Chr(233) : RoundTrip "PayeeStreet", o.PayeeStreet
o.PayeeCity = "PayeeCity " & Chr(233) : RoundTrip "PayeeCity", o.PayeeCity
o.PayeeProv = "PayeeProv " & Chr(233) : RoundTrip "PayeeProv", o.PayeeProv
o.PayeeCountry = "PayeeCountry " & Chr(233) : RoundTrip "PayeeCountry", o.PayeeCountry
o.PayeePostal = "PayeePostal " & Chr(233) : RoundTrip "PayeePostal", o.PayeePostal
o.PayeePhoneArea = "PayeePhoneArea " & Chr(233) : RoundTrip "PayeePhoneArea", o.PayeePhoneArea
o.PayeePhoneNumber = "PayeePhoneNumber " & Chr(233) : RoundTrip "PayeePhoneNumber", o.PayeePhoneNumber
o.PayeeFXPhoneNumber = "PayeeFXPhoneNumber " & Chr(233) : RoundTrip "PayeeFXPhoneNumber", o.PayeeFXPhoneNumber
o.PayeeFaxArea = "PayeeFaxArea " & Chr(233) : RoundTrip "PayeeFaxArea", o.PayeeFaxArea
o.PayeeFaxNumber = "PayeeFaxNumber " & Chr(233) : RoundTrip "PayeeFaxNumber", o.PayeeFaxNumber
o.PayeeFXFaxNumber = "PayeeFXFaxNumber " & Chr(233) : RoundTrip "PayeeFXFaxNumber", o.PayeeFXFaxNumber
o.PayeeEmail = "PayeeEmail " & Chr(233) : RoundTrip "PayeeEmail", o.PayeeEmail
o.PayeeWeb = "PayeeWeb " & Chr(233) : RoundTrip "PayeeWeb", o.PayeeWeb
o.PayeeContactName = "PayeeContactName " & Chr(233) : RoundTrip "PayeeContactName", o.PayeeContactName
o.PayeeBankId = "PayeeBankId " & Chr(233) : RoundTrip "PayeeBankId", o.PayeeBankId
o.PayeeBankTransit = "PayeeBankTransit " & Chr(233) : RoundTrip "PayeeBankTransit", o.PayeeBankTransit
o.PayeeBankAccount = "PayeeBankAccount " & Chr(233) : RoundTrip "PayeeBankAccount", o.PayeeBankAccount
o.PayeeIndBusnTag = "PayeeIndBusnTag " & Chr(233) : RoundTrip "PayeeIndBusnTag", o.PayeeIndBusnTag
o.PayeeIndBussFlg = "PayeeIndBussFlg " & Chr(233) : RoundTrip "PayeeIndBussFlg", o.PayeeIndBussFlg
o.PayeeBusinessNum = "PayeeBusinessNum " & Chr(233) : RoundTrip "PayeeBusinessNum", o.PayeeBusinessNum
o.PayeeDiscountsApply = "PayeeDiscountsApply " & Chr(233) : RoundTrip "PayeeDiscountsApply", o.PayeeDiscountsApply
o.PayeeCurrency = "PayeeCurrency " & Chr(233) : RoundTrip "PayeeCurrency", o.PayeeCurrency
o.PayeePhoneCountryCode = "PayeePhoneCountryCode " & Chr(233) : RoundTrip "PayeePhoneCountryCode", o.PayeePhoneCountryCode
o.PayeeFaxCountryCode = "PayeeFaxCountryCode " & Chr(233) : RoundTrip "PayeeFaxCountryCode", o.PayeeFaxCountryCode
o.PayeeFXBankName = "PayeeFXBankName " & Chr(233) : RoundTrip "PayeeFXBankName", o.PayeeFXBankName
o.PayeeFXBankAddress = "PayeeFXBankAddress " & Chr(233) : RoundTrip "PayeeFXBankAddress", o.PayeeFXBankAddress
o.PayeeFXBankCity = "PayeeFXBankCity " & Chr(233) : RoundTrip "PayeeFXBankCity", o.PayeeFXBankCity
o.PayeeFXBankProv = "PayeeFXBankProv " & Chr(233) : RoundTrip "PayeeFXBankProv", o.PayeeFXBankProv
o.PayeeFXBankCountry = "PayeeFXBankCountry " & Chr(233) : RoundTrip "PayeeFXBankCountry", o.PayeeFXBankCountry
o.PayeeFXBankAccount = "PayeeFXBankAccount " & Chr(233) : RoundTrip "PayeeFXBankAccount", o.PayeeFXBankAccount
o.PayeeFXBankSwift = "PayeeFXBankSwift " & Chr(233) : RoundTrip "PayeeFXBankSwift", o.PayeeFXBankSwift
o.WhatKindOfBiller = "WhatKindOfBiller " & Chr(233) : RoundTrip "WhatKindOfBiller", o.WhatKindOfBiller
o.CurrencyCodeFromMain = "CurrencyCodeFromMain " & Chr(233) : RoundTrip "CurrencyCodeFromMain", o.CurrencyCodeFromMain
o.DescCurrencyCodeFromMain = "DescCurrencyCodeFromMain " & Chr(233) : RoundTrip "DescCurrencyCodeFromMain", o.DescCurrencyCodeFromMain
o.FormTitleFromMain = "FormTitleFromMain " & Chr(233) : RoundTrip "FormTitleFromMain", o.FormTitleFromMain
o.USBillPaymentURL = "USBillPaymentURL " & Chr(233) : RoundTrip "USBillPaymentURL", o.USBillPaymentURL
o.FormStyle = 3 : Check "FormStyle", o.FormStyle, 3
o.PlayByPlayEnabled = True : Check "PlayByPlayEnabled", o.PlayByPlayEnabled, -1
o.PlayByPlayEnabled = False

' Every instance of the thread shares one record.
o.PayeeName = "ACME"
Set o2 = CreateObject("NVRandom.ClsRandom")
Check "shared PayeeName", o2.PayeeName, "ACME"

' Arrays of variants, as scripts make them.
ReDim a(1, 2)
a(0, 0) = "ON" : a(1, 0) = "416" : a(0, 1) = "QC" : a(1, 1) = "514"
o.Prov_areacode = a
o.IPCurrencyList = Array("USD", "EUR")
o.IPBillerCurrencies = Array("USD")
o.NVMemberType = 3
o.IPBillerNameAcctExist = True

' Wine's VBScript has no Execute: each failing statement stands in its own trapped block.
Dim number
ReDim b(1, 30)
On Error Resume Next
o.Prov_areacode = b : number = Err.Number : Err.Clear
Check "Prov_areacode past the table", number, 9
o.FormStyle = "abc" : number = Err.Number : Err.Clear
Check "text for an Integer", number, 13
value = o.DLLPath : number = Err.Number : Err.Clear
Check "read of a Let-only property", number, 438
o.NoSuchMember = 1 : number = Err.Number : Err.Clear
Check "no such member", number, 438
o.IPCurrencyList = 5 : number = Err.Number : Err.Clear
Check "a number for an array", number, 13
On Error GoTo 0

If failures = 0 Then WScript.Echo "PASS properties.vbs"
