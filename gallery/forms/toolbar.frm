VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmToolbar 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Quillet - tool bar and picture buttons"
   ClientHeight    =   6300
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
   MaxButton       =   0   'False
   ScaleHeight     =   6300
   ScaleWidth      =   9450
   StartUpPosition =   2  'CenterScreen
   Begin Quillet.FlatToolButton tbNew 
      Height          =   420
      Image           =   "toolbar.frx":0000
      Left            =   150
      TabIndex        =   0
      ToolTipText     =   "New"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbOpen 
      Height          =   420
      Image           =   "toolbar.frx":048A
      Left            =   585
      TabIndex        =   1
      ToolTipText     =   "Open"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbSave 
      Height          =   420
      Image           =   "toolbar.frx":0914
      Left            =   1020
      TabIndex        =   2
      ToolTipText     =   "Save"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbPrint 
      DisabledImage   =   "toolbar.frx":47C8
      Enabled         =   0   'False
      Height          =   420
      Image           =   "toolbar.frx":0D9E
      Left            =   1455
      TabIndex        =   3
      ToolTipText     =   "Print: disabled, with a picture for that"
      Top             =   120
      Width           =   420
   End
   Begin VB.Label lblGap1 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   360
      Left            =   1950
      TabIndex        =   4
      Top             =   150
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbCut 
      Height          =   420
      Image           =   "toolbar.frx":1228
      Left            =   2040
      TabIndex        =   5
      ToolTipText     =   "Cut"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbCopy 
      Height          =   420
      Image           =   "toolbar.frx":16B2
      Left            =   2475
      TabIndex        =   6
      ToolTipText     =   "Copy"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbPaste 
      DisabledImage   =   "toolbar.frx":4C52
      Enabled         =   0   'False
      Height          =   420
      Image           =   "toolbar.frx":1B3C
      Left            =   2910
      TabIndex        =   7
      ToolTipText     =   "Paste"
      Top             =   120
      Width           =   420
   End
   Begin VB.Label lblGap2 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   360
      Left            =   3405
      TabIndex        =   8
      Top             =   150
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbUndo 
      Height          =   420
      Image           =   "toolbar.frx":1FC6
      Left            =   3495
      TabIndex        =   9
      ToolTipText     =   "Undo"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbRedo 
      Height          =   420
      Image           =   "toolbar.frx":2450
      Left            =   3930
      TabIndex        =   10
      ToolTipText     =   "Redo"
      Top             =   120
      Width           =   420
   End
   Begin VB.Label lblGap3 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   360
      Left            =   4425
      TabIndex        =   11
      Top             =   150
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbBold 
      CheckButton     =   -1  'True
      Checked         =   -1  'True
      Height          =   420
      Image           =   "toolbar.frx":2D64
      Left            =   4515
      TabIndex        =   12
      ToolTipText     =   "Bold: a check button"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbItalic 
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "toolbar.frx":31EE
      Left            =   4950
      TabIndex        =   13
      ToolTipText     =   "Italic: a check button"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbUnderline 
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "toolbar.frx":3678
      Left            =   5385
      TabIndex        =   14
      ToolTipText     =   "Underline: a check button"
      Top             =   120
      Width           =   420
   End
   Begin VB.Label lblGap4 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   360
      Left            =   5880
      TabIndex        =   15
      Top             =   150
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbLeft 
      CheckButton     =   -1  'True
      Checked         =   -1  'True
      Height          =   420
      Image           =   "toolbar.frx":3B02
      Left            =   5970
      TabIndex        =   16
      ToolTipText     =   "Left: a bitmap"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbCentre 
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "toolbar.frx":3F44
      Left            =   6405
      TabIndex        =   17
      ToolTipText     =   "Centre: a bitmap"
      Top             =   120
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbRight 
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "toolbar.frx":4386
      Left            =   6840
      TabIndex        =   18
      ToolTipText     =   "Right: a bitmap"
      Top             =   120
      Width           =   420
   End
   Begin VB.Label lblGap5 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   360
      Left            =   7335
      TabIndex        =   19
      Top             =   150
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbFind 
      Caption         =   "&Find"
      Height          =   420
      Image           =   "toolbar.frx":28DA
      Left            =   7425
      TabIndex        =   20
      ToolTipText     =   "Picture and caption"
      Top             =   120
      Width           =   960
   End
   Begin VB.Label lblEdge 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   15
      Left            =   0
      TabIndex        =   21
      Top             =   630
      Width           =   9450
   End
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
      Caption         =   "Picture buttons"
      Height          =   420
      Left            =   240
      TabIndex        =   22
      Top             =   810
      Width           =   8850
   End
   Begin VB.Label lblHint 
      Caption         =   "The tool bar above is made of FlatToolButton, everything below of qvImageCommand."
      ForeColor       =   &H80000012&
      Height          =   240
      Left            =   240
      TabIndex        =   23
      Top             =   1260
      Width           =   8850
   End
   Begin VB.Frame fraLooks 
      Caption         =   "Looks"
      Height          =   3750
      Left            =   240
      TabIndex        =   24
      Top             =   1680
      Width           =   2910
      Begin Quillet.qvImageCommand imgPictures 
         Caption         =   "&A picture for each look"
         DarkBorderColor =   &H00A0A0A0&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotImage        =   "toolbar.frx":5566
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":50DC
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedImage    =   "toolbar.frx":59F0
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   25
         ToolTipText     =   "Image, HotImage, PressedImage"
         Top             =   330
         Width           =   2490
      End
      Begin Quillet.qvImageCommand imgChecked 
         BackColor       =   &H00FFFFFF&
         Caption         =   "&Check button"
         CheckButton     =   -1  'True
         Checked         =   -1  'True
         CheckedBackColor =   &H00F5F0E6&
         CheckedDarkBorderColor =   &H00E0E0E0&
         CheckedLightBorderColor =   &H00A0A0A0&
         DarkBorderColor =   &H00A0A0A0&
         ForeColor       =   &H00703A00&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":59F0
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedImage    =   "toolbar.frx":5E7A
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   26
         ToolTipText     =   "CheckButton, Checked; PressedImage at rest"
         Top             =   870
         Width           =   2490
      End
      Begin Quillet.qvImageCommand imgThick 
         BackColor       =   &H00EDEDED&
         BorderWidth     =   3
         Caption         =   "&Thick border"
         DarkBorderColor =   &H00909090&
         ForeColor       =   &H00202020&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotBorderWidth  =   3
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":5E7A
         Left            =   210
         LightBorderColor =   &H00FFFFFF&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedBorderWidth =   3
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   27
         ToolTipText     =   "Three pixels of border"
         Top             =   1410
         Width           =   2490
      End
      Begin Quillet.qvImageCommand imgBare 
         BackColor       =   &H00E6E6E6&
         BorderStyle     =   0
         Caption         =   "&No border"
         DarkBorderColor =   &H00A0A0A0&
         ForeColor       =   &H00202020&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":59F0
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   28
         ToolTipText     =   "BorderStyle 0"
         Top             =   1950
         Width           =   2490
      End
      Begin Quillet.qvImageCommand imgDisabled 
         Caption         =   "Disabled"
         DarkBorderColor =   &H00A0A0A0&
         DisabledImage   =   "toolbar.frx":6304
         Enabled         =   0   'False
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":50DC
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   29
         ToolTipText     =   "DisabledImage"
         Top             =   2490
         Width           =   2490
      End
      Begin Quillet.qvImageCommand imgCentred 
         Caption         =   "Ce&ntred, no picture"
         CentreCaption   =   -1  'True
         DarkBorderColor =   &H00A0A0A0&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   30
         ToolTipText     =   "CentreCaption"
         Top             =   3030
         Width           =   2490
      End
   End
   Begin VB.Frame fraWidth 
      Caption         =   "Width"
      Height          =   2580
      Left            =   3270
      TabIndex        =   31
      Top             =   1680
      Width           =   2910
      Begin Quillet.qvImageCommand imgShort 
         AutoSizeWidth   =   -1  'True
         Caption         =   "&Go"
         DarkBorderColor =   &H00A0A0A0&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":5E7A
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   32
         ToolTipText     =   "AutoSizeWidth: the width follows the content"
         Top             =   330
         Width           =   600
      End
      Begin Quillet.qvImageCommand imgMiddle 
         AutoSizeWidth   =   -1  'True
         Caption         =   "&Send mail"
         DarkBorderColor =   &H00A0A0A0&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":50DC
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   33
         ToolTipText     =   "AutoSizeWidth: the width follows the content"
         Top             =   870
         Width           =   1200
      End
      Begin Quillet.qvImageCommand imgLong 
         AutoSizeWidth   =   -1  'True
         Caption         =   "Send mail to &everybody"
         DarkBorderColor =   &H00A0A0A0&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":50DC
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   34
         ToolTipText     =   "AutoSizeWidth: the width follows the content"
         Top             =   1410
         Width           =   2400
      End
      Begin Quillet.qvImageCommand imgFixed 
         Caption         =   "Fi&xed"
         DarkBorderColor =   &H00A0A0A0&
         Height          =   450
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":59F0
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   35
         ToolTipText     =   "AutoSizeWidth off"
         Top             =   1950
         Width           =   2490
      End
   End
   Begin VB.Frame fraPane 
      Caption         =   "Task pane"
      Height          =   2580
      Left            =   6300
      TabIndex        =   36
      Top             =   1680
      Width           =   2910
      Begin Quillet.qvImageCommand imgPaneOpen 
         Caption         =   "Open a document"
         Height          =   450
         Image           =   "toolbar.frx":048A
         Left            =   210
         OfficeXPColors  =   -1
         TabIndex        =   37
         ToolTipText     =   "OfficeXPColors"
         Top             =   330
         Width           =   2490
      End
      Begin Quillet.FlatToolButton imgPaneNew 
         Caption         =   "New document"
         Height          =   450
         Image           =   "toolbar.frx":0000
         Left            =   210
         OfficeXPColors  =   -1
         TabIndex        =   38
         ToolTipText     =   "OfficeXPColors"
         Top             =   870
         Width           =   2490
      End
      Begin Quillet.qvImageCommand imgPaneKeep 
         Caption         =   "Keep it checked"
         CheckButton     =   -1  'True
         Checked         =   -1  'True
         Height          =   450
         Image           =   "toolbar.frx":59F0
         Left            =   210
         OfficeXPColors  =   -1
         TabIndex        =   39
         ToolTipText     =   "OfficeXPColors"
         Top             =   1410
         Width           =   2490
      End
      Begin Quillet.qvImageCommand imgPaneOff 
         Caption         =   "Not for you"
         DisabledImage   =   "toolbar.frx":4C52
         Enabled         =   0   'False
         Height          =   450
         Image           =   "toolbar.frx":6304
         Left            =   210
         OfficeXPColors  =   -1
         TabIndex        =   40
         ToolTipText     =   "OfficeXPColors"
         Top             =   1950
         Width           =   2490
      End
   End
   Begin VB.Frame fraLarge 
      Caption         =   "Large"
      Height          =   1110
      Left            =   3270
      TabIndex        =   41
      Top             =   4320
      Width           =   5940
      Begin Quillet.qvImageCommand imgMail 
         DarkBorderColor =   &H00A0A0A0&
         Height          =   660
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotImage        =   "toolbar.frx":7858
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":678E
         Left            =   210
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   42
         ToolTipText     =   "32 pixels"
         Top             =   330
         Width           =   690
      End
      Begin Quillet.qvImageCommand imgStar 
         DarkBorderColor =   &H00A0A0A0&
         Height          =   660
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":8922
         Left            =   990
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   43
         ToolTipText     =   "32 pixels"
         Top             =   330
         Width           =   690
      End
      Begin Quillet.qvImageCommand imgFind 
         DarkBorderColor =   &H00A0A0A0&
         Height          =   660
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":99EC
         Left            =   1770
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   44
         ToolTipText     =   "32 pixels"
         Top             =   330
         Width           =   690
      End
      Begin Quillet.qvImageCommand imgDisk 
         DarkBorderColor =   &H00A0A0A0&
         DisabledImage   =   "toolbar.frx":CC4A
         Enabled         =   0   'False
         Height          =   660
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":AAB6
         Left            =   2550
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   45
         ToolTipText     =   "32 pixels"
         Top             =   330
         Width           =   690
      End
      Begin Quillet.qvImageCommand imgLarge 
         Caption         =   "&Large picture"
         DarkBorderColor =   &H00A0A0A0&
         Height          =   660
         HotBackColor    =   &H00FBE6D2&
         HotDarkBorderColor =   &H00B0702A&
         HotForeColor    =   &H00703A00&
         HotLightBorderColor =   &H00D5A06A&
         Image           =   "toolbar.frx":8922
         Left            =   3330
         LightBorderColor =   &H00C8C8C8&
         OffsetPressed   =   -1  'True
         PressedBackColor =   &H00F0CFA8&
         PressedDarkBorderColor =   &H00D5A06A&
         PressedForeColor =   &H00703A00&
         PressedLightBorderColor =   &H00B0702A&
         TabIndex        =   46
         ToolTipText     =   "32 pixels"
         Top             =   330
         Width           =   2310
      End
   End
   Begin Quillet.qvImageCommand imgOk 
      Caption         =   "&OK"
      DarkBorderColor =   &H00A0A0A0&
      Default         =   -1  'True
      Height          =   450
      HotBackColor    =   &H00FBE6D2&
      HotDarkBorderColor =   &H00B0702A&
      HotForeColor    =   &H00703A00&
      HotLightBorderColor =   &H00D5A06A&
      Image           =   "toolbar.frx":5E7A
      Left            =   6270
      LightBorderColor =   &H00C8C8C8&
      OffsetPressed   =   -1  'True
      PressedBackColor =   &H00F0CFA8&
      PressedDarkBorderColor =   &H00D5A06A&
      PressedForeColor =   &H00703A00&
      PressedLightBorderColor =   &H00B0702A&
      TabIndex        =   47
      ToolTipText     =   "Enter"
      Top             =   5610
      Width           =   1410
   End
   Begin Quillet.qvImageCommand imgCancel 
      Cancel          =   -1  'True
      Caption         =   "Cancel"
      DarkBorderColor =   &H00A0A0A0&
      Height          =   450
      HotBackColor    =   &H00FBE6D2&
      HotDarkBorderColor =   &H00B0702A&
      HotForeColor    =   &H00703A00&
      HotLightBorderColor =   &H00D5A06A&
      Image           =   "toolbar.frx":6304
      Left            =   7800
      LightBorderColor =   &H00C8C8C8&
      OffsetPressed   =   -1  'True
      PressedBackColor =   &H00F0CFA8&
      PressedDarkBorderColor =   &H00D5A06A&
      PressedForeColor =   &H00703A00&
      PressedLightBorderColor =   &H00B0702A&
      TabIndex        =   48
      ToolTipText     =   "Esc"
      Top             =   5610
      Width           =   1410
   End
End
Attribute VB_Name = "frmToolbar"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub imgCancel_Click()
    Unload Me
End Sub
