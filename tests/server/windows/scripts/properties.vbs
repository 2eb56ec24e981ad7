' Properties of single states: tables of the fundamental equation, computed independently.
Dim x, y, z
Set steam = CreateObject("Calvex32.ZvCalvex.3")

' steam at 0.9934 MPa and 468.79 K
ok = steam.HPT(x, 0.9934, 468.79)
Check "HPT succeeds", ok, 1, 1e-15
Check "HPT", x, 2817.24632869232, 1e-7
ok = steam.SPT(x, 0.9934, 468.79)
Check "SPT succeeds", ok, 1, 1e-15
Check "SPT", x, 6.67459716871144, 1e-7
ok = steam.UPT(x, 0.9934, 468.79)
Check "UPT succeeds", ok, 1, 1e-15
Check "UPT", x, 2613.69717597416, 1e-7
ok = steam.APT(x, 0.9934, 468.79)
Check "APT succeeds", ok, 1, 1e-15
Check "APT", x, -515.287230746077, 1e-7
ok = steam.GPT(x, 0.9934, 468.79)
Check "GPT succeeds", ok, 1, 1e-15
Check "GPT", x, -311.738078027916, 1e-7
ok = steam.RPT(x, 0.9934, 468.79)
Check "RPT succeeds", ok, 1, 1e-15
Check "RPT", x, 4.88039368739346, 1e-7
ok = steam.VPT(x, 0.9934, 468.79)
Check "VPT succeeds", ok, 1, 1e-15
Check "VPT", x, 0.204901502635556, 1e-7
ok = steam.CPT(x, 0.9934, 468.79)
Check "CPT succeeds", ok, 1, 1e-15
Check "CPT", x, 2.42412857204784, 1e-7
ok = steam.DPT(x, 0.9934, 468.79)
Check "DPT succeeds", ok, 1, 1e-15
Check "DPT", x, 1.7397030338384, 1e-7
ok = steam.ZPT(x, 0.9934, 468.79)
Check "ZPT succeeds", ok, 1, 1e-15
Check "ZPT", x, 0.940802693338005, 1e-7
ok = steam.WPT(x, 0.9934, 468.79)
Check "WPT succeeds", ok, 1, 1e-15
Check "WPT", x, 514.91844955077, 1e-7
ok = steam.IPT(x, 0.9934, 468.79)
Check "IPT succeeds", ok, 1, 1e-15
Check "IPT", x, -61.1705302165955, 1e-7
ok = steam.JPT(x, 0.9934, 468.79)
Check "JPT succeeds", ok, 1, 1e-15
Check "JPT", x, 25.2340288060382, 1e-7
ok = steam.BPT(x, 0.9934, 468.79)
Check "BPT succeeds", ok, 1, 1e-15
Check "BPT", x, 0.00276997433717354, 1e-7
ok = steam.LPT(x, 0.9934, 468.79)
Check "LPT succeeds", ok, 1, 1e-15
Check "LPT", x, 1.07683401874249, 1e-7
ok = steam.MPT(x, 0.9934, 468.79)
Check "MPT succeeds", ok, 1, 1e-15
Check "MPT", x, 1.57479650887031e-5, 1e-7
ok = steam.KPT(x, 0.9934, 468.79)
Check "KPT succeeds", ok, 1, 1e-15
Check "KPT", x, 0.0369732260329782, 1e-7
ok = steam.NPT(x, 0.9934, 468.79)
Check "NPT succeeds", ok, 1, 1e-15
Check "NPT", x, 1.03250638959897, 1e-7
ok = steam.EPT(x, 0.9934, 468.79)
Check "EPT succeeds", ok, 1, 1e-15
Check "EPT", x, 1.02505588547791, 1e-7

