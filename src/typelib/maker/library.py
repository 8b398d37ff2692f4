"""What the type library says: its 24 descriptions in their order, made from the lists of the published contract."""
import dataclasses
import enum

import contract


class Invoke(enum.IntEnum):
    """How a function is called."""

    FUNC = 1
    GET = 2
    PUT = 4
    PUT_REFERENCE = 8


IN, OUT, RESULT = 1, 2, 8  # flags of a parameter
BINDABLE = 0x4 | 0x10 | 0x20 | 0x1000  # bindable, displaybind, defaultbind, immediatebind
DEFAULT_EVENT = 0x200  # the one that designers show first


@dataclasses.dataclass
class Parameter:
    name: str | None
    type: str
    flags: int

    @property
    def by_reference(self):
        return bool(self.flags & OUT)

    @property
    def is_result(self):
        return bool(self.flags & RESULT)


@dataclasses.dataclass
class Function:
    name: str
    identifier: int
    help_text: str
    invoke: Invoke
    parameters: list
    flags: int = 0


@dataclasses.dataclass
class Description:
    """A type description; what a kind has none of stays empty."""

    kind: str  # interface, events, class, alias, enumeration
    name: str
    guid: bytes
    topic: int  # of the help file
    functions: list = dataclasses.field(default_factory=list)
    values: list = dataclasses.field(default_factory=list)  # (name, value) of an enumeration
    interface: str | None = None  # of a class: its default one; of an alias: its target
    events: str | None = None  # of a class
    help_text: str | None = None


MESSAGE = [("hwnd", "LONG"), ("uMsg", "LONG"), ("wParam", "LONG"), ("lParam", "LONG")]
KEY = [("KeyCode", "SHORT"), ("Shift", "SHORT")]
POINTER = [("Button", "SHORT"), ("Shift", "SHORT"), ("x", "FLOAT"), ("y", "FLOAT")]


def functions_of(member):
    """One function for a method or an event, two for a property that can be set: the get, then the put."""
    kind, name, identifier, type_name, help_text = member

    def function(invoke, parameters, flags=0):
        return Function(name, identifier, help_text, invoke, parameters, flags)

    def getter(flags=0):
        return function(Invoke.GET, [Parameter(None, type_name, OUT | RESULT)], flags)

    def setter(invoke, flags=0):
        return function(invoke, [Parameter(f"New_{name}", type_name, IN)], flags)

    def event(parameters, flags=0):
        return function(Invoke.FUNC, [Parameter(*each, IN | OUT) for each in parameters], flags)

    def method(parameters, result=None):
        results = [Parameter(None, result, OUT | RESULT)] if result else []
        return function(Invoke.FUNC, [Parameter(*each, IN) for each in parameters] + results)

    match kind:
        case "VALUE":
            return [getter(), setter(Invoke.PUT)]
        case "DEFAULT_VALUE":
            return [getter(BINDABLE), setter(Invoke.PUT, BINDABLE)]
        case "READ_ONLY":
            return [getter()]
        case "OBJECT":
            return [getter(), setter(Invoke.PUT_REFERENCE)]
        case "METHOD":
            return [method([])]
        case "FUNCTION":
            return [method([], type_name)]
        case "WINDOW_PROCEDURE":
            return [method(MESSAGE, "LONG")]
        case "EVENT":
            return [event([])]
        case "DEFAULT_EVENT":
            return [event([], DEFAULT_EVENT)]
        case "KEY_EVENT":
            return [event(KEY)]
        case "CHARACTER_EVENT":
            return [event([("KeyAscii", "SHORT")])]
        case "POINTER_EVENT":
            return [event(POINTER)]
    raise SystemExit(f"{name}: members of kind {kind} are unknown")


GUIDS = contract.identifiers()
TEXTS = contract.constants("Texts.h") | contract.constants("../base/HelpFile.h")
TOPICS = contract.constants("HelpContexts.h")


@dataclasses.dataclass
class Library:
    name: str = TEXTS["kLibraryName"]
    guid: bytes = GUIDS["kLibraryId"]
    help_text: str = TEXTS["kLibraryText"]
    help_file: str = TEXTS["kHelpFile"]


def functions_in(list_name):
    return [function for member in contract.members_of(list_name) for function in functions_of(member)]


class Control:
    """The descriptions of one control. Identifiers, texts and topics have the control's name in theirs."""

    def __init__(self, name):
        self.name = name
        self.constant = name[0].upper() + name[1:]
        self.topic = TOPICS[f"kHelp{self.constant}"]

    def interface(self):
        guid = GUIDS[f"k{self.constant}Interface"]
        return Description("interface", f"_{self.name}", guid, self.topic, functions=functions_in(self.name))

    def events(self, list_name):
        guid = GUIDS[f"k{self.constant}Events"]
        return Description("events", f"__{self.name}", guid, self.topic, functions=functions_in(list_name))

    def coclass(self):
        return Description(
            "class",
            self.name,
            GUIDS[f"k{self.constant}Class"],
            self.topic,
            interface=f"_{self.name}",
            events=f"__{self.name}",
            help_text=TEXTS[f"k{self.constant}Text"],
        )

    def alias(self):
        guid = GUIDS[f"k{self.constant}Alias"]
        return Description("alias", f"{self.name}___v0", guid, self.topic, interface=f"_{self.name}")


def descriptions():
    command = Control("qvFlatCommand")
    option = Control("qvFlatOption")
    check = Control("qvFlatCheck")
    tool = Control("FlatToolButton")
    image = Control("qvImageCommand")
    return [
        command.interface(), command.coclass(), command.alias(),
        option.interface(), option.coclass(),
        check.interface(), check.coclass(),
        tool.interface(), tool.coclass(), tool.alias(),
        image.interface(), image.coclass(), image.alias(),
        command.events("commandEvents"),
        option.events("optionCheckEvents"),
        check.events("optionCheckEvents"),
        tool.events("commandEvents"),
        image.events("commandEvents"),
    ] + [
        Description("enumeration", name, GUIDS[constant], TOPICS["kHelpManual"], values=values)
        for name, constant, values in contract.enumerations()
    ]
