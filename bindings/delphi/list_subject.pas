// Lists the subject of the first certificate in a PEM or DER file: each attribute's object
// identifier and value.
program list_subject;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$APPTYPE CONSOLE}

uses
  Classes, SysUtils, Velkord;

const
  // Reduced tags.
  ObjectIdTag = 6;
  Utf8StringTag = 12;
  NumericStringTag = 18;
  PrintableStringTag = 19;
  TeletexStringTag = 20;
  Ia5StringTag = 22;
  VisibleStringTag = 26;
  BmpStringTag = 30;
  VersionTag = $A0;

  PemStart = AnsiString('-----BEGIN CERTIFICATE-----');

procedure Check(Code: Integer; const Step: string);
begin
  if Code <> VELKORD_OK then
    raise Exception.CreateFmt('%s: code %d', [Step, Code]);
end;

function ReadWholeFile(const Name: string): AnsiString;
var
  Stream: TFileStream;
begin
  Stream := TFileStream.Create(Name, fmOpenRead or fmShareDenyWrite);
  try
    SetLength(Result, Stream.Size);
    if Result <> '' then
      Stream.ReadBuffer(Result[1], Length(Result));
  finally
    Stream.Free;
  end;
end;

function CertificateDer(const Content: AnsiString): AnsiString;
var
  Start: Integer;
  Size: Cardinal;