' compressed water at 53.7316 MPa and 619.03 K
ok = steam.HPT(x, 53.7316, 619.03)
Check "HPT succeeds", ok, 1, 1e-15
Check "HPT", x, 1550.08436864542, 1e-7
ok = steam.SPT(x, 53.7316, 619.03)
Check "SPT succeeds", ok, 1, 1e-15
Check "SPT", x, 3.49251350034666, 1e-7
ok = steam.UPT(x, 53.7316, 619.03)
Check "UPT succeeds", ok, 1, 1e-15
Check "UPT", x, 1474.16395432466, 1e-7
ok = steam.APT(x, 53.7316, 619.03)
Check "APT succeeds", ok, 1, 1e-15
Check "APT", x, -687.806677794938, 1e-7
ok = steam.GPT(x, 53.7316, 619.03)
Check "GPT succeeds", ok, 1, 1e-15
Check "GPT", x, -611.886263474176, 1e-7
ok = steam.RPT(x, 53.7316, 619.03)
Check "RPT succeeds", ok, 1, 1e-15
Check "RPT", x, 707.735863676733, 1e-7
ok = steam.VPT(x, 53.7316, 619.03)
Check "VPT succeeds", ok, 1, 1e-15
Check "VPT", x, 0.00141295651573305, 1e-7
ok = steam.CPT(x, 53.7316, 619.03)
Check "CPT succeeds", ok, 1, 1e-15
Check "CPT", x, 5.2220174038969, 1e-7
ok = steam.DPT(x, 53.7316, 619.03)
Check "DPT succeeds", ok, 1, 1e-15
Check "DPT", x, 2.90881569735596, 1e-7
ok = steam.ZPT(x, 53.7316, 619.03)
Check "ZPT succeeds", ok, 1, 1e-15
Check "ZPT", x, 0.265738491185382, 1e-7
ok = steam.WPT(x, 53.7316, 619.03)
Check "WPT succeeds", ok, 1, 1e-15
Check "WPT", x, 1025.72065857877, 1e-7
ok = steam.IPT(x, 53.7316, 619.03)
Check "IPT succeeds", ok, 1, 1e-15
Check "IPT", x, -0.795675428130352, 1e-7
ok = steam.JPT(x, 53.7316, 619.03)
Check "JPT succeeds", ok, 1, 1e-15
Check "JPT", x, 0.152369355861699, 1e-7
ok = steam.BPT(x, 53.7316, 619.03)
Check "BPT succeeds", ok, 1, 1e-15
Check "BPT", x, 0.00252512485070867, 1e-7
ok = steam.LPT(x, 53.7316, 619.03)
Check "LPT succeeds", ok, 1, 1e-15
Check "LPT", x, 0.00241097496675212, 1e-7
ok = steam.MPT(x, 53.7316, 619.03)
Check "MPT succeeds", ok, 1, 1e-15
Check "MPT", x, 8.55472207251244e-5, 1e-7
ok = steam.KPT(x, 53.7316, 619.03)
Check "KPT succeeds", ok, 1, 1e-15
Check "KPT", x, 0.555446061076386, 1e-7
ok = steam.NPT(x, 53.7316, 619.03)
Check "NPT succeeds", ok, 1, 1e-15
Check "NPT", x, 0.804270849658927, 1e-7
ok = steam.EPT(x, 53.7316, 619.03)
Check "EPT succeeds", ok, 1, 1e-15
Check "EPT", x, 18.2661984111275, 1e-7

