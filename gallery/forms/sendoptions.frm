VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmSendOptions 
   BorderStyle     =   1
   Caption         =   "Send options"
   ClientHeight    =   2580
   ClientLeft      =   900
   ClientTop       =   900
   ClientWidth     =   5160
   MaxButton       =   0   'False
   ScaleHeight     =   2580
   ScaleWidth      =   5160
   StartUpPosition =   2
   Begin VB.Frame fraImportance 
      Caption         =   "Importance"
      Height          =   1590
      Left            =   180
      TabIndex        =   3
      Top             =   180
      Width           =   1950
      Begin Quillet.qvFlatOption optLow 
         Caption         =   "&Low"
         Height          =   285
         Left            =   210
         TabIndex        =   0
         Top             =   360
         Width           =   1500
      End
      Begin Quillet.qvFlatOption optNormal 
         Caption         =   "&Normal"
         Height          =   285
         Left            =   210
         TabIndex        =   1
         Top             =   720
         Value           =   1
         Width           =   1500
      End
      Begin Quillet.qvFlatOption optHigh 
         Caption         =   "&High"
         Height          =   285
         Left            =   210
         TabIndex        =   2
         Top             =   1080
         Width           =   1500
      End
   End
   Begin VB.Frame fraDelivery 
      Caption         =   "Delivery"
      Height          =   1590
      Left            =   2280
      TabIndex        =   7
      Top             =   180
      Width           =   2700
      Begin Quillet.qvFlatCheck chkReceipt 
         Caption         =   "Ask for a &receipt"
         Height          =   285
         Left            =   210
         TabIndex        =   4
         Top             =   360
         Width           =   2250
      End
      Begin Quillet.qvFlatCheck chkCopy 
         Caption         =   "&Keep a copy in Sent"
         Height          =   285
         Left            =   210
         TabIndex        =   5
         Top             =   720
         Value           =   1
         Width           =   2250
      End
      Begin Quillet.qvFlatCheck chkSign 
         Caption         =   "&Sign the message"
         Height          =   285
         Left            =   210
         TabIndex        =   6
         Top             =   1080
         Value           =   1
         Width           =   2250
      End
   End
   Begin Quillet.qvImageCommand imgOk 
      Caption         =   " OK"
      CaptionIndent   =   8
      Default         =   -1  'True
      Height          =   420
      Image           =   "sendoptions.frx":0000
      Left            =   2280
      TabIndex        =   8
      Top             =   1980
      Width           =   1290
   End
   Begin Quillet.qvImageCommand imgCancel 
      Cancel          =   -1  'True
      Caption         =   " Cancel"
      CaptionIndent   =   8
      Height          =   420
      Image           =   "sendoptions.frx":048A
      Left            =   3690
      TabIndex        =   9
      Top             =   1980
      Width           =   1290
   End
End
Attribute VB_Name = "frmSendOptions"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
