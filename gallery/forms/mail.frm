VERSION 5.00
Object = "{B451FB09-0E80-40CF-B3BD-7CC480918F2F}#1.0#0"; "quilbt.ocx"
Begin VB.Form frmMail 
   BorderStyle     =   1
   Caption         =   "Quillet - mail"
   ClientHeight    =   6750
   ClientLeft      =   900
   ClientTop       =   900
   ClientWidth     =   9450
   MaxButton       =   0   'False
   ScaleHeight     =   6750
   ScaleWidth      =   9450
   StartUpPosition =   2
   Begin Quillet.FlatToolButton tbNew 
      Caption         =   " &New"
      Height          =   420
      Image           =   "mail.frx":0000
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   0
      ToolTipText     =   "Write a message"
      Top             =   90
      Width           =   930
   End
   Begin VB.Label lblGap1 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   330
      Left            =   1125
      TabIndex        =   1
      Top             =   135
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbReply 
      Caption         =   " &Reply"
      Height          =   420
      Image           =   "mail.frx":048A
      Left            =   1200
      OfficeXPColors  =   -1  'True
      TabIndex        =   2
      ToolTipText     =   "Answer the sender"
      Top             =   90
      Width           =   990
   End
   Begin Quillet.FlatToolButton tbForward 
      Caption         =   " For&ward"
      Height          =   420
      Image           =   "mail.frx":0914
      Left            =   2220
      OfficeXPColors  =   -1  'True
      TabIndex        =   3
      ToolTipText     =   "Send it on"
      Top             =   90
      Width           =   1200
   End
   Begin VB.Label lblGap2 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   330
      Left            =   3495
      TabIndex        =   4
      Top             =   135
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbDelete 
      Height          =   420
      Image           =   "mail.frx":0D9E
      Left            =   3570
      OfficeXPColors  =   -1  'True
      TabIndex        =   5
      ToolTipText     =   "Delete"
      Top             =   90
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbFlag 
      CheckButton     =   -1  'True
      Height          =   420
      Image           =   "mail.frx":1228
      Left            =   4020
      OfficeXPColors  =   -1  'True
      TabIndex        =   6
      ToolTipText     =   "Flag for later"
      Top             =   90
      Width           =   420
   End
   Begin Quillet.FlatToolButton tbPrint 
      Height          =   420
      Image           =   "mail.frx":16B2
      Left            =   4470
      OfficeXPColors  =   -1  'True
      TabIndex        =   7
      ToolTipText     =   "Print"
      Top             =   90
      Width           =   420
   End
   Begin VB.Label lblGap3 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   330
      Left            =   4965
      TabIndex        =   8
      Top             =   135
      Width           =   15
   End
   Begin Quillet.FlatToolButton tbFind 
      Caption         =   " &Find"
      Height          =   420
      Image           =   "mail.frx":1B3C
      Left            =   5040
      OfficeXPColors  =   -1  'True
      TabIndex        =   9
      ToolTipText     =   "Find messages"
      Top             =   90
      Width           =   930
   End
   Begin Quillet.FlatToolButton tbOptions 
      Caption         =   " Send o&ptions"
      Height          =   420
      Image           =   "mail.frx":1FC6
      Left            =   7770
      OfficeXPColors  =   -1  'True
      TabIndex        =   10
      Tag             =   "sendoptions.frm"
      ToolTipText     =   "How messages are sent"
      Top             =   90
      Width           =   1560
   End
   Begin VB.Label lblEdge 
      BackColor       =   &H80000010&
      Caption         =   ""
      Height          =   15
      Left            =   0
      TabIndex        =   11
      Top             =   600
      Width           =   9450
   End
   Begin VB.Label lblFolders 
      BeginProperty Font 
         Name            =   "Tahoma"
         Size            =   8.25
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Caption         =   "Folders"
      Height          =   225
      Left            =   210
      TabIndex        =   12
      Top             =   780
      Width           =   2100
   End
   Begin Quillet.qvImageCommand imgFolder 
      BorderStyle     =   0
      Caption         =   " Inbox"
      CaptionIndent   =   6
      CheckButton     =   -1  'True
      Checked         =   -1  'True
      Height          =   390
      Image           =   "mail.frx":2450
      Index           =   0
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   13
      Top             =   1080
      Width           =   2190
   End
   Begin Quillet.qvImageCommand imgFolder 
      BorderStyle     =   0
      Caption         =   " Drafts"
      CaptionIndent   =   6
      CheckButton     =   -1  'True
      Height          =   390
      Image           =   "mail.frx":28DA
      Index           =   1
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   14
      Top             =   1500
      Width           =   2190
   End
   Begin Quillet.qvImageCommand imgFolder 
      BorderStyle     =   0
      Caption         =   " Sent"
      CaptionIndent   =   6
      CheckButton     =   -1  'True
      Height          =   390
      Image           =   "mail.frx":2D64
      Index           =   2
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   15
      Top             =   1920
      Width           =   2190
   End
   Begin Quillet.qvImageCommand imgFolder 
      BorderStyle     =   0
      Caption         =   " Flagged"
      CaptionIndent   =   6
      CheckButton     =   -1  'True
      Height          =   390
      Image           =   "mail.frx":1228
      Index           =   3
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   16
      Top             =   2340
      Width           =   2190
   End
   Begin Quillet.qvImageCommand imgFolder 
      BorderStyle     =   0
      Caption         =   " Deleted"
      CaptionIndent   =   6
      CheckButton     =   -1  'True
      Height          =   390
      Image           =   "mail.frx":0D9E
      Index           =   4
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   17
      Top             =   2760
      Width           =   2190
   End
   Begin VB.Label lblTasks 
      BeginProperty Font 
         Name            =   "Tahoma"
         Size            =   8.25
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Caption         =   "Mail tasks"
      Height          =   225
      Left            =   210
      TabIndex        =   18
      Top             =   3390
      Width           =   2100
   End
   Begin Quillet.qvImageCommand imgTask0 
      BorderStyle     =   0
      Caption         =   " Write a message"
      CaptionIndent   =   6
      Height          =   390
      Image           =   "mail.frx":0000
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   19
      Top             =   3690
      Width           =   2190
   End
   Begin Quillet.qvImageCommand imgTask1 
      BorderStyle     =   0
      Caption         =   " Find a message"
      CaptionIndent   =   6
      Height          =   390
      Image           =   "mail.frx":1B3C
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   20
      Top             =   4110
      Width           =   2190
   End
   Begin Quillet.qvImageCommand imgTask2 
      BorderStyle     =   0
      Caption         =   " Sort by &date"
      CaptionIndent   =   6
      Height          =   390
      Image           =   "mail.frx":3F8C
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   21
      Top             =   4530
      Width           =   2190
   End
   Begin Quillet.qvImageCommand imgTask3 
      BorderStyle     =   0
      Caption         =   " Empty the &bin"
      CaptionIndent   =   6
      Height          =   390
      Image           =   "mail.frx":0D9E
      Left            =   120
      OfficeXPColors  =   -1  'True
      TabIndex        =   22
      Top             =   4950
      Width           =   2190
   End
   Begin VB.Frame fraMessages 
      BorderStyle     =   0
      Caption         =   ""
      Height          =   2130
      Left            =   2430
      TabIndex        =   23
      Top             =   690
      Width           =   6930
      Begin Quillet.qvImageCommand imgMessage 
         BorderStyle     =   0
         Caption         =   " Clara Winter  -  The new tool bar"
         CaptionIndent   =   6
         CheckButton     =   -1  'True
         Checked         =   -1  'True
         Height          =   390
         Image           =   "mail.frx":3678
         Index           =   0
         Left            =   45
         OfficeXPColors  =   -1  'True
         TabIndex        =   24
         Tag             =   "fraMessage0"
         Top             =   45
         Width           =   5640
      End
      Begin VB.Label lblWhen 
         Alignment       =   1
         Caption         =   "10:42"
         ForeColor       =   &H80000011&
         Height          =   225
         Index           =   0
         Left            =   5760
         TabIndex        =   25
         Top             =   135
         Width           =   1050
      End
      Begin Quillet.qvImageCommand imgMessage 
         BorderStyle     =   0
         Caption         =   " Jonas Berg  -  Minutes of the design meeting"
         CaptionIndent   =   6
         CheckButton     =   -1  'True
         Height          =   390
         Image           =   "mail.frx":3678
         Index           =   1
         Left            =   45
         OfficeXPColors  =   -1  'True
         TabIndex        =   26
         Tag             =   "fraMessage1"
         Top             =   450
         Width           =   5640
      End
      Begin VB.Label lblWhen 
         Alignment       =   1
         Caption         =   "09:15"
         ForeColor       =   &H80000011&
         Height          =   225
         Index           =   1
         Left            =   5760
         TabIndex        =   27
         Top             =   540
         Width           =   1050
      End
      Begin Quillet.qvImageCommand imgMessage 
         BorderStyle     =   0
         Caption         =   " Mira Sand  -  Lunch on Thursday?"
         CaptionIndent   =   6
         CheckButton     =   -1  'True
         Height          =   390
         Image           =   "mail.frx":3B02
         Index           =   2
         Left            =   45
         OfficeXPColors  =   -1  'True
         TabIndex        =   28
         Tag             =   "fraMessage2"
         Top             =   855
         Width           =   5640
      End
      Begin VB.Label lblWhen 
         Alignment       =   1
         Caption         =   "08:57"
         ForeColor       =   &H80000011&
         Height          =   225
         Index           =   2
         Left            =   5760
         TabIndex        =   29
         Top             =   945
         Width           =   1050
      End
      Begin Quillet.qvImageCommand imgMessage 
         BorderStyle     =   0
         Caption         =   " Build service  -  All tests passed"
         CaptionIndent   =   6
         CheckButton     =   -1  'True
         Height          =   390
         Image           =   "mail.frx":3B02
         Index           =   3
         Left            =   45
         OfficeXPColors  =   -1  'True
         TabIndex        =   30
         Tag             =   "fraMessage3"
         Top             =   1260
         Width           =   5640
      End
      Begin VB.Label lblWhen 
         Alignment       =   1
         Caption         =   "Yesterday"
         ForeColor       =   &H80000011&
         Height          =   225
         Index           =   3
         Left            =   5760
         TabIndex        =   31
         Top             =   1350
         Width           =   1050
      End
      Begin Quillet.qvImageCommand imgMessage 
         BorderStyle     =   0
         Caption         =   " Noah Lind  -  Screenshots for the manual"
         CaptionIndent   =   6
         CheckButton     =   -1  'True
         Height          =   390
         Image           =   "mail.frx":3B02
         Index           =   4
         Left            =   45
         OfficeXPColors  =   -1  'True
         TabIndex        =   32
         Tag             =   "fraMessage4"
         Top             =   1665
         Width           =   5640
      End
      Begin VB.Label lblWhen 
         Alignment       =   1
         Caption         =   "Yesterday"
         ForeColor       =   &H80000011&
         Height          =   225
         Index           =   4
         Left            =   5760
         TabIndex        =   33
         Top             =   1755
         Width           =   1050
      End
   End
   Begin VB.Frame fraMessage0 
      BackColor       =   &H80000005&
      BorderStyle     =   0
      Caption         =   ""
      Height          =   3720
      Left            =   2430
      TabIndex        =   34
      Top             =   2910
      Width           =   6930
      Begin VB.Label lblSubject0 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   11.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         BackColor       =   &H80000005&
         Caption         =   "The new tool bar"
         ForeColor       =   &H80000008&
         Height          =   300
         Left            =   180
         TabIndex        =   35
         Top             =   150
         Width           =   6600
      End
      Begin VB.Label lblFrom0 
         BackColor       =   &H80000005&
         Caption         =   "From Clara Winter, 10:42"
         ForeColor       =   &H80000011&
         Height          =   225
         Left            =   180
         TabIndex        =   36
         Top             =   510
         Width           =   6600
      End
      Begin VB.Label lblRule0 
         BackColor       =   &H8000000F&
         Caption         =   ""
         Height          =   15
         Left            =   180
         TabIndex        =   37
         Top             =   810
         Width           =   6570
      End
      Begin VB.Label lblText00 
         BackColor       =   &H80000005&
         Caption         =   "Good morning,"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   38
         Top             =   930
         Width           =   6570
      End
      Begin VB.Label lblText01 
         BackColor       =   &H80000005&
         Caption         =   "the new tool bar is in, and everybody who has seen it wants it in their own program."
         ForeColor       =   &H80000008&
         Height          =   450
         Left            =   180
         TabIndex        =   39
         Top             =   1200
         Width           =   6570
      End
      Begin VB.Label lblText03 
         BackColor       =   &H80000005&
         Caption         =   "Hover over a button: it lights up. Press it: it goes down. Set Checked, and it stays there. The pictures keep their soft edges on every background."
         ForeColor       =   &H80000008&
         Height          =   450
         Left            =   180
         TabIndex        =   40
         Top             =   1815
         Width           =   6570
      End
      Begin VB.Label lblText05 
         BackColor       =   &H80000005&
         Caption         =   "Could you send me the form, so that I can try other colours?"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   41
         Top             =   2430
         Width           =   6570
      End
      Begin VB.Label lblText07 
         BackColor       =   &H80000005&
         Caption         =   "Clara"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   42
         Top             =   2820
         Width           =   6570
      End
   End
   Begin VB.Frame fraMessage1 
      BackColor       =   &H80000005&
      BorderStyle     =   0
      Caption         =   ""
      Height          =   3720
      Left            =   2430
      TabIndex        =   43
      Top             =   2910
      Visible         =   0   'False
      Width           =   6930
      Begin VB.Label lblSubject1 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   11.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         BackColor       =   &H80000005&
         Caption         =   "Minutes of the design meeting"
         ForeColor       =   &H80000008&
         Height          =   300
         Left            =   180
         TabIndex        =   44
         Top             =   150
         Width           =   6600
      End
      Begin VB.Label lblFrom1 
         BackColor       =   &H80000005&
         Caption         =   "From Jonas Berg, 09:15"
         ForeColor       =   &H80000011&
         Height          =   225
         Left            =   180
         TabIndex        =   45
         Top             =   510
         Width           =   6600
      End
      Begin VB.Label lblRule1 
         BackColor       =   &H8000000F&
         Caption         =   ""
         Height          =   15
         Left            =   180
         TabIndex        =   46
         Top             =   810
         Width           =   6570
      End
      Begin VB.Label lblText10 
         BackColor       =   &H80000005&
         Caption         =   "Hello all,"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   47
         Top             =   930
         Width           =   6570
      End
      Begin VB.Label lblText11 
         BackColor       =   &H80000005&
         Caption         =   "here is what we agreed on:"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   48
         Top             =   1200
         Width           =   6570
      End
      Begin VB.Label lblText13 
         BackColor       =   &H80000005&
         Caption         =   "1. Every button has four looks: normal, hot, pressed, disabled."
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   49
         Top             =   1590
         Width           =   6570
      End
      Begin VB.Label lblText14 
         BackColor       =   &H80000005&
         Caption         =   "2. The keyboard reaches everything."
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   50
         Top             =   1860
         Width           =   6570
      End
      Begin VB.Label lblText15 
         BackColor       =   &H80000005&
         Caption         =   "3. Nothing flickers."
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   51
         Top             =   2130
         Width           =   6570
      End
      Begin VB.Label lblText17 
         BackColor       =   &H80000005&
         Caption         =   "Jonas"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   52
         Top             =   2520
         Width           =   6570
      End
   End
   Begin VB.Frame fraMessage2 
      BackColor       =   &H80000005&
      BorderStyle     =   0
      Caption         =   ""
      Height          =   3720
      Left            =   2430
      TabIndex        =   53
      Top             =   2910
      Visible         =   0   'False
      Width           =   6930
      Begin VB.Label lblSubject2 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   11.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         BackColor       =   &H80000005&
         Caption         =   "Lunch on Thursday?"
         ForeColor       =   &H80000008&
         Height          =   300
         Left            =   180
         TabIndex        =   54
         Top             =   150
         Width           =   6600
      End
      Begin VB.Label lblFrom2 
         BackColor       =   &H80000005&
         Caption         =   "From Mira Sand, 08:57"
         ForeColor       =   &H80000011&
         Height          =   225
         Left            =   180
         TabIndex        =   55
         Top             =   510
         Width           =   6600
      End
      Begin VB.Label lblRule2 
         BackColor       =   &H8000000F&
         Caption         =   ""
         Height          =   15
         Left            =   180
         TabIndex        =   56
         Top             =   810
         Width           =   6570
      End
      Begin VB.Label lblText20 
         BackColor       =   &H80000005&
         Caption         =   "Shall we try the new place by the canal?"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   57
         Top             =   930
         Width           =   6570
      End
      Begin VB.Label lblText22 
         BackColor       =   &H80000005&
         Caption         =   "Thursday, half past twelve."
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   58
         Top             =   1320
         Width           =   6570
      End
      Begin VB.Label lblText24 
         BackColor       =   &H80000005&
         Caption         =   "Mira"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   59
         Top             =   1710
         Width           =   6570
      End
   End
   Begin VB.Frame fraMessage3 
      BackColor       =   &H80000005&
      BorderStyle     =   0
      Caption         =   ""
      Height          =   3720
      Left            =   2430
      TabIndex        =   60
      Top             =   2910
      Visible         =   0   'False
      Width           =   6930
      Begin VB.Label lblSubject3 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   11.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         BackColor       =   &H80000005&
         Caption         =   "All tests passed"
         ForeColor       =   &H80000008&
         Height          =   300
         Left            =   180
         TabIndex        =   61
         Top             =   150
         Width           =   6600
      End
      Begin VB.Label lblFrom3 
         BackColor       =   &H80000005&
         Caption         =   "From Build service, Yesterday"
         ForeColor       =   &H80000011&
         Height          =   225
         Left            =   180
         TabIndex        =   62
         Top             =   510
         Width           =   6600
      End
      Begin VB.Label lblRule3 
         BackColor       =   &H8000000F&
         Caption         =   ""
         Height          =   15
         Left            =   180
         TabIndex        =   63
         Top             =   810
         Width           =   6570
      End
      Begin VB.Label lblText30 
         BackColor       =   &H80000005&
         Caption         =   "Both architectures, every test."
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   64
         Top             =   930
         Width           =   6570
      End
      Begin VB.Label lblText32 
         BackColor       =   &H80000005&
         Caption         =   "The archive and the installers are in the usual place."
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   65
         Top             =   1320
         Width           =   6570
      End
   End
   Begin VB.Frame fraMessage4 
      BackColor       =   &H80000005&
      BorderStyle     =   0
      Caption         =   ""
      Height          =   3720
      Left            =   2430
      TabIndex        =   66
      Top             =   2910
      Visible         =   0   'False
      Width           =   6930
      Begin VB.Label lblSubject4 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   11.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         BackColor       =   &H80000005&
         Caption         =   "Screenshots for the manual"
         ForeColor       =   &H80000008&
         Height          =   300
         Left            =   180
         TabIndex        =   67
         Top             =   150
         Width           =   6600
      End
      Begin VB.Label lblFrom4 
         BackColor       =   &H80000005&
         Caption         =   "From Noah Lind, Yesterday"
         ForeColor       =   &H80000011&
         Height          =   225
         Left            =   180
         TabIndex        =   68
         Top             =   510
         Width           =   6600
      End
      Begin VB.Label lblRule4 
         BackColor       =   &H8000000F&
         Caption         =   ""
         Height          =   15
         Left            =   180
         TabIndex        =   69
         Top             =   810
         Width           =   6570
      End
      Begin VB.Label lblText40 
         BackColor       =   &H80000005&
         Caption         =   "Here are the pictures for the manual, at 96 and at 192 dots an inch."
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   70
         Top             =   930
         Width           =   6570
      End
      Begin VB.Label lblText42 
         BackColor       =   &H80000005&
         Caption         =   "Noah"
         ForeColor       =   &H80000008&
         Height          =   225
         Left            =   180
         TabIndex        =   71
         Top             =   1320
         Width           =   6570
      End
   End
End
Attribute VB_Name = "frmMail"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
