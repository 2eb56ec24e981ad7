{ Turns the type library LIBRARY into a unit of Free Pascal, by the compiler's own importer: importer
  LIBRARY. Writes the unit into the folder and its name to the console. }
{$mode objfpc}{$H+}
program importer;

uses ActiveX, Classes, SysUtils, TypeLib;

begin
  CoInitialize(nil);
  with TTypeLibImporter.Create(nil) do
  begin
    InputFileName := UTF8Decode(ParamStr(1));
    Execute;
    UnitSource.SaveToFile(UnitName + '.pas');
    WriteLn(UnitName);
  end;
end.
