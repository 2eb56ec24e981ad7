// Made by scripts/update-generated from the product's tables.
// clang-format off
#pragma once

namespace calvex {

struct TurbineAResult {
  double Power;  ///< shaft power
  double TOut;  ///< outlet temperature
  double HOut;  ///< outlet enthalpy
  double QOut;  ///< outlet quality
};
struct TurbineBResult {
  double MIn;  ///< inlet flow
  double TOut;  ///< outlet temperature
  double HOut;  ///< outlet enthalpy
  double QOut;  ///< outlet quality
};
struct TurbineA2Result {
  double Power;  ///< shaft power
  double TOut1;  ///< temperature at outlet 1
  double TOut2;  ///< temperature at outlet 2
  double HOut1;  ///< enthalpy at outlet 1
  double HOut2;  ///< enthalpy at outlet 2
  double QOut1;  ///< quality at outlet 1
  double QOut2;  ///< quality at outlet 2
};
struct TurbineB2Result {
  double MOut2;  ///< flow that leaves at outlet 2
  double TOut1;  ///< temperature at outlet 1
  double TOut2;  ///< temperature at outlet 2
  double HOut1;  ///< enthalpy at outlet 1
  double HOut2;  ///< enthalpy at outlet 2
  double QOut1;  ///< quality at outlet 1
  double QOut2;  ///< quality at outlet 2
};
struct TurbineA3Result {
  double Power;  ///< shaft power
  double TOut1;  ///< temperature at outlet 1
  double TOut2;  ///< temperature at outlet 2
  double TOut3;  ///< temperature at outlet 3
  double HOut1;  ///< enthalpy at outlet 1
  double HOut2;  ///< enthalpy at outlet 2
  double HOut3;  ///< enthalpy at outlet 3
  double QOut1;  ///< quality at outlet 1
  double QOut2;  ///< quality at outlet 2
  double QOut3;  ///< quality at outlet 3
};
struct TurbineB3Result {
  double MOut3;  ///< flow that leaves at outlet 3
  double TOut1;  ///< temperature at outlet 1
  double TOut2;  ///< temperature at outlet 2
  double TOut3;  ///< temperature at outlet 3
  double HOut1;  ///< enthalpy at outlet 1
  double HOut2;  ///< enthalpy at outlet 2
  double HOut3;  ///< enthalpy at outlet 3
  double QOut1;  ///< quality at outlet 1
  double QOut2;  ///< quality at outlet 2
  double QOut3;  ///< quality at outlet 3
};
struct CompressorAResult {
  double Power;  ///< shaft power
  double TOut;  ///< outlet temperature
  double HOut;  ///< outlet enthalpy
  double QOut;  ///< outlet quality
};
struct CompressorBResult {
  double MIn;  ///< inlet flow
  double TOut;  ///< outlet temperature
  double HOut;  ///< outlet enthalpy
  double QOut;  ///< outlet quality
};
struct CompressorA2Result {
  double Power;  ///< shaft power
  double TOut1;  ///< temperature at outlet 1
  double TOut2;  ///< temperature at outlet 2
  double HOut1;  ///< enthalpy at outlet 1
  double HOut2;  ///< enthalpy at outlet 2
  double QOut1;  ///< quality at outlet 1
  double QOut2;  ///< quality at outlet 2
};
struct CompressorB2Result {
  double MOut2;  ///< flow that leaves at outlet 2
  double TOut1;  ///< temperature at outlet 1
  double TOut2;  ///< temperature at outlet 2
  double HOut1;  ///< enthalpy at outlet 1
  double HOut2;  ///< enthalpy at outlet 2
  double QOut1;  ///< quality at outlet 1
  double QOut2;  ///< quality at outlet 2
};
struct DeAeratorResult {
  double Hd;  ///< enthalpy of the deaerated water
  double Td;  ///< temperature of the deaerated water
  double Mw;  ///< flow of make-up water
  double Ms;  ///< flow of heating steam
};
struct DeSuperHeaterResult {
  double Hs;  ///< enthalpy of the cooled steam
  double Mw;  ///< flow of spray water
  double Ms;  ///< flow of cooled steam
};
struct LetDownValveResult {
  double TOut;  ///< outlet temperature
  double QOut;  ///< outlet quality
};
struct BoilerResult {
  double MBd;  ///< flow of blowdown
  double DeltaH;  ///< heat taken up
  double HOut;  ///< enthalpy of the steam
  double HBd;  ///< enthalpy of the blowdown
  double MIn;  ///< flow of feed water
};
struct FlashVesselResult {
  double TOut;  ///< temperature in the vessel
  double MVap;  ///< flow of vapour
  double MLiq;  ///< flow of liquid
  double HVap;  ///< enthalpy of the vapour, 0 without any
  double HLiq;  ///< enthalpy of the liquid, 0 without any
};
struct QT_PHResult {
  double Q;  ///< quality
  double T;  ///< temperature
};
struct HVLTSat_PQResult {
  double H;  ///< enthalpy
  double HVap;  ///< vapour enthalpy
  double HLiq;  ///< liquid enthalpy
  double TSat;  ///< saturation temperature
};
struct QTS_PHResult {
  double Q;  ///< quality
  double T;  ///< temperature
  double S;  ///< entropy
};
struct DeSuperHeaterBResult {
  double Hs;  ///< enthalpy of the cooled steam
  double Mw;  ///< flow of spray water
  double Ms;  ///< inlet flow of steam
};
struct TurbineEResult {
  double Power;  ///< shaft power
  double TOut;  ///< outlet temperature
  double HOut;  ///< outlet enthalpy
  double QOut;  ///< outlet quality
  double SOut;  ///< outlet entropy
};
struct WaterPumpResult {
  double HOut;  ///< outlet enthalpy
  double Power;  ///< shaft power
};
struct Boiler_BResult {
  double MBd;  ///< flow of blowdown
  double Duty;  ///< heat taken up
  double HOut;  ///< enthalpy of the steam
  double HBd;  ///< enthalpy of the blowdown
  double MIn;  ///< flow of feed water
  double QFired;  ///< heat of the fuel
};

}  // namespace calvex
