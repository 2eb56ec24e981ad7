"""An expansion line: a turbine stage by stage, from live steam to the condenser.

The stages have the isentropic efficiencies that are measured; the line through the states between
them, drawn over enthalpy and entropy, tells where the steam gets wet and what each stage gives.
"""
# %%
import os
import pathlib

import numpy as np

import calvex
from calvex import plot

steam = calvex.Engine(T="°C", P="bar", flow="t/h", power="MW", efficiency="%")

# %% Stage pressures, bar, and efficiencies, %
pressures = [120.0, 40.0, 12.0, 3.0, 0.6, 0.05]
efficiencies = [84.0, 88.0, 90.0, 88.0, 80.0]
flow = 200.0  # t/h

live = steam.state(P=pressures[0], T=530)
states, powers = [live], []
for outlet, efficiency in zip(pressures[1:], efficiencies):
    inlet = states[-1]
    stage = steam.TurbineA(inlet.h, inlet.P, outlet, efficiency, flow)
    powers.append(stage.Power)
    states.append(steam.state(P=outlet, h=stage.HOut))

# %% The table
print("   P, bar   T, °C   h, kJ/kg  s, kJ/(kg·K)      x  power, MW")
for state, power in zip(states, [0.0, *powers]):
    print(f"{state.P:9.2f}{state.T:8.1f}{state.h:11.1f}{state.s:14.4f}{state.x:7.3f}{power:11.2f}")
print(f"{sum(powers):60.2f}")

# What the steam loses is what the shaft gets.
assert np.isclose(sum(powers), flow / 3.6 * (states[0].h - states[-1].h) / 1000)
# No stage makes entropy less.
assert np.all(np.diff([state.s for state in states]) > 0)

# %% The line
diagram = plot.hs(steam)
diagram.draw([(f"{state.P:g} bar", state) for state in states])
if "PICTURES" in os.environ:
    diagram.save(pathlib.Path(os.environ["PICTURES"]) / "expansion-line.svg")
