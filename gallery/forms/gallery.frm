VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmGallery 
   BorderStyle     =   1
   Caption         =   "Quillet"
   ClientHeight    =   615
   ClientLeft      =   900
   ClientTop       =   900
   ClientWidth     =   9450
   MaxButton       =   0   'False
   ScaleHeight     =   615
   ScaleWidth      =   9450
   StartUpPosition =   2
   Begin Quillet.FlatToolButton tbForm 
      Caption         =   " &Buttons"
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "gallery.frx":0000
      Index           =   0
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   0
      Tag             =   "buttons.frm"
      ToolTipText     =   "Flat command buttons in every look"
      Top             =   90
      Width           =   1170
   End
   Begin Quillet.FlatToolButton tbForm 
      Caption         =   " P&ictures"
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "gallery.frx":048A
      Index           =   1
      Left            =   1350
      OfficeXPColors  =   -1  'True
      TabIndex        =   1
      Tag             =   "toolbar.frm"
      ToolTipText     =   "A tool bar, and buttons with pictures"
      Top             =   90
      Width           =   1170
   End
   Begin Quillet.FlatToolButton tbForm 
      Caption         =   " &Options"
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "gallery.frx":0914
      Index           =   2
      Left            =   2580
      OfficeXPColors  =   -1  'True
      TabIndex        =   2
      Tag             =   "options.frm"
      ToolTipText     =   "Option buttons and check boxes"
      Top             =   90
      Width           =   1170
   End
   Begin Quillet.FlatToolButton tbForm 
      Caption         =   " &Mail"
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "gallery.frx":0D9E
      Index           =   3
      Left            =   3810
      OfficeXPColors  =   -1  'True
      TabIndex        =   3
      Tag             =   "mail.frm"
      ToolTipText     =   "A small application made of these controls"
      Top             =   90
      Width           =   990
   End
   Begin VB.Label lblGap 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   330
      Left            =   4920
      TabIndex        =   4
      Top             =   135
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbDesign 
      Caption         =   " &Design"
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "gallery.frx":1228
      Left            =   5040
      OfficeXPColors  =   -1  'True
      TabIndex        =   5
      ToolTipText     =   "Design instead of run: a double click on a control opens its property pages"
      Top             =   90
      Width           =   1140
   End
   Begin Quillet.FlatToolButton tbSave 
      Caption         =   " &Save"
      Height          =   420
      Image           =   "gallery.frx":16B2
      Left            =   6240
      OfficeXPColors  =   -1  'True
      TabIndex        =   6
      ToolTipText     =   "Save the form as it was designed"
      Top             =   90
      Visible         =   0   'False
      Width           =   960
   End
   Begin VB.Label lblEdge 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   15
      Left            =   0
      TabIndex        =   7
      Top             =   600
      Width           =   60000
   End
End
Attribute VB_Name = "frmGallery"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
