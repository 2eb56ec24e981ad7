"""A Rankine cycle with reheat: its efficiency, and its picture over temperature and entropy."""
# %%
import os
import pathlib

import numpy as np

import calvex
from calvex import plot

steam = calvex.Engine(T="°C", P="bar")

# %% Boiler 150 bar and 540 °C, reheat at 35 bar, condenser 0.05 bar
P_boiler, P_reheat, P_condenser, T_live = 150.0, 35.0, 0.05, 540.0

live = steam.state(P=P_boiler, T=T_live)
high = steam.TurbineA(live.h, P_boiler, P_reheat, 0.87, 1.0)
cold = steam.state(P=P_reheat, h=high.HOut)
hot = steam.state(P=P_reheat, T=T_live)
# The low-pressure part in 30 steps, for the curve: an array goes in, arrays come out.
P = np.geomspace(P_reheat, P_condenser, 31)[1:]
low = steam.TurbineA(hot.h, P_reheat, P, 0.88, 1.0)
expansion = steam.state(P=P, h=low.HOut)
water = steam.state(P=P_condenser, x=0)
pump = steam.WaterPump(water.h, P_condenser, P_boiler, 1.0, 0.8)
feed = steam.state(P=P_boiler, h=pump.HOut)

# %% The balance for 1 kg/s
heat = (live.h - feed.h) + (hot.h - cold.h)
rejected = expansion.h[-1] - water.h
work = high.Power + low.Power[-1] - pump.Power
print(f"heat in       {heat:8.1f} kJ/kg")
print(f"heat out      {rejected:8.1f} kJ/kg")
print(f"work          {work:8.1f} kJ/kg, of which the pump takes {pump.Power:.1f}")
print(f"efficiency    {100 * work / heat:8.2f} %")
print(f"exhaust       x = {expansion.x[-1]:.3f}")

assert np.isclose(heat - rejected, work, rtol=1e-6)  # the first law over the cycle
assert work / heat < 1 - (steam.TSatP(P_condenser) + 273.15) / (T_live + 273.15)  # Carnot's

# %% Its picture
diagram = plot.Ts(steam)
diagram.draw([("1", live), ("2", cold), ("3", hot), ("4", expansion), ("5", water), ("6", feed)],
             closed=True)
if "PICTURES" in os.environ:
    diagram.save(pathlib.Path(os.environ["PICTURES"]) / "reheat-cycle.svg")
