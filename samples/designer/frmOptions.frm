VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmOptions 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Options"
   ClientHeight    =   2400
   ClientLeft      =   900
   ClientTop       =   900
   ClientWidth     =   3600
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   2400
   ScaleWidth      =   3600
   StartUpPosition =   2  'CenterScreen
   Begin VB.Frame fraSize 
      Caption         =   "Size"
      Height          =   1095
      Left            =   240
      TabIndex        =   0
      Top             =   150
      Width           =   3120
      Begin Quillet.qvFlatOption optSmall 
         Caption         =   "S&mall"
         Height          =   270
         Left            =   240
         TabIndex        =   1
         Top             =   300
         Value           =   1
         Width           =   2400
      End
      Begin Quillet.qvFlatOption optLarge 
         Caption         =   "&Large"
         Height          =   270
         Left            =   240
         TabIndex        =   2
         Top             =   660
         Width           =   2400
      End
   End
   Begin Quillet.qvFlatCheck chkBackup 
      Caption         =   "Keep a &backup"
      Height          =   270
      Left            =   480
      TabIndex        =   3
      Top             =   1380
      Width           =   2400
   End
   Begin Quillet.qvFlatCommand cmdOk 
      Caption         =   "OK"
      CentreCaption   =   -1  'True
      Default         =   -1  'True
      Height          =   390
      Left            =   2160
      TabIndex        =   4
      Top             =   1800
      Width           =   1200
   End
End
Attribute VB_Name = "frmOptions"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub chkBackup_Click()
    Caption = IIf(chkBackup.Value = vbChecked, "Options: with a backup", "Options")
End Sub

Private Sub cmdOk_Click()
    Unload Me
End Sub
