' The saturation line: tables of phase equilibrium, computed independently to 12 digits.
Dim x, y, z, t
Set steam = CreateObject("Calvex32.ZvCalvex.3")

' 323.00 K
ok = steam.PSatT(x, 323.00)
Check "PSatT(x, 323.00)", x, 0.0122529012118, 1e-8
ok = steam.TSatP(x, 0.0122529012118)
Check "TSatP(x, 0.0122529012118)", x, 323.00, 1e-8
ok = steam.XT(x, 323.00)
Check "XT(x, 323.00)", x, 0.067973612293, 1e-10
ok = steam.HSatTQ(x, 323.00, 0)
Check "HSatTQ(x, 323.00, 0)", x, 208.699766289, 1e-7
ok = steam.HSatPQ(x, 0.0122529012118, 0)
Check "HSatPQ(x, 0.0122529012118, 0)", x, 208.699766289, 1e-7
ok = steam.HSatTQ(x, 323.00, 1)
Check "HSatTQ(x, 323.00, 1)", x, 2590.92480121, 1e-7
ok = steam.HSatPQ(x, 0.0122529012118, 1)
Check "HSatPQ(x, 0.0122529012118, 1)", x, 2590.92480121, 1e-7
ok = steam.SSatTQ(x, 323.00, 0)
Check "SSatTQ(x, 323.00, 0)", x, 0.701794709547, 1e-7
ok = steam.SSatPQ(x, 0.0122529012118, 0)
Check "SSatPQ(x, 0.0122529012118, 0)", x, 0.701794709547, 1e-7
ok = steam.SSatTQ(x, 323.00, 1)
Check "SSatTQ(x, 323.00, 1)", x, 8.07710441518, 1e-7
ok = steam.SSatPQ(x, 0.0122529012118, 1)
Check "SSatPQ(x, 0.0122529012118, 1)", x, 8.07710441518, 1e-7
ok = steam.USatTQ(x, 323.00, 0)
Check "USatTQ(x, 323.00, 0)", x, 208.687365306, 1e-7
ok = steam.USatPQ(x, 0.0122529012118, 0)
Check "USatPQ(x, 0.0122529012118, 0)", x, 208.687365306, 1e-7
ok = steam.USatTQ(x, 323.00, 1)
Check "USatTQ(x, 323.00, 1)", x, 2442.40475186, 1e-7
ok = steam.USatPQ(x, 0.0122529012118, 1)
Check "USatPQ(x, 0.0122529012118, 1)", x, 2442.40475186, 1e-7
ok = steam.RSatTQ(x, 323.00, 0)
Check "RSatTQ(x, 323.00, 0)", x, 988.058834691, 1e-7
ok = steam.RSatPQ(x, 0.0122529012118, 0)
Check "RSatPQ(x, 0.0122529012118, 0)", x, 988.058834691, 1e-7
ok = steam.RSatTQ(x, 323.00, 1)
Check "RSatTQ(x, 323.00, 1)", x, 0.0824999807447, 1e-7
ok = steam.RSatPQ(x, 0.0122529012118, 1)
Check "RSatPQ(x, 0.0122529012118, 1)", x, 0.0824999807447, 1e-7
ok = steam.VSatTQ(x, 323.00, 1)
Check "VSatTQ(x, 323.00, 1)", x, 1 / 0.0824999807447, 1e-7
ok = steam.VSatPQ(x, 0.0122529012118, 0)
Check "VSatPQ(x, 0.0122529012118, 0)", x, 1 / 988.058834691, 1e-7
ok = steam.HVLTSat_PQ(x, y, z, t, 0.0122529012118, 0.25)
Check "HVLTSat_PQ, x", x, 0.75 * 208.699766289 + 0.25 * 2590.92480121, 1e-7
Check "HVLTSat_PQ, y", y, 2590.92480121, 1e-7
Check "HVLTSat_PQ, z", z, 208.699766289, 1e-7
Check "HVLTSat_PQ, t", t, 323.00, 1e-7

