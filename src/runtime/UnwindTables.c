// Tells the unwinder that is linked into the component of the component's tables. Stands in for the start-up
// object of the 32-bit compiler, crtbegin.o, which hands the tables to libgcc_s_dw2-1.dll wherever a host has
// that in its process: our unwinder would not find them there, and the first exception would end the host.

/// The tables of everything that is linked after this file; crtend.o, linked last, holds their end.
__extension__ static int const kTables[0] __attribute__((section(".eh_frame"), aligned(4), used));

/// Memory for the unwinder's note of them: its struct object, of seven pointers at most.
static void* note[8];

extern int atexit(void (*function)(void));
extern void __register_frame_info(void const* tables, void* note);
extern void* __deregister_frame_info(void const* tables);

// The names are those of the object that this one stands in for: crtend.o calls the first before any
// constructor.
void __gcc_register_frame(void);
void __gcc_deregister_frame(void);

void __gcc_register_frame(void)
{
    __register_frame_info(kTables, note);
    atexit(__gcc_deregister_frame);
}

/// Gives back what the unwinder has sorted meanwhile.
void __gcc_deregister_frame(void) { __deregister_frame_info(kTables); }
