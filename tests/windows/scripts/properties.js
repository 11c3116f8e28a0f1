// JScript drives NVRandom.ClsRandom by its ProgID: its numbers reach a 16-bit property, and it
// sees the HRESULTs themselves. The last line "PASS properties.js" is what the test requires
// (Wine's cscript exits 0 when a script fails).
var failures = 0;
function check(what, actual, expected) {
  if (actual !== expected) {
    WScript.Echo("FAIL " + what + ": got [" + actual + "], expected [" + expected + "]");
    failures++;
  }
}
var o = new ActiveXObject("NVRandom.ClsRandom");
o.FormStyle = 2;
check("FormStyle", o.FormStyle, 2);
// The type library's conversion errors as DISP_E_*, the component's run-time errors in
// FACILITY_CONTROL.
function errorOf(action) {
  try {
    action();
  } catch (e) {
    return (e.number >>> 0).toString(16);
  }
  return "none";
}
check("text for an Integer", errorOf(function () { o.FormStyle = "abc"; }), "80020005");
check("a number for the province table",
      errorOf(function () { o.Prov_areacode = 5; }), "800a000d");
if (failures === 0) WScript.Echo("PASS properties.js");