' 422.68 K
ok = steam.PSatT(x, 422.68)
Check "PSatT(x, 422.68)", x, 0.46975345809, 1e-8
ok = steam.TSatP(x, 0.46975345809)
Check "TSatP(x, 0.46975345809)", x, 422.68, 1e-8
ok = steam.XT(x, 422.68)
Check "XT(x, 422.68)", x, 0.0488490655403, 1e-10
ok = steam.HSatTQ(x, 422.68, 0)
Check "HSatTQ(x, 422.68, 0)", x, 630.286201417, 1e-7
ok = steam.HSatPQ(x, 0.46975345809, 0)
Check "HSatPQ(x, 0.46975345809, 0)", x, 630.286201417, 1e-7
ok = steam.HSatTQ(x, 422.68, 1)
Check "HSatTQ(x, 422.68, 1)", x, 2745.81173437, 1e-7
ok = steam.HSatPQ(x, 0.46975345809, 1)
Check "HSatPQ(x, 0.46975345809, 1)", x, 2745.81173437, 1e-7
ok = steam.SSatTQ(x, 422.68, 0)
Check "SSatTQ(x, 422.68, 0)", x, 1.83728696232, 1e-7
ok = steam.SSatPQ(x, 0.46975345809, 0)
Check "SSatPQ(x, 0.46975345809, 0)", x, 1.83728696232, 1e-7
ok = steam.SSatTQ(x, 422.68, 1)
Check "SSatTQ(x, 422.68, 1)", x, 6.84231566715, 1e-7
ok = steam.SSatPQ(x, 0.46975345809, 1)
Check "SSatPQ(x, 0.46975345809, 1)", x, 6.84231566715, 1e-7
ok = steam.USatTQ(x, 422.68, 0)
Check "USatTQ(x, 422.68, 0)", x, 629.774206445, 1e-7
ok = steam.USatPQ(x, 0.46975345809, 0)
Check "USatPQ(x, 0.46975345809, 0)", x, 629.774206445, 1e-7
ok = steam.USatTQ(x, 422.68, 1)
Check "USatTQ(x, 422.68, 1)", x, 2559.05955615, 1e-7
ok = steam.USatPQ(x, 0.46975345809, 1)
Check "USatPQ(x, 0.46975345809, 1)", x, 2559.05955615, 1e-7
ok = steam.RSatTQ(x, 422.68, 0)
Check "RSatTQ(x, 422.68, 0)", x, 917.496232483, 1e-7
ok = steam.RSatPQ(x, 0.46975345809, 0)
Check "RSatPQ(x, 0.46975345809, 0)", x, 917.496232483, 1e-7
ok = steam.RSatTQ(x, 422.68, 1)
Check "RSatTQ(x, 422.68, 1)", x, 2.51538409114, 1e-7
ok = steam.RSatPQ(x, 0.46975345809, 1)
Check "RSatPQ(x, 0.46975345809, 1)", x, 2.51538409114, 1e-7
ok = steam.VSatTQ(x, 422.68, 1)
Check "VSatTQ(x, 422.68, 1)", x, 1 / 2.51538409114, 1e-7
ok = steam.VSatPQ(x, 0.46975345809, 0)
Check "VSatPQ(x, 0.46975345809, 0)", x, 1 / 917.496232483, 1e-7
ok = steam.HVLTSat_PQ(x, y, z, t, 0.46975345809, 0.25)
Check "HVLTSat_PQ, x", x, 0.75 * 630.286201417 + 0.25 * 2745.81173437, 1e-7
Check "HVLTSat_PQ, y", y, 2745.81173437, 1e-7
Check "HVLTSat_PQ, z", z, 630.286201417, 1e-7
Check "HVLTSat_PQ, t", t, 422.68, 1e-7

