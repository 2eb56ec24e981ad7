// A script language without arguments by reference: results come through objects and arrays.
var passed = 0, failed = 0;

function check(name, got, expected, tolerance) {
  var good = tolerance ? Math.abs(got - expected) <= tolerance * Math.abs(expected)
                       : got === expected;
  if (good) {
    ++passed;
  } else {
    ++failed;
    WScript.Echo("FAILED " + name + ": " + got + ", expected " + expected);
  }
}

var steam = new ActiveXObject("Calvex32.ZvCalvex.3");

// constants: L. Haar, J. S. Gallagher, G. S. Kell, NBS/NRC Steam Tables, 1984
check("CritT", steam.CritT(), 647.126);
check("CritP", steam.CritP(), 22.055);
check("CritR", steam.CritR(), 321.8870385);
check("TripleT", steam.TripleT(), 273.16);
check("MolWeight", steam.MolWeight(), 18.0152);
check("VersionStr", steam.VersionStr, "@CALVEX_VERSION@");

// an output that is an object gets the property `value`
var h = {}, t = {}, q = {}, s = {}, ok;
ok = steam.HPT(h, 0.9934, 468.79);
check("HPT succeeds", ok, 1);
check("HPT", h.value, 2817.24632869232, 1e-7);
h.value = 1;
ok = steam.HPT(h, 53.7316, 619.03);
check("HPT into the same object", h.value, 1550.08436864542, 1e-7);
ok = steam.QTS_PH(q, t, s, 0.46975345809, 0.75 * 630.286201417 + 0.25 * 2745.81173437);
check("quality", q.value, 0.25, 1e-7);
check("temperature", t.value, 422.68, 1e-8);
check("entropy", s.value, 0.75 * 1.83728696232 + 0.25 * 6.84231566715, 1e-7);

// on failure it gets nothing
var none = {};
ok = steam.HPT(none, 10, 100);
check("no success", ok, 0);
check("no property", "value" in none, false);
check("the reason", steam.LastError,
      "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");

// texts
var unit = {};
ok = steam.SetUserUnit("T", "C");
ok = steam.GetUserUnit("T", unit);
check("a text", unit.value, "C");
ok = steam.SetUserUnit("T", "K");

// arrays
var a = {};
ok = steam.XLFlashVessel(5, 1000, 0.46975345809, "T_Vap,M_Vap", a);
check("XLFlashVessel succeeds", ok, 1);
var rows = new VBArray(a.value);
check("dimensions", rows.dimensions(), 2);
check("rows", rows.ubound(1), 1);
check("columns", rows.ubound(2), 2);
check("label", rows.getItem(0, 0), "Steam Temperature");
check("temperature", rows.getItem(0, 1), 422.68, 1e-8);
check("unit", rows.getItem(0, 2), "K");
check("vapour", rows.getItem(1, 1),
      5 * (1000 - 630.286201417) / (2745.81173437 - 630.286201417), 1e-7);

// settings
steam.SolverTol = 1e-7;
steam.SolverTol = 1;
check("a refused setting keeps its value", steam.SolverTol, 1e-7);
check("and tells", steam.LastError, "Invalid solver tolerance specified.");

// errors are exceptions
var thrown = null;
try {
  steam.HPT(h, "ten", 773.15);
} catch (e) {
  thrown = e;
}
check("a text that is no number", thrown !== null, true);
thrown = null;
try {
  steam.HPT(h, 10);
} catch (e) {
  thrown = e;
}
check("an argument too few", thrown !== null, true);

if (failed === 0 && passed === 28) {
  WScript.Echo(passed + " checks passed");
  WScript.Quit(0);
}
WScript.Echo(failed + " of 28 checks failed, " + passed + " passed");
WScript.Quit(1);
