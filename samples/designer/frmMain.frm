VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmMain 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Flat buttons"
   ClientHeight    =   2115
   ClientLeft      =   900
   ClientTop       =   900
   ClientWidth     =   4500
   MaxButton       =   0   'False
   ScaleHeight     =   2115
   ScaleWidth      =   4500
   StartUpPosition =   2  'CenterScreen
   Begin VB.Label lblStatus 
      Caption         =   "Point at a button."
      Height          =   255
      Left            =   240
      TabIndex        =   3
      Top             =   1560
      Width           =   4020
   End
   Begin Quillet.qvFlatCommand cmdSave 
      Caption         =   "&Save changes"
      CentreCaption   =   -1  'True
      Default         =   -1  'True
      Height          =   480
      HotBackColor    =   &H00F7DFD6&
      HotBorderColor  =   &H00C56A31&
      Left            =   240
      TabIndex        =   0
      ToolTipText     =   "Writes the document to disk"
      Top             =   240
      Width           =   1800
   End
   Begin Quillet.qvFlatCommand cmdOptions 
      Caption         =   "&Options..."
      CentreCaption   =   -1  'True
      Height          =   480
      Left            =   2340
      OfficeXPColors  =   -1  'True
      TabIndex        =   1
      ToolTipText     =   "Opens the second form"
      Top             =   240
      Width           =   1800
   End
   Begin Quillet.FlatToolButton tbClose 
      Cancel          =   -1  'True
      Caption         =   "Close"
      Height          =   420
      Left            =   240
      TabIndex        =   2
      ToolTipText     =   "Ends the program"
      Top             =   900
      Width           =   900
   End
End
Attribute VB_Name = "frmMain"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private m_saved As Long

Private Sub cmdSave_Click()
    m_saved = m_saved + 1
    Caption = "Saved " & m_saved
End Sub

Private Sub cmdSave_MouseEnter()
    lblStatus.Caption = cmdSave.ToolTipText
End Sub

Private Sub cmdSave_MouseExit()
    lblStatus.Caption = ""
End Sub

Private Sub cmdOptions_Click()
    frmOptions.Show vbModal
End Sub

Private Sub tbClose_Click()
    Unload Me
End Sub