' 547.28 K
ok = steam.PSatT(x, 547.28)
Check "PSatT(x, 547.28)", x, 5.86410574445, 1e-8
ok = steam.TSatP(x, 5.86410574445)
Check "TSatP(x, 5.86410574445)", x, 547.28, 1e-8
ok = steam.XT(x, 547.28)
Check "XT(x, 547.28)", x, 0.0203780840133, 1e-10
ok = steam.HSatTQ(x, 547.28, 0)
Check "HSatTQ(x, 547.28, 0)", x, 1205.67030068, 1e-7
ok = steam.HSatPQ(x, 5.86410574445, 0)
Check "HSatPQ(x, 5.86410574445, 0)", x, 1205.67030068, 1e-7
ok = steam.HSatTQ(x, 547.28, 1)
Check "HSatTQ(x, 547.28, 1)", x, 2785.39498899, 1e-7
ok = steam.HSatPQ(x, 5.86410574445, 1)
Check "HSatPQ(x, 5.86410574445, 1)", x, 2785.39498899, 1e-7
ok = steam.SSatTQ(x, 547.28, 0)
Check "SSatTQ(x, 547.28, 0)", x, 3.01296480784, 1e-7
ok = steam.SSatPQ(x, 5.86410574445, 0)
Check "SSatPQ(x, 5.86410574445, 0)", x, 3.01296480784, 1e-7
ok = steam.SSatTQ(x, 547.28, 1)
Check "SSatTQ(x, 547.28, 1)", x, 5.89946657717, 1e-7
ok = steam.SSatPQ(x, 5.86410574445, 1)
Check "SSatPQ(x, 5.86410574445, 1)", x, 5.89946657717, 1e-7
ok = steam.USatTQ(x, 547.28, 0)
Check "USatTQ(x, 547.28, 0)", x, 1197.96172913, 1e-7
ok = steam.USatPQ(x, 5.86410574445, 0)
Check "USatPQ(x, 5.86410574445, 0)", x, 1197.96172913, 1e-7
ok = steam.USatTQ(x, 547.28, 1)
Check "USatTQ(x, 547.28, 1)", x, 2590.36715513, 1e-7
ok = steam.USatPQ(x, 5.86410574445, 1)
Check "USatPQ(x, 5.86410574445, 1)", x, 2590.36715513, 1e-7
ok = steam.RSatTQ(x, 547.28, 0)
Check "RSatTQ(x, 547.28, 0)", x, 760.725344119, 1e-7
ok = steam.RSatPQ(x, 5.86410574445, 0)
Check "RSatPQ(x, 5.86410574445, 0)", x, 760.725344119, 1e-7
ok = steam.RSatTQ(x, 547.28, 1)
Check "RSatTQ(x, 547.28, 1)", x, 30.0680453056, 1e-7
ok = steam.RSatPQ(x, 5.86410574445, 1)
Check "RSatPQ(x, 5.86410574445, 1)", x, 30.0680453056, 1e-7
ok = steam.VSatTQ(x, 547.28, 1)
Check "VSatTQ(x, 547.28, 1)", x, 1 / 30.0680453056, 1e-7
ok = steam.VSatPQ(x, 5.86410574445, 0)
Check "VSatPQ(x, 5.86410574445, 0)", x, 1 / 760.725344119, 1e-7
ok = steam.HVLTSat_PQ(x, y, z, t, 5.86410574445, 0.25)
Check "HVLTSat_PQ, x", x, 0.75 * 1205.67030068 + 0.25 * 2785.39498899, 1e-7
Check "HVLTSat_PQ, y", y, 2785.39498899, 1e-7
Check "HVLTSat_PQ, z", z, 1205.67030068, 1e-7
Check "HVLTSat_PQ, t", t, 547.28, 1e-7

