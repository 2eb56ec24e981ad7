{ A client in Free Pascal: client P T H, with the enthalpy that the command line answers. Early bound by
  the unit that the importer made of the type library, and late bound. }
{$mode objfpc}{$H+}
program client;

uses ActiveX, ComObj, SysUtils, Variants, CALVEXLib_3_0_TLB;

var
  checks: Integer = 0;

procedure Check(const what: String; right: Boolean; const found: String);
begin
  Inc(checks);
  if right then
    Exit;
  WriteLn(what, ': ', found);
  Halt(1);
end;

procedure CheckNumber(const what: String; found, wanted: Double);
begin
  Check(what, Abs(found - wanted) <= 1E-12 * Abs(wanted), FloatToStr(found));
end;

procedure EarlyBound(p, t, wanted: Double);
var
  steam: IZvCalvex;
  h: Double;
begin
  steam := CoZvCalvex.Create;
  Check('answer', steam.HPT(h, p, t) = 1, 'a failure');
  CheckNumber('early bound', h, wanted);
  h := -7;
  Check('too hot', steam.HPT(h, p, 3000) = 0, 'a success');
  CheckNumber('the result stays', h, -7);
  Check('reason', steam.LastError =
    'Temperature parameter out of range (Valid range 260.00 to 2500.00 K).',
    String(steam.LastError));
  steam.TraceLevel := 1;
  Check('setting', steam.TraceLevel = 1, IntToStr(steam.TraceLevel));
  steam.TraceLevel := 0;
end;

procedure LateBound(p, t, wanted: Double);
var
  steam, answer: OleVariant;
  h: Double;
begin
  steam := CreateOleObject('Calvex32.ZvCalvex.3');
  h := 0;
  answer := steam.HPT(h, p, t);
  Check('answer, late bound', answer = 1, VarToStr(answer));
  CheckNumber('late bound', h, wanted);
  try
    steam.HPX(h);
    Check('no such member', False, 'accepted');
  except
    on E: EOleError do
      Check('no such member', True, '');
  end;
end;

begin
  CoInitialize(nil);
  DefaultFormatSettings.DecimalSeparator := '.';
  EarlyBound(StrToFloat(ParamStr(1)), StrToFloat(ParamStr(2)), StrToFloat(ParamStr(3)));
  LateBound(StrToFloat(ParamStr(1)), StrToFloat(ParamStr(2)), StrToFloat(ParamStr(3)));
  WriteLn(checks, ' checks passed');
end.
