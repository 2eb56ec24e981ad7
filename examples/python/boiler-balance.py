"""A boiler's balance from a table of measurements: pandas in, pandas out.

Two rows of the eight have no good temperature: one is missing, one is a typing error. They become
NaN, with the reason, and the rest is computed.
"""
# %%
import pathlib
import warnings

import pandas

import calvex

here = pathlib.Path(__file__).parent if "__file__" in globals() else pathlib.Path()
plant = pandas.read_csv(here / "boiler-balance.csv", index_col="time", parse_dates=True)
steam = calvex.Engine(T="°C", P="bar", flow="t/h", heat_duty="MW")

# %% Enthalpies of feed water, steam and blowdown
with warnings.catch_warnings(record=True) as said:
    warnings.simplefilter("always")
    h_steam = steam.HPT(plant.steam_bar, plant.steam_C)
    reasons = steam.reasons()
print(said[0].message)
for time, reason in zip(plant.index, reasons):
    if reason:
        print(f"{time}: {reason}")
h_feed = steam.HPT(plant.feed_bar, plant.feed_C)
h_blowdown = steam.HSatPQ(plant.steam_bar, 0)

# %% Absorbed heat, MW, and efficiency on the fuel
blowdown = plant.feed_t_h - plant.steam_t_h
absorbed = (plant.steam_t_h * h_steam + blowdown * h_blowdown - plant.feed_t_h * h_feed) / 3600
table = pandas.DataFrame({
    "blowdown, %": 100 * blowdown / plant.feed_t_h,
    "absorbed, MW": absorbed,
    "efficiency, %": 100 * absorbed / plant.fuel_MW,
})
print(table.round(2))

assert absorbed.isna().sum() == 2 and said[0].category is calvex.CalvexWarning
assert table["efficiency, %"].dropna().between(80, 96).all()

# %% The same by the boiler model, whose balance has the same blowdown
model = steam.Boiler(h_feed, plant.steam_t_h, plant.steam_C, plant.steam_bar,
                     blowdown / plant.feed_t_h, errors="ignore")
assert ((model.DeltaH - absorbed).abs().dropna() < 0.01 * absorbed.dropna()).all()