' 609.58 K
ok = steam.PSatT(x, 609.58)
Check "PSatT(x, 609.58)", x, 13.9519931239, 1e-8
ok = steam.TSatP(x, 13.9519931239)
Check "TSatP(x, 13.9519931239)", x, 609.58, 1e-8
ok = steam.XT(x, 609.58)
Check "XT(x, 609.58)", x, 0.0063660661291, 1e-10
ok = steam.HSatTQ(x, 609.58, 0)
Check "HSatTQ(x, 609.58, 0)", x, 1568.53292403, 1e-7
ok = steam.HSatPQ(x, 13.9519931239, 0)
Check "HSatPQ(x, 13.9519931239, 0)", x, 1568.53292403, 1e-7
ok = steam.HSatTQ(x, 609.58, 1)
Check "HSatTQ(x, 609.58, 1)", x, 2638.33972817, 1e-7
ok = steam.HSatPQ(x, 13.9519931239, 1)
Check "HSatPQ(x, 13.9519931239, 1)", x, 2638.33972817, 1e-7
ok = steam.SSatTQ(x, 609.58, 0)
Check "SSatTQ(x, 609.58, 0)", x, 3.61906335671, 1e-7
ok = steam.SSatPQ(x, 13.9519931239, 0)
Check "SSatPQ(x, 13.9519931239, 0)", x, 3.61906335671, 1e-7
ok = steam.SSatTQ(x, 609.58, 1)
Check "SSatTQ(x, 609.58, 1)", x, 5.37405335662, 1e-7
ok = steam.SSatPQ(x, 13.9519931239, 1)
Check "SSatPQ(x, 13.9519931239, 1)", x, 5.37405335662, 1e-7
ok = steam.USatTQ(x, 609.58, 0)
Check "USatTQ(x, 609.58, 0)", x, 1546.1057185, 1e-7
ok = steam.USatPQ(x, 13.9519931239, 0)
Check "USatPQ(x, 13.9519931239, 0)", x, 1546.1057185, 1e-7
ok = steam.USatTQ(x, 609.58, 1)
Check "USatTQ(x, 609.58, 1)", x, 2477.28695586, 1e-7
ok = steam.USatPQ(x, 13.9519931239, 1)
Check "USatPQ(x, 13.9519931239, 1)", x, 2477.28695586, 1e-7
ok = steam.RSatTQ(x, 609.58, 0)
Check "RSatTQ(x, 609.58, 0)", x, 622.101273655, 1e-7
ok = steam.RSatPQ(x, 13.9519931239, 0)
Check "RSatPQ(x, 13.9519931239, 0)", x, 622.101273655, 1e-7
ok = steam.RSatTQ(x, 609.58, 1)
Check "RSatTQ(x, 609.58, 1)", x, 86.6299469623, 1e-7
ok = steam.RSatPQ(x, 13.9519931239, 1)
Check "RSatPQ(x, 13.9519931239, 1)", x, 86.6299469623, 1e-7
ok = steam.VSatTQ(x, 609.58, 1)
Check "VSatTQ(x, 609.58, 1)", x, 1 / 86.6299469623, 1e-7
ok = steam.VSatPQ(x, 13.9519931239, 0)
Check "VSatPQ(x, 13.9519931239, 0)", x, 1 / 622.101273655, 1e-7
ok = steam.HVLTSat_PQ(x, y, z, t, 13.9519931239, 0.25)
Check "HVLTSat_PQ, x", x, 0.75 * 1568.53292403 + 0.25 * 2638.33972817, 1e-7
Check "HVLTSat_PQ, y", y, 2638.33972817, 1e-7
Check "HVLTSat_PQ, z", z, 1568.53292403, 1e-7
Check "HVLTSat_PQ, t", t, 609.58, 1e-7

' beyond the critical point there is none
ok = steam.PSatT(x, 650)
Check "no success", ok, 0, 0
Check "the reason", InStr(steam.LastError, "Temperature parameter out of range") > 0, True, 0

Finish 102