' the same states found from other pairs
ok = steam.TPH(x, 0.9934, 2817.24632869232)
Check "TPH", x, 468.79, 1e-7
ok = steam.TPS(x, 0.9934, 6.67459716871144)
Check "TPS", x, 468.79, 1e-7
ok = steam.TPU(x, 0.9934, 2613.69717597416)
Check "TPU", x, 468.79, 1e-7
ok = steam.TPR(x, 0.9934, 4.88039368739346)
Check "TPR", x, 468.79, 1e-7
ok = steam.TPV(x, 0.9934, 0.204901502635556)
Check "TPV", x, 468.79, 1e-7
ok = steam.PTH(x, 468.79, 2817.24632869232)
Check "PTH", x, 0.9934, 1e-7
ok = steam.PTS(x, 468.79, 6.67459716871144)
Check "PTS", x, 0.9934, 1e-7
ok = steam.PTR(x, 468.79, 4.88039368739346)
Check "PTR", x, 0.9934, 1e-7
ok = steam.PTV(x, 468.79, 0.204901502635556)
Check "PTV", x, 0.9934, 1e-7
ok = steam.HPS(x, 0.9934, 6.67459716871144)
Check "HPS", x, 2817.24632869232, 1e-7
ok = steam.HTV(x, 468.79, 0.204901502635556)
Check "HTV", x, 2817.24632869232, 1e-7
ok = steam.STH(x, 468.79, 2817.24632869232)
Check "STH", x, 6.67459716871144, 1e-7
ok = steam.UPS(x, 0.9934, 6.67459716871144)
Check "UPS", x, 2613.69717597416, 1e-7
ok = steam.RPH(x, 0.9934, 2817.24632869232)
Check "RPH", x, 4.88039368739346, 1e-7
ok = steam.VPS(x, 0.9934, 6.67459716871144)
Check "VPS", x, 0.204901502635556, 1e-7
ok = steam.APS(x, 0.9934, 6.67459716871144)
Check "APS", x, -515.287230746077, 1e-7
ok = steam.GTR(x, 468.79, 4.88039368739346)
Check "GTR", x, -311.738078027916, 1e-7
ok = steam.TPH(x, 53.7316, 1550.08436864542)
Check "TPH", x, 619.03, 1e-7
ok = steam.TPS(x, 53.7316, 3.49251350034666)
Check "TPS", x, 619.03, 1e-7
ok = steam.TPU(x, 53.7316, 1474.16395432466)
Check "TPU", x, 619.03, 1e-7
ok = steam.TPR(x, 53.7316, 707.735863676733)
Check "TPR", x, 619.03, 1e-7
ok = steam.TPV(x, 53.7316, 0.00141295651573305)
Check "TPV", x, 619.03, 1e-7
ok = steam.PTS(x, 619.03, 3.49251350034666)
Check "PTS", x, 53.7316, 1e-7
ok = steam.PTR(x, 619.03, 707.735863676733)
Check "PTR", x, 53.7316, 1e-7
ok = steam.PTV(x, 619.03, 0.00141295651573305)
Check "PTV", x, 53.7316, 1e-7
ok = steam.HPS(x, 53.7316, 3.49251350034666)
Check "HPS", x, 1550.08436864542, 1e-7
ok = steam.HTV(x, 619.03, 0.00141295651573305)
Check "HTV", x, 1550.08436864542, 1e-7
ok = steam.UPS(x, 53.7316, 3.49251350034666)
Check "UPS", x, 1474.16395432466, 1e-7
ok = steam.RPH(x, 53.7316, 1550.08436864542)
Check "RPH", x, 707.735863676733, 1e-7
ok = steam.VPS(x, 53.7316, 3.49251350034666)
Check "VPS", x, 0.00141295651573305, 1e-7
ok = steam.APS(x, 53.7316, 3.49251350034666)
Check "APS", x, -687.806677794938, 1e-7
ok = steam.GTR(x, 619.03, 707.735863676733)
Check "GTR", x, -611.886263474176, 1e-7

' wet steam of quality 1/4 at 422.68 K, between its two saturated states
ok = steam.QPH(x, 0.46975345809, 0.75 * 630.286201417 + 0.25 * 2745.81173437)
Check "QPH", x, 0.25, 1e-7
ok = steam.QTS(x, 422.68, 0.75 * 1.83728696232 + 0.25 * 6.84231566715)
Check "QTS", x, 0.25, 1e-7
ok = steam.SPH(x, 0.46975345809, 0.75 * 630.286201417 + 0.25 * 2745.81173437)
Check "SPH", x, 0.75 * 1.83728696232 + 0.25 * 6.84231566715, 1e-7
ok = steam.TPH(x, 0.46975345809, 0.75 * 630.286201417 + 0.25 * 2745.81173437)
Check "TPH", x, 422.68, 1e-7
ok = steam.HPTQ(x, 0.46975345809, 422.68, 0.25)
Check "HPTQ", x, 0.75 * 630.286201417 + 0.25 * 2745.81173437, 1e-7
ok = steam.QT_PH(x, y, 0.46975345809, 0.75 * 630.286201417 + 0.25 * 2745.81173437)
Check "quality of QT_PH", x, 0.25, 1e-7
Check "temperature of QT_PH", y, 422.68, 1e-7
ok = steam.QTS_PH(x, y, z, 0.46975345809, 0.75 * 630.286201417 + 0.25 * 2745.81173437)
Check "quality of QTS_PH", x, 0.25, 1e-7
Check "temperature of QTS_PH", y, 422.68, 1e-7
Check "entropy of QTS_PH", z, 0.75 * 1.83728696232 + 0.25 * 6.84231566715, 1e-7

' constants
Check "CritT", steam.CritT, 647.126, 1e-15
Check "CritP", steam.CritP, 22.055, 1e-15
Check "CritR", steam.CritR, 321.8870385, 1e-15
Check "CritV", steam.CritV, 1 / 321.8870385, 1e-15
Check "CritZ", steam.CritZ, 22055 / (321.8870385 * 0.461522 * 647.126), 1e-14
Check "TripleT", steam.TripleT, 273.16, 1e-15
Check "TripleP", steam.TripleP, 0.00061173, 1e-15
Check "MolWeight", steam.MolWeight(), 18.0152, 1e-15

' a state that there is not: no success, and the variable stays as it was
x = "before"
ok = steam.HPT(x, 10, 100)
Check "no success", ok, 0, 0
Check "nothing written", x, "before", 0
Check "the reason", steam.LastError, "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).", 0

Finish 129
