VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmOptions 
   BackColor       =   &H80000005&
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Quillet - flat options"
   ClientHeight    =   5985
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
   ScaleHeight     =   5985
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
      BackColor       =   &H80000005&
      Caption         =   "Flat option buttons and check boxes"
      Height          =   420
      Left            =   240
      TabIndex        =   0
      Top             =   150
      Width           =   8970
   End
   Begin VB.Label lblHint 
      BackColor       =   &H80000005&
      Caption         =   "One choice in each frame: by mouse, by arrow keys, or by Alt and an underlined letter."
      ForeColor       =   &H80000008&
      Height          =   240
      Left            =   240
      TabIndex        =   1
      Top             =   600
      Width           =   8970
   End
   Begin VB.Frame fraSize 
      BackColor       =   &H80000005&
      Caption         =   "Size: equal hot colour"
      Height          =   2055
      Left            =   240
      TabIndex        =   2
      Top             =   960
      Width           =   2880
      Begin Quillet.qvFlatOption optSmall 
         BackColor       =   &H80000005&
         Caption         =   "&Small"
         Height          =   270
         Left            =   240
         TabIndex        =   3
         ToolTipText     =   "Equal colours: the circle is shaded"
         Top             =   360
         Width           =   2400
      End
      Begin Quillet.qvFlatOption optLarge 
         BackColor       =   &H80000005&
         Caption         =   "&Large"
         Height          =   270
         Left            =   240
         TabIndex        =   5
         ToolTipText     =   "Equal colours: the circle is shaded"
         Top             =   1110
         Width           =   2400
      End
      Begin Quillet.qvFlatOption optHuge 
         BackColor       =   &H80000005&
         Caption         =   "Not in stock"
         Enabled         =   0   'False
         Height          =   270
         Left            =   240
         TabIndex        =   6
         Top             =   1485
         Width           =   2400
      End
      Begin Quillet.qvFlatOption optMedium 
         BackColor       =   &H80000005&
         Caption         =   "&Medium"
         Height          =   270
         Left            =   240
         TabIndex        =   4
         ToolTipText     =   "Chosen when the form opens"
         Top             =   735
         Value           =   1
         Width           =   2400
      End
   End
   Begin VB.Frame fraColour 
      BackColor       =   &H80000005&
      Caption         =   "Colour: its own hot colour"
      Height          =   2055
      Left            =   3285
      TabIndex        =   7
      Top             =   960
      Width           =   2880
      Begin Quillet.qvFlatOption optRed 
         BackColor       =   &H00E8ECFF&
         Caption         =   "&Red"
         ForeColor       =   &H0020207A&
         Height          =   270
         HotForeColor    =   &H003030FF&
         Left            =   240
         TabIndex        =   8
         ToolTipText     =   "Its caption turns bright"
         Top             =   360
         Width           =   2400
      End
      Begin Quillet.qvFlatOption optGreen 
         BackColor       =   &H00EAF8EA&
         Caption         =   "&Green"
         ForeColor       =   &H00205A20&
         Height          =   270
         HotForeColor    =   &H0010B010&
         Left            =   240
         TabIndex        =   9
         Top             =   735
         Width           =   2400
      End
      Begin Quillet.qvFlatOption optGrey 
         BackColor       =   &H00F2F2F2&
         Caption         =   "Sold out"
         Enabled         =   0   'False
         ForeColor       =   &H00205A20&
         Height          =   270
         HotForeColor    =   &H0010B010&
         Left            =   240
         TabIndex        =   11
         Top             =   1485
         Width           =   2400
      End
      Begin Quillet.qvFlatOption optBlue 
         BackColor       =   &H00FFEEE8&
         Caption         =   "&Blue"
         ForeColor       =   &H007A3020&
         Height          =   270
         HotForeColor    =   &H00FF6030&
         Left            =   240
         TabIndex        =   10
         Top             =   1110
         Value           =   1
         Width           =   2400
      End
   End
   Begin VB.Frame fraPlain 
      BackColor       =   &H80000005&
      Caption         =   "Delivery: the system's own"
      Height          =   2055
      Left            =   6330
      TabIndex        =   12
      Top             =   960
      Width           =   2880
      Begin VB.OptionButton optPost 
         BackColor       =   &H80000005&
         Caption         =   "By &post"
         Height          =   270
         Left            =   240
         TabIndex        =   13
         Top             =   360
         Width           =   2400
      End
      Begin VB.OptionButton optCourier 
         BackColor       =   &H80000005&
         Caption         =   "By co&urier"
         Height          =   270
         Left            =   240
         TabIndex        =   14
         Top             =   735
         Value           =   -1  'True
         Width           =   2400
      End
      Begin VB.OptionButton optFetch 
         BackColor       =   &H80000005&
         Caption         =   "&Fetched"
         Height          =   270
         Left            =   240
         TabIndex        =   15
         Top             =   1110
         Width           =   2400
      End
      Begin VB.OptionButton optPigeon 
         BackColor       =   &H80000005&
         Caption         =   "By pigeon"
         Enabled         =   0   'False
         Height          =   270
         Left            =   240
         TabIndex        =   16
         Top             =   1485
         Width           =   2400
      End
   End
   Begin VB.Frame fraExtras 
      BackColor       =   &H80000005&
      Caption         =   "Extras: check boxes in three states"
      Height          =   2055
      Left            =   240
      TabIndex        =   17
      Top             =   3165
      Width           =   8970
      Begin Quillet.qvFlatCheck chkGift 
         BackColor       =   &H80000005&
         Caption         =   "G&ift wrapping"
         Height          =   270
         Left            =   240
         TabIndex        =   18
         ToolTipText     =   "Clear"
         Top             =   360
         Width           =   2700
      End
      Begin Quillet.qvFlatCheck chkCard 
         BackColor       =   &H80000005&
         Caption         =   "With a &card"
         Height          =   270
         Left            =   240
         TabIndex        =   19
         ToolTipText     =   "Set"
         Top             =   735
         Value           =   1
         Width           =   2700
      End
      Begin Quillet.qvFlatCheck chkNews 
         BackColor       =   &H80000005&
         Caption         =   "Some &newsletters"
         Height          =   270
         Left            =   240
         TabIndex        =   20
         ToolTipText     =   "The third state: by code alone"
         Top             =   1110
         Value           =   2
         Width           =   2700
      End
      Begin Quillet.qvFlatCheck chkNever 
         BackColor       =   &H80000005&
         Caption         =   "Set and disabled"
         Enabled         =   0   'False
         Height          =   270
         Left            =   240
         TabIndex        =   21
         Top             =   1485
         Value           =   1
         Width           =   2700
      End
      Begin Quillet.qvFlatCheck chkExpress 
         BackColor       =   &H00FFEEE8&
         Caption         =   "E&xpress"
         ForeColor       =   &H007A3020&
         Height          =   270
         HotForeColor    =   &H000070E0&
         Left            =   3285
         TabIndex        =   22
         ToolTipText     =   "Its own hot colour"
         Top             =   360
         Width           =   2625
      End
      Begin Quillet.qvFlatCheck chkInsured 
         BackColor       =   &H00EAF8EA&
         Caption         =   "Insure&d"
         ForeColor       =   &H00205A20&
         Height          =   270
         HotForeColor    =   &H0010B010&
         Left            =   3285
         TabIndex        =   23
         Top             =   735
         Value           =   1
         Width           =   2625
      End
      Begin Quillet.qvFlatCheck chkLong 
         BackColor       =   &H00E8ECFF&
         Caption         =   "Third state, and &hot"
         ForeColor       =   &H0020207A&
         Height          =   270
         HotForeColor    =   &H003030FF&
         Left            =   3285
         TabIndex        =   24
         Top             =   1110
         Value           =   2
         Width           =   2625
      End
      Begin Quillet.qvFlatCheck chkOff 
         BackColor       =   &H80000005&
         Caption         =   "Clear and disabled"
         Enabled         =   0   'False
         Height          =   270
         Left            =   3285
         TabIndex        =   25
         Top             =   1485
         Width           =   2625
      End
      Begin VB.CheckBox chkPlain 
         BackColor       =   &H80000005&
         Caption         =   "The s&ystem's own"
         Height          =   270
         Left            =   6330
         TabIndex        =   26
         Top             =   360
         Width           =   2400
      End
      Begin VB.CheckBox chkPlainSet 
         BackColor       =   &H80000005&
         Caption         =   "Set"
         Height          =   270
         Left            =   6330
         TabIndex        =   27
         Top             =   735
         Value           =   1  'Checked
         Width           =   2400
      End
      Begin VB.CheckBox chkPlainOff 
         BackColor       =   &H80000005&
         Caption         =   "Disabled"
         Enabled         =   0   'False
         Height          =   270
         Left            =   6330
         TabIndex        =   28
         Top             =   1110
         Width           =   2400
      End
   End
   Begin Quillet.qvFlatCommand cmdOrder 
      Caption         =   "&Order"
      CentreCaption   =   -1  'True
      Default         =   -1  'True
      Height          =   390
      Left            =   7110
      TabIndex        =   29
      ToolTipText     =   "The default button: Enter"
      Top             =   5400
      Width           =   2100
   End
End
Attribute VB_Name = "frmOptions"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
