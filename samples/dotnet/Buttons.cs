// Flat buttons on a Windows Forms form, without generated wrappers: AxHost and the few members that are used.
using System;
using System.Drawing;
using System.Runtime.InteropServices;
using System.Windows.Forms;

/// <summary>What this program asks of a flat command button; the type library has the other members.</summary>
[ComImport, Guid("55B69C8D-98D9-49FC-BE01-E4160910134E"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
public interface IFlatCommand
{
    [DispId(0x68030008)] string Caption { get; set; }
    [DispId(0x68030007)] bool CentreCaption { get; set; }
    [DispId(0x68030010)] int HotBackColor { get; set; }
    [DispId(0x6803000E)] int HotBorderColor { get; set; }
}

/// <summary>The events of a flat command button.</summary>
[ComImport, Guid("F0249F40-B071-4C35-96EA-A31E15B612FA"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
public interface IFlatCommandEvents
{
    [DispId(1)] void MouseEnter();
    [DispId(2)] void MouseExit();
    [DispId(3)] void Paint();
    [DispId(4)] void Click();
    [DispId(5)] void DblClick();
    [DispId(6)] void MouseDown(ref short button, ref short shift, ref float x, ref float y);
    [DispId(7)] void MouseMove(ref short button, ref short shift, ref float x, ref float y);
    [DispId(8)] void MouseUp(ref short button, ref short shift, ref float x, ref float y);
}

/// <summary>A flat command button as a Windows Forms control.</summary>
public sealed class FlatCommand : AxHost
{
    private ConnectionPointCookie events;

    public FlatCommand() : base("CF82FC21-7B85-4C5D-A482-1BBDBA57101F") { }

    public event EventHandler Clicked;

    /// <summary>The control itself; it exists once the form has been made.</summary>
    public IFlatCommand Button { get { return (IFlatCommand)GetOcx(); } }

    protected override void CreateSink()
    {
        events = new ConnectionPointCookie(GetOcx(), new Sink(this), typeof(IFlatCommandEvents));
    }

    protected override void DetachSink()
    {
        if (events != null)
            events.Disconnect();
        events = null;
    }

    [ClassInterface(ClassInterfaceType.None), ComVisible(true)]
    public sealed class Sink : IFlatCommandEvents
    {
        private readonly FlatCommand owner;

        internal Sink(FlatCommand owner) { this.owner = owner; }

        public void Click()
        {
            if (owner.Clicked != null)
                owner.Clicked(owner, EventArgs.Empty);
        }

        public void MouseEnter() { }
        public void MouseExit() { }
        public void Paint() { }
        public void DblClick() { }
        public void MouseDown(ref short button, ref short shift, ref float x, ref float y) { }
        public void MouseMove(ref short button, ref short shift, ref float x, ref float y) { }
        public void MouseUp(ref short button, ref short shift, ref float x, ref float y) { }
    }
}

public sealed class MainForm : Form
{
    private readonly FlatCommand save = new FlatCommand();
    private int saved;

    public MainForm()
    {
        Text = "Flat buttons";
        ClientSize = new Size(300, 120);
        save.Bounds = new Rectangle(20, 20, 120, 32);
        save.Clicked += delegate { Text = "Saved " + ++saved; };
        Controls.Add(save);
    }

    protected override void OnLoad(EventArgs e)
    {
        base.OnLoad(e);
        save.Button.Caption = "&Save changes";
        save.Button.CentreCaption = true;
        save.Button.HotBackColor = ColorTranslator.ToOle(Color.FromArgb(0xD6, 0xDF, 0xF7));
        save.Button.HotBorderColor = ColorTranslator.ToOle(Color.FromArgb(0x31, 0x6A, 0xC5));
    }

    [STAThread]
    public static int Main()
    {
        if (Type.GetTypeFromProgID("Quillet.qvFlatCommand") == null)
        {
            MessageBox.Show("Quillet is not registered: run regsvr32 quilbt.ocx, of the same kind (x86 or x64) as this program.");
            return 1;
        }
        Application.EnableVisualStyles();
        Application.Run(new MainForm());
        return 0;
    }
}
