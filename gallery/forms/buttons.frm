VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmButtons 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Quillet - flat buttons"
   ClientHeight    =   6750
   ClientLeft      =   900
   ClientTop       =   900
   ClientWidth     =   9450
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   ScaleHeight     =   6750
   ScaleWidth      =   9450
   StartUpPosition =   2  'CenterScreen
   Begin VB.Label lblTitle 
      BeginProperty Font 
         Name            =   "Tahoma"
         Size            =   15.75
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Caption         =   "Flat command buttons"
      Height          =   420
      Left            =   240
      TabIndex        =   0
      Top             =   150
      Width           =   8970
   End
   Begin VB.Label lblHint 
      Caption         =   "Move the mouse over a button, press it, and go round with Tab or with Alt and an underlined letter."
      ForeColor       =   &H80000012&
      Height          =   240
      Left            =   240
      TabIndex        =   1
      Top             =   600
      Width           =   8970
   End
   Begin VB.Frame fraLooks 
      Caption         =   "Looks"
      Height          =   3270
      Left            =   240
      TabIndex        =   2
      Top             =   960
      Width           =   2880
      Begin Quillet.qvFlatCommand cmdPlain 
         Caption         =   "&Plain"
         CentreCaption   =   -1  'True
         Height          =   390
         Left            =   240
         TabIndex        =   3
         ToolTipText     =   "Every property as it comes"
         Top             =   360
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdColoured 
         BackColor       =   &H00FBE6D2&
         BorderColor     =   &H00B0702A&
         Caption         =   "C&oloured"
         CentreCaption   =   -1  'True
         ForeColor       =   &H00703A00&
         Height          =   390
         HotBackColor    =   &H00B0702A&
         HotBorderColor  =   &H00703A00&
         HotForeColor    =   &H00FFFFFF&
         Left            =   240
         PressedBackColor =   &H00703A00&
         PressedBorderColor =   &H00000000&
         PressedForeColor =   &H00FFFFFF&
         TabIndex        =   4
         ToolTipText     =   "Its own colours at rest, hot and pressed"
         Top             =   840
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdThick 
         BorderColor     =   &H00408000&
         BorderWidth     =   3
         Caption         =   "&Thick border"
         CentreCaption   =   -1  'True
         Height          =   390
         HotBorderColor  =   &H0000C000&
         HotBorderWidth  =   5
         Left            =   240
         PressedBorderWidth =   2
         TabIndex        =   5
         ToolTipText     =   "3 pixels, 5 when hot, 2 when pressed"
         Top             =   1320
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdBare 
         BackColor       =   &H00E0E0E0&
         BorderStyle     =   0
         Caption         =   "No &border"
         CentreCaption   =   -1  'True
         ForeColor       =   &H00202020&
         Height          =   390
         Left            =   240
         TabIndex        =   6
         ToolTipText     =   "BorderStyle 0"
         Top             =   1800
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdDisabled 
         Caption         =   "Disabled"
         CentreCaption   =   -1  'True
         Enabled         =   0   'False
         Height          =   390
         Left            =   240
         TabIndex        =   7
         ToolTipText     =   "Enabled False"
         Top             =   2280
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdNoFocus 
         Caption         =   "No &focus frame"
         CentreCaption   =   -1  'True
         Height          =   390
         Left            =   240
         ShowFocusRectangle =   0   'False
         TabIndex        =   8
         ToolTipText     =   "ShowFocusRectangle False"
         Top             =   2760
         Width           =   2400
      End
   End
   Begin VB.Frame fraCaptions 
      Caption         =   "Captions and fonts"
      Height          =   3270
      Left            =   3330
      TabIndex        =   9
      Top             =   960
      Width           =   2880
      Begin Quillet.qvFlatCommand cmdCentred 
         Caption         =   "&Centred"
         CentreCaption   =   -1  'True
         Height          =   390
         Left            =   240
         TabIndex        =   10
         ToolTipText     =   "CentreCaption True"
         Top             =   360
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdLeft 
         Caption         =   "At the &left"
         CaptionIndent   =   4
         Height          =   390
         Left            =   240
         TabIndex        =   11
         ToolTipText     =   "CentreCaption False: CaptionIndent pixels from the border"
         Top             =   840
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdIndented 
         Caption         =   "&Indented by 32 pixels"
         CaptionIndent   =   32
         Height          =   390
         Left            =   240
         TabIndex        =   12
         ToolTipText     =   "CaptionIndent 32"
         Top             =   1320
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdBold 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   8.25
            Charset         =   0
            ToolTipText     =   "A font of its own"
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         Caption         =   "Bol&d"
         CentreCaption   =   -1  'True
         Height          =   390
         Left            =   240
         TabIndex        =   13
         Top             =   1800
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdItalic 
         BeginProperty Font 
            Name            =   "Times New Roman"
            Size            =   11.25
            Charset         =   0
            ToolTipText     =   "A font of its own"
            Weight          =   400
            Underline       =   0   'False
            Italic          =   -1  'True
            Strikethrough   =   0   'False
         EndProperty
         Caption         =   "&Slanted"
         CentreCaption   =   -1  'True
         Height          =   390
         Left            =   240
         TabIndex        =   14
         Top             =   2280
         Width           =   2400
      End
      Begin Quillet.qvFlatCommand cmdLarge 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   12
            Charset         =   0
            ToolTipText     =   "A font of its own"
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         BackColor       =   &H00FFFFFF&
         Caption         =   "La&rge"
         CentreCaption   =   -1  'True
         ForeColor       =   &H00A00000&
         Height          =   390
         Left            =   240
         TabIndex        =   15
         Top             =   2760
         Width           =   2400
      End
   End
   Begin VB.Frame fraTaskPane 
      Caption         =   "Task pane"
      Height          =   3270
      Left            =   6420
      TabIndex        =   16
      Top             =   960
      Width           =   2790
      Begin VB.Label lblNew 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   8.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         Caption         =   "New document"
         Height          =   240
         Left            =   240
         TabIndex        =   17
         Top             =   330
         Width           =   2310
      End
      Begin Quillet.qvFlatCommand cmdBlank 
         BorderWidth     =   0
         Caption         =   "Blank document"
         CaptionIndent   =   10
         Height          =   345
         Left            =   240
         OfficeXPColors  =   -1  'True
         TabIndex        =   18
         ToolTipText     =   "The task pane's colours"
         Top             =   600
         Width           =   2310
      End
      Begin Quillet.qvFlatCommand cmdTemplate 
         BorderWidth     =   0
         Caption         =   "From a template"
         CaptionIndent   =   10
         Height          =   345
         Left            =   240
         OfficeXPColors  =   -1  'True
         TabIndex        =   19
         ToolTipText     =   "The task pane's colours"
         Top             =   990
         Width           =   2310
      End
      Begin Quillet.qvFlatCommand cmdExisting 
         BorderWidth     =   0
         Caption         =   "From an existing file"
         CaptionIndent   =   10
         Height          =   345
         Left            =   240
         OfficeXPColors  =   -1  'True
         TabIndex        =   20
         ToolTipText     =   "The task pane's colours"
         Top             =   1380
         Width           =   2310
      End
      Begin VB.Label lblOpen 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   8.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         Caption         =   "Open"
         Height          =   240
         Left            =   240
         TabIndex        =   21
         Top             =   1890
         Width           =   2310
      End
      Begin Quillet.qvFlatCommand cmdMore 
         Caption         =   "&More documents"
         CaptionIndent   =   10
         Height          =   345
         Left            =   240
         OfficeXPColors  =   -1  'True
         TabIndex        =   22
         ToolTipText     =   "The task pane's colours, with a border"
         Top             =   2160
         Width           =   2310
      End
      Begin Quillet.qvFlatCommand cmdLocked 
         Caption         =   "Not for you"
         CaptionIndent   =   10
         Enabled         =   0   'False
         Height          =   345
         Left            =   240
         OfficeXPColors  =   -1  'True
         TabIndex        =   23
         ToolTipText     =   "The task pane's colours, Enabled False"
         Top             =   2550
         Width           =   2310
      End
   End
   Begin VB.Frame fraDialog 
      Caption         =   "A small dialog: Enter presses Save, Esc presses Cancel"
      Height          =   2100
      Left            =   240
      TabIndex        =   24
      Top             =   4410
      Width           =   8970
      Begin VB.Label lblName 
         Caption         =   "File &name:"
         Height          =   240
         Left            =   240
         TabIndex        =   25
         Top             =   450
         Width           =   1200
      End
      Begin VB.TextBox txtName 
         Height          =   330
         Left            =   1500
         TabIndex        =   26
         Text            =   "Letter ""to all"".txt"
         Top             =   390
         Width           =   4650
      End
      Begin VB.Label lblFormat 
         Caption         =   "Format:"
         Height          =   240
         Left            =   240
         TabIndex        =   27
         Top             =   960
         Width           =   1200
      End
      Begin VB.OptionButton optText 
         Caption         =   "Te&xt"
         Height          =   270
         Left            =   1500
         TabIndex        =   28
         Top             =   930
         Value           =   -1  'True
         Width           =   1500
      End
      Begin VB.OptionButton optRich 
         Caption         =   "&Rich text"
         Height          =   270
         Left            =   3090
         TabIndex        =   29
         Top             =   930
         Width           =   1500
      End
      Begin VB.CheckBox chkCopy 
         Caption         =   "&Keep a copy of the old file"
         Height          =   270
         Left            =   1500
         TabIndex        =   30
         Top             =   1380
         Value           =   1
         Width           =   3600
      End
      Begin Quillet.qvFlatCommand cmdSave 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   8.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         Caption         =   "Sa&ve"
         CentreCaption   =   -1  'True
         Default         =   -1  'True
         Height          =   420
         Left            =   6630
         TabIndex        =   31
         ToolTipText     =   "The default button: Enter"
         Top             =   360
         Width           =   2100
      End
      Begin Quillet.qvFlatCommand cmdCancel 
         Cancel          =   -1  'True
         Caption         =   "Cancel"
         CentreCaption   =   -1  'True
         Height          =   420
         Left            =   6630
         TabIndex        =   32
         ToolTipText     =   "The cancel button: Esc"
         Top             =   900
         Width           =   2100
      End
      Begin Quillet.qvFlatCommand cmdHelp 
         BackColor       =   &H00CDFAFF&
         BorderStyle     =   0
         Caption         =   "&Help"
         CentreCaption   =   -1  'True
         ForeColor       =   &H00004080&
         Height          =   420
         Left            =   6630
         TabIndex        =   33
         Tag             =   "help"
         ToolTipText     =   "BorderStyle 0, and its own colours"
         Top             =   1440
         Width           =   2100
      End
   End
End
Attribute VB_Name = "frmButtons"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cmdSave_Click()
    Unload Me
End Sub

Private Sub cmdCancel_Click()
    Unload Me
End Sub
