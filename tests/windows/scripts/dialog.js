// A script host shows the biller dialog modally; a person (the helper program close_dialog.exe,
// started first, standing in for one) presses Cancel. ShowForm then returns the close result of a
// cancelled dialog. Arguments: the helper's path, the installation folder.
// Wine's cscript exits 0 even when a script fails: the last line "PASS dialog.js" is required.
var helper = WScript.Arguments.Item(0).replace(/\//g, "\\");
var install = WScript.Arguments.Item(1).replace(/\//g, "\\");

var o = new ActiveXObject("NVRandom.ClsRandom");
o.DLLPath = install;
o.Provpostalstr = "ABTBCVMBRNBENLANSBNTXNUXONKONLONMONNONPPEUQCGQCHQCJSKSYTY";
o.PayeeName = "ACME HYDRO";
o.PayeeStreet = "1 MAIN ST";
o.PayeeCity = "OTTAWA";
o.PayeeProv = "ON";
o.PayeeCountry = "CA";
o.PayeeCurrency = "CAD";

var shell = new ActiveXObject("WScript.Shell");
shell.Run("\"" + helper + "\" \"Norvik - Biller / Funds Transfer Information\" Cancel 20", 0,
          false);
var result = o.ShowForm();
if (result == 50000) {
  WScript.Echo("PASS dialog.js");
} else {
  WScript.Echo("FAIL ShowForm returned " + result + " (expected 50000: cancelled)");
}
