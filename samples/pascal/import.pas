{ Writes the unit of a type library: import quilbt.tlb Quillet_1_0_TLB.pas
  (quilbt.ocx, which contains the library, does as well). }
program import;

{$mode objfpc}{$H+}

uses
  TypeLib;

var
  Importer: TTypeLibImporter;
begin
  Importer := TTypeLibImporter.Create(nil);
  Importer.InputFileName := ParamStr(1);
  Importer.OutputFileName := ParamStr(2);
  Importer.Execute;
  Importer.UnitSource.SaveToFile(ParamStr(2));
end.
