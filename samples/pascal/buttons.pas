{ Flat buttons in a window of Free Pascal, without a forms library: the imported unit and the system's control host. }
program buttons;

{$mode objfpc}{$H+}
{$apptype gui}

uses
  Windows, ActiveX, SysUtils, Quillet_1_0_TLB;

const
  NotRegistered = 'Quillet is not registered: run regsvr32 quilbt.ocx, of the same kind (x86 or x64) as this program.';
  WM_FORWARDMSG = $037F;

function AtlAxWinInit: BOOL; stdcall; external 'atl.dll';
function AtlAxAttachControl(Control: IUnknown; Window: HWND; out Container: IUnknown): HRESULT; stdcall;
  external 'atl.dll';

type
  { Holds the controls and hears their events. }
  TButtons = class
  private
    FWindow: HWND;
    FSave: TEvsqvFlatCommand;
    FCheck: TEvsqvFlatCheck;
    FSaved: Integer;
    procedure Place(const Control: IUnknown; X, Y, Width, Height: Integer);
    procedure SaveClick(Sender: TObject);
    procedure CheckClick(Sender: TObject);
  public
    constructor Create(Window: HWND);
    destructor Destroy; override;
  end;

constructor TButtons.Create(Window: HWND);
begin
  FWindow := Window;
  FSave := TEvsqvFlatCommand.Create(nil); { makes the control and listens to it }
  FSave.OnClick := @SaveClick;
  FSave.ComServer.Caption := '&Save changes';
  FSave.ComServer.CentreCaption := True;
  FSave.ComServer.HotBackColor := $00F7DFD6;
  FSave.ComServer.HotBorderColor := $00C56A31;
  Place(FSave.ComServer, 20, 20, 120, 32);

  FCheck := TEvsqvFlatCheck.Create(nil);
  FCheck.OnClick := @CheckClick;
  FCheck.ComServer.Caption := 'Keep a &backup';
  Place(FCheck.ComServer, 20, 64, 120, 20);
end;

destructor TButtons.Destroy;
begin
  FCheck.Free;
  FSave.Free;
  inherited;
end;

{ Gives the control a host window, which keeps it and ends it with itself. }
procedure TButtons.Place(const Control: IUnknown; X, Y, Width, Height: Integer);
var
  Host: HWND;
  Container: IUnknown;
begin
  Host := CreateWindowExW(0, 'AtlAxWin', nil, WS_CHILD or WS_VISIBLE or WS_TABSTOP, X, Y, Width, Height, FWindow, 0,
    0, nil);
  if Failed(AtlAxAttachControl(Control, Host, Container)) then
    raise Exception.Create('The system''s control host refuses the control.');
end;

procedure TButtons.SaveClick(Sender: TObject);
begin
  Inc(FSaved);
  SetWindowTextW(FWindow, PWideChar(WideString('Saved ' + IntToStr(FSaved))));
end;

procedure TButtons.CheckClick(Sender: TObject);
begin
  SetWindowTextW(FWindow, 'Checked');
end;

function WindowProcedure(Window: HWND; Message: UINT; WParam: WPARAM; LParam: LPARAM): LRESULT; stdcall;
begin
  if Message = WM_DESTROY then
    PostQuitMessage(0);
  Result := DefWindowProcW(Window, Message, WParam, LParam);
end;

function NewWindow: HWND;
var
  Description: WNDCLASSW;
begin
  FillChar(Description, SizeOf(Description), 0);
  Description.lpfnWndProc := @WindowProcedure;
  Description.hInstance := HInstance;
  Description.hCursor := LoadCursor(0, IDC_ARROW);
  Description.hbrBackground := GetSysColorBrush(COLOR_BTNFACE);
  Description.lpszClassName := 'QuilletSample';
  RegisterClassW(@Description);
  Result := CreateWindowExW(WS_EX_CONTROLPARENT, 'QuilletSample', 'Flat buttons',
    WS_OVERLAPPEDWINDOW or WS_CLIPCHILDREN, 100, 100, 300, 160, 0, 0, HInstance, nil);
end;

{ A host window sees the keys first, so that its control gets them; then the dialog keys go round. }
procedure RunMessageLoop(Window: HWND);
var
  Message: TMsg;
  IsKey: Boolean;
begin
  while GetMessageW(@Message, 0, 0, 0) do
  begin
    IsKey := (Message.message >= WM_KEYFIRST) and (Message.message <= WM_KEYLAST);
    if IsKey and (SendMessageW(GetParent(Message.hwnd), WM_FORWARDMSG, 0, LPARAM(@Message)) <> 0) then
      Continue;
    if IsDialogMessageW(Window, @Message) then
      Continue;
    TranslateMessage(Message);
    DispatchMessageW(Message);
  end;
end;

var
  Window: HWND;
  All: TButtons;
begin
  OleInitialize(nil);
  AtlAxWinInit;
  Window := NewWindow;
  try
    All := TButtons.Create(Window);
  except
    MessageBox(0, NotRegistered, 'Flat buttons', MB_ICONERROR);
    Halt(1);
  end;
  ShowWindow(Window, SW_SHOW);
  RunMessageLoop(Window);
  All.Free;
  OleUninitialize;
end.
