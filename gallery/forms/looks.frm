VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmLooks 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Quillet - looks"
   ClientHeight    =   2850
   ClientLeft      =   900
   ClientTop       =   900
   ClientWidth     =   5340
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   StartUpPosition =   2  'CenterScreen
   Begin Quillet.qvFlatCommand cmdNormal 
      Caption         =   "Normal"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   240
      TabIndex        =   1
      Top             =   240
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdHot 
      Caption         =   "Hot"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   1920
      TabIndex        =   2
      Top             =   240
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdPressed 
      Caption         =   "Pressed"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   3600
      TabIndex        =   3
      Top             =   240
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdFocused 
      Caption         =   "Focused"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   240
      TabIndex        =   4
      Top             =   780
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdDefault 
      Caption         =   "Default"
      CentreCaption   =   -1  'True
      Default         =   -1  'True
      Height          =   420
      Left            =   1920
      TabIndex        =   5
      Top             =   780
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdDisabled 
      Caption         =   "Disabled"
      CentreCaption   =   -1  'True
      Enabled         =   0   'False
      Height          =   420
      Left            =   3600
      TabIndex        =   6
      Top             =   780
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdPaneNormal 
      Caption         =   "Normal"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   240
      OfficeXPColors  =   -1  'True
      TabIndex        =   7
      Top             =   1500
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdPaneHot 
      Caption         =   "Hot"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   1920
      OfficeXPColors  =   -1  'True
      TabIndex        =   8
      Top             =   1500
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdPanePressed 
      Caption         =   "Pressed"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   3600
      OfficeXPColors  =   -1  'True
      TabIndex        =   9
      Top             =   1500
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdPaneFocused 
      Caption         =   "Focused"
      CentreCaption   =   -1  'True
      Height          =   420
      Left            =   240
      OfficeXPColors  =   -1  'True
      TabIndex        =   10
      Top             =   2040
      Width           =   1500
   End
   Begin Quillet.qvFlatCommand cmdPaneDisabled 
      Caption         =   "Disabled"
      CentreCaption   =   -1  'True
      Enabled         =   0   'False
      Height          =   420
      Left            =   1920
      OfficeXPColors  =   -1  'True
      TabIndex        =   11
      Top             =   2040
      Width           =   1500
   End
   Begin VB.TextBox txtFirst 
      Height          =   420
      Left            =   3600
      TabIndex        =   0
      Text            =   "The focus"
      Top             =   2040
      Width           =   1500
   End
End
Attribute VB_Name = "frmLooks"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
