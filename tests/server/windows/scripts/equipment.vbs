' Equipment models between tabulated states, with the balances worked out here.
Dim power, temperature, enthalpy, quality, entropy, flow, vapour, liquid, duty, x, outletH

' steam at 0.9934 MPa and 468.79 K; saturated states at 0.100206249895 MPa (372.84 K)
Const inletH = 2817.24632869232
Const inletS = 6.67459716871144
Const liquidH = 417.755495099
Const vapourH = 2675.23451875
Const liquidS = 1.30337902873
Const vapourS = 7.358198854
Dim ideal
ideal = liquidH + (inletS - liquidS) / (vapourS - liquidS) * (vapourH - liquidH)
outletH = inletH - 0.8 * (inletH - ideal)

Set steam = CreateObject("Calvex32.ZvCalvex.3")

ok = steam.TurbineA(power, temperature, enthalpy, quality, inletH, 0.9934, 0.100206249895, 0.8, 10)
Check "TurbineA succeeds", ok, 1, 0
Check "its power", power, 10 * (inletH - outletH), 1E-6
Check "its outlet temperature", temperature, 372.84, 1E-8
Check "its outlet enthalpy", enthalpy, outletH, 1E-7
Check "its outlet quality", quality, (outletH - liquidH) / (vapourH - liquidH), 1E-6

ok = steam.TurbineB(flow, temperature, enthalpy, quality, inletH, 0.9934, 0.100206249895, 0.8, 5000)
Check "TurbineB finds the flow", flow, 5000 / (inletH - outletH), 1E-6

ok = steam.TurbineE(power, temperature, enthalpy, quality, entropy, inletH, 0.9934, 0.100206249895, 1, 1, inletS)
Check "TurbineE without losses", enthalpy, ideal, 1E-7
Check "keeps the entropy", entropy, inletS, 1E-7

' two outlets at one pressure are one turbine after the other
Dim p2, t2, h2, q2, t1, h1, q1
ok = steam.TurbineA2(p2, t1, t2, h1, h2, q1, q2, inletH, 0.9934, 0.100206249895, 0.100206249895, 0.8, 0.7, 6, 4)
Check "TurbineA2's first outlet", h1, outletH, 1E-7
Check "TurbineA2's power", p2, 10 * (inletH - outletH), 1E-6

' the reverse: from wet steam of the same entropy up to the first state
ok = steam.CompressorA(power, temperature, enthalpy, quality, ideal, 0.100206249895, 0.9934, 1, 2)
Check "CompressorA's outlet enthalpy", enthalpy, inletH, 1E-7
Check "CompressorA's outlet temperature", temperature, 468.79, 1E-6
Check "CompressorA's power", power, 2 * (inletH - ideal), 1E-6

' 1000 kJ/kg at 0.46975345809 MPa (422.68 K) is wet
quality = (1000 - 630.286201417) / (2745.81173437 - 630.286201417)
ok = steam.FlashVessel(temperature, vapour, liquid, h1, h2, 5, 1000, 0.46975345809)
Check "FlashVessel's temperature", temperature, 422.68, 1E-8
Check "FlashVessel's vapour", vapour, 5 * quality, 1E-7
Check "FlashVessel's liquid", liquid, 5 * (1 - quality), 1E-7
Check "FlashVessel's vapour enthalpy", h1, 2745.81173437, 1E-8
Check "FlashVessel's liquid enthalpy", h2, 630.286201417, 1E-8
ok = steam.LetDownValve(temperature, x, 1000, 5, 0.46975345809)
Check "LetDownValve's temperature", temperature, 422.68, 1E-8
Check "LetDownValve's quality", x, quality, 1E-7

' water at 1.2566 MPa and 315.34 K: 177.762394602252 kJ/kg, 991.860187433813 kg/m3
ok = steam.WaterPump(enthalpy, power, 177.762394602252, 1.2566, 6, 3, 0.7)
Check "WaterPump's power", power, 3 * (6 - 1.2566) * 1000 / 991.860187433813 / 0.7, 1E-6

' steam at 3.2776 MPa and 635.28 K: 3137.45826150827 kJ/kg
ok = steam.Boiler(x, duty, enthalpy, h1, flow, 500, 10, 635.28, 3.2776, 0)
Check "Boiler's steam", enthalpy, 3137.45826150827, 1E-7
Check "Boiler's feed", flow, 10, 1E-12
Check "Boiler's duty", duty, 10 * (3137.45826150827 - 500), 1E-7
Dim fired
ok = steam.Boiler_B(x, duty, enthalpy, h1, flow, fired, 500, 10, 635.28, 3.2776, 0, 0.85)
Check "Boiler_B's fired heat", fired, 10 * (3137.45826150827 - 500) / 0.85, 1E-7

' (T - 1)(T - 2)(T - 3)(T - 4)(T - 5)
ok = steam.SolvePoly5(x, -120, 274, -225, 85, -15, 1, 3.1)
Check "SolvePoly5's root", x, 3, 1E-8

' a machine that there is not
x = "before"
ok = steam.TurbineA(x, temperature, enthalpy, quality, inletH, 0.9934, 0.100206249895, 1.2, 10)
Check "no efficiency above 1", ok, 0, 0
Check "nothing written", x, "before", 0
Check "the reason", InStr(steam.LastError, "Efficiency parameter out of range") > 0, True, 0

Finish 29