begin
  if (Content <> '') and (Content[1] = #$30) then
  begin
    Result := Content;
    Exit;
  end;
  Start := Pos(PemStart, Content);
  if Start = 0 then
    raise Exception.Create('no certificate in this file');
  Size := 0;
  SetLength(Result, Length(Content));
  Check(PEM2DER_data_format(@Content[Start], Length(Content) - Start + 1, PByte(PAnsiChar(Result)),
    Size), 'decode the PEM text');
  SetLength(Result, Size);
end;

function ElementAt(Chain: PAnybuf; Number: Integer): PAnybuf;
begin
  Result := Chain;
  while (Result <> nil) and (Number > 0) do
  begin
    Result := Result^.next;
    Dec(Number);
  end;
  if Result = nil then
    raise Exception.Create('an element is missing');
end;

function Bytes(Node: PAnybuf): RawByteString;
begin
  SetString(Result, PAnsiChar(Node^.data), Node^.dataLen);
end;

function Content(Node: PAnybuf): RawByteString;
var
  Opened: PAnybuf;
begin
  Opened := nil;
  Check(ASN1_ReadOctetString(Node, Opened), 'open an element');
  try
    Result := Bytes(Opened);
  finally
    ASN1_FreeAnybuf(Opened);
  end;
end;

function ObjectIdText(Node: PAnybuf): UnicodeString;
var
  Octets: RawByteString;
  Arc, First: UInt64;
  Number: Integer;
begin
  if Node^.dataType <> ObjectIdTag then
    raise Exception.Create('not an object identifier');
  Octets := Content(Node);
  if (Octets = '') or (Ord(Octets[Length(Octets)]) >= $80) then
    raise Exception.Create('an object identifier without its end');
  Result := '';
  Arc := 0;
  for Number := 1 to Length(Octets) do
  begin
    if Arc shr 57 <> 0 then
      raise Exception.Create('an object identifier with an arc of more than 64 bits');
    Arc := (Arc shl 7) or (Ord(Octets[Number]) and $7F);
    if Ord(Octets[Number]) >= $80 then
      Continue;
    if Result = '' then
    begin
      First := Arc div 40;
      if First > 2 then
        First := 2;
      Result := UnicodeString(IntToStr(First));
      Arc := Arc - 40 * First;
    end;
    Result := Result + '.' + UnicodeString(UIntToStr(Arc));
    Arc := 0;
  end;
end;

// Characters that end the line, move the cursor or reorder the text would let a certificate forge
// what its reader sees.
function Escaped(const Text: UnicodeString): UnicodeString;
var
  Letter: WideChar;
begin
  Result := '';
  for Letter in Text do
    case Ord(Letter) of
      0..$1F, Ord('\'), $7F..$9F, $200E..$200F, $2028..$202E, $2066..$2069:
        Result := Result + '\u' + UnicodeString(LowerCase(IntToHex(Ord(Letter), 4)));
    else
      Result := Result + Letter;
    end;
end;

function HexText(const Octets: RawByteString): UnicodeString;
var
  Octet: AnsiChar;
begin
  Result := '#';
  for Octet in Octets do
    Result := Result + UnicodeString(IntToHex(Ord(Octet), 2));
end;

// A text that is not what its type says is shown as hexadecimal digits, and so is any other type.
function ValueText(Node: PAnybuf): UnicodeString;
var
  Octets: RawByteString;
  Number: Integer;
  IsText: Boolean;
begin
  Octets := Content(Node);
  Result := '';
  case Node^.dataType of
    Utf8StringTag:
      begin
        Result := UTF8Decode(Octets);
        SetCodePage(Octets, CP_UTF8, False);
        IsText := UTF8Encode(Result) = Octets;
      end;
    NumericStringTag, PrintableStringTag, TeletexStringTag, Ia5StringTag, VisibleStringTag:
      begin
        IsText := True;
        for Number := 1 to Length(Octets) do
        begin
          Result := Result + WideChar(Ord(Octets[Number]));
          if (Ord(Octets[Number]) >= $80) and (Node^.dataType <> TeletexStringTag) then
            IsText := False;
        end;
      end;
    BmpStringTag:
      begin
        IsText := not Odd(Length(Octets));
        for Number := 1 to Length(Octets) div 2 do
          Result := Result +
            WideChar(Ord(Octets[2 * Number - 1]) shl 8 or Ord(Octets[2 * Number]));
      end;
  else
    IsText := False;
  end;
  if IsText then
    Result := Escaped(Result)
  else
    Result := HexText(Bytes(Node));
end;

procedure PutAttribute(Attribute: PAnybuf);
var
  Parts: PAnybuf;
begin
  Parts := nil;
  Check(ASN1_ReadSequence(Attribute, Parts), 'split an attribute');
  try
    Writeln(UTF8Encode(
      ObjectIdText(ElementAt(Parts, 0)) + ' = ' + ValueText(ElementAt(Parts, 1))));
  finally
    ASN1_FreeAnybuf(Parts);
  end;
end;

procedure PutRelativeName(RelativeName: PAnybuf);
var
  Attributes, Attribute: PAnybuf;
begin
  Attributes := nil;
  Check(ASN1_ReadSet(RelativeName, Attributes), 'split a relative name');
  try
    Attribute := Attributes;
    while Attribute <> nil do
    begin
      PutAttribute(Attribute);
      Attribute := Attribute^.next;
    end;
  finally
    ASN1_FreeAnybuf(Attributes);
  end;
end;

procedure PutName(Name: PAnybuf);
var
  RelativeNames, RelativeName: PAnybuf;
begin
  RelativeNames := nil;
  Check(ASN1_ReadSequence(Name, RelativeNames), 'split the name');
  try
    RelativeName := RelativeNames;
    while RelativeName <> nil do
    begin
      PutRelativeName(RelativeName);
      RelativeName := RelativeName^.next;
    end;
  finally
    ASN1_FreeAnybuf(RelativeNames);
  end;
end;

procedure PutSubject(const Der: AnsiString);
var
  Certificate: PCertificate;
  Parts: PAnybuf;
  Subject: Integer;
begin
  Certificate := nil;
  Parts := nil;
  Check(ASN1_CertificateDecode(PByte(PAnsiChar(Der)), Length(Der), Certificate),
    'decode the certificate');
  try
    Check(ASN1_ReadSequence(Certificate^.tbsCertificate, Parts), 'split the signed part');
    // After serial number, signature algorithm, issuer and validity; in front of them stands the
    // version, which version 1 leaves out.
    Subject := 4;
    if ElementAt(Parts, 0)^.dataType = VersionTag then
      Subject := 5;
    PutName(ElementAt(Parts, Subject));
  finally
    ASN1_FreeAnybuf(Parts);
    ASN1_FreeCertificate(Certificate);
  end;
end;

begin
  if (ParamCount <> 1) or (ParamStr(1) = '--help') then
  begin
    Writeln('usage: list_subject FILE');
    if ParamStr(1) <> '--help' then
      ExitCode := 2;
    Exit;
  end;
  SetTextCodePage(Output, CP_UTF8);
  try
    PutSubject(CertificateDer(ReadWholeFile(ParamStr(1))));
  except
    on Problem: Exception do
    begin
      Writeln(ErrOutput, ParamStr(1), ': ', Problem.Message);
      ExitCode := 1;
    end;
  end;
end.
