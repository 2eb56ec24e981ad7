"""A thermocompressor's map: how much motive steam it takes to lift suction steam to a pressure.

10,000 ejectors at once: motive and discharge pressures over a grid.
"""
# %%
import os
import pathlib

import numpy as np

import calvex
from calvex import plot
from matplotlib import pyplot

steam = calvex.Engine(T="°C", P="bar")

# %% 1 kg/s of suction steam of 1 bar
motive = np.linspace(4, 16, 100)
discharge = np.linspace(1.1, 3.5, 100)[:, None]
superheated = steam.TSatP(motive) + 20
ejector = steam.ThermoCompressorD(motive, superheated, 1.0, 105.0, discharge, 1.0)
ratio = ejector.M_Motive  # kg of motive steam for 1 kg of suction steam
print(f"{ratio.size} ejectors: {ratio.min():.2f} to {ratio.max():.1f} kg of motive steam for 1 kg")

# What goes in comes out.
assert np.allclose(ejector.M_Motive + 1.0, ejector.M_Out)
# More pressure behind takes more motive steam.
assert (np.diff(ratio, axis=0) > 0).all()

# %% The map
figure, axes = pyplot.subplots(figsize=(8, 5.6))
lines = axes.contour(motive, discharge.ravel(), ratio, levels=[0.5, 1, 1.5, 2, 3, 5, 10],
                     colors=plot.THEMES["light"]["P"], linewidths=1)
axes.clabel(lines, fmt="%g kg/kg", fontsize=8)
axes.set(xlabel="motive pressure, bar", ylabel="discharge pressure, bar",
         title="Motive steam for 1 kg of suction steam of 1 bar")
figure.tight_layout()
if "PICTURES" in os.environ:
    figure.savefig(pathlib.Path(os.environ["PICTURES"]) / "thermocompressor-map.svg")
