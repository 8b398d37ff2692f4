"""Writes a type library in the system's file format (MSFT), every field as the system's own writers fill it."""
import struct

from references import (
    ALIAS, CLASS, DISPATCH, DISPATCH_INTERFACE, ENUMERATION, INTERFACE, VT_HRESULT, VT_I4, VT_INT, VT_VOID, Imports,
    Types, simple,
)  # fmt: skip
from tables import NOWHERE, Identifiers, Names, Rows, text

HEADER_SIZE = 84
SEGMENTS = 15
SEGMENT_ENTRY_SIZE = 16
TYPE_SIZE = 100

ENGLISH = 0x409  # the language that names are hashed in
VERSION = 1  # 1.0
LIBRARY_FLAGS = 0x8 | 0x2  # hasdiskimage, control
HAS_HELP_FILE = 0x10

TYPE_KINDS = {"interface": DISPATCH, "events": DISPATCH, "class": CLASS, "alias": ALIAS, "enumeration": ENUMERATION}
TYPE_FLAGS = {
    "interface": 0x11D0,  # hidden, dual, nonextensible, oleautomation, dispatchable
    "events": 0x1090,  # hidden, nonextensible, dispatchable
    "class": 0x22,  # cancreate, control
    "alias": 0,
    "enumeration": 0,
}
# Beside the kind of a type.
IS_DUAL = 0x10
ON_EVERY_TYPE = 0x20

DUAL_INHERITS = 7  # functions, from
DUAL_DEPTH = 2  # interfaces: IUnknown and IDispatch


class Sizes:
    """What a reader's own structures take, in bytes, by the size of a pointer."""

    def __init__(self, pointer):
        wide = pointer == 8
        self.pointer = pointer
        self.function = 88 if wide else 52
        self.parameter = 32 if wide else 16
        self.pointed_type = 8
        self.constant = 88 if wide else 52


class Member:
    """The record of a function or a constant, with what the tables behind the records say of it."""

    def __init__(self, record, identifier, name):
        self.record = record
        self.identifier = identifier
        self.name = name


def block_of(members):
    """The records of a type's members, then tables of their identifiers, names and places."""
    if not members:
        return b""
    records = b""
    places = []
    for each in members:
        places.append(len(records))
        records += each.record
    columns = [each.identifier for each in members] + [each.name for each in members] + places
    return struct.pack("<i", len(records)) + records + struct.pack(f"<{len(columns)}i", *columns)


def rings(functions):
    """The functions of one member form a ring, which the system walks to find the put behind the get: for each
    function the index of the next one, its own where it is alone."""
    links = []
    first = {}
    for index, function in enumerate(functions):
        head = first.setdefault(function.identifier, index)
        links.append(index)
        links[head], links[index] = links[index], links[head]
    return links


class Writer:
    def __init__(self, descriptions, pointer_size):
        self._descriptions = descriptions
        self._sizes = Sizes(pointer_size)
        self._own = {each.name: TYPE_SIZE * index for index, each in enumerate(descriptions)}
        self._names = Names()
        self._identifiers = Identifiers()
        self._texts = Rows()
        self._implemented = b""  # what the classes implement

    def write(self, library):
        """The whole file."""
        name = self._names.offset(library.name)
        help_text = self._texts.offset(text(library.help_text))
        help_file = self._texts.offset(text(library.help_file))
        guid = self._identifiers.add(library.guid, -2)
        guids = [self._identifiers.add(each.guid, self._own[each.name]) for each in self._descriptions]
        for each in self._descriptions:
            self._names.add_type(each.name, self._own[each.name])
        self._imports = Imports(self._identifiers)
        self._types = Types(self._imports, self._own)
        self._dispatch = self._imports.reference(INTERFACE, DISPATCH_INTERFACE)

        records = []
        blocks = []
        for index, each in enumerate(self._descriptions):
            record, members = self._type(index, each, guids[index])
            records.append(record)
            blocks.append(block_of(members))

        system = 3 if self._sizes.pointer == 8 else 1
        header = struct.pack(
            "<4s20i",
            *(b"MSFT", 0x10002, guid, ENGLISH, 0, 0x40 | HAS_HELP_FILE | system, VERSION, LIBRARY_FLAGS),
            *(len(records), help_text, 0, 0, self._names.count(), self._names.characters(), name, help_file),
            *(NOWHERE, 0x20, 0x80, self._dispatch, self._imports.count()),
        )
        return header + self._body(records, blocks)

    def _body(self, records, blocks):
        """All behind the header: where the types are, the segments' directory, the segments, the types' members."""
        name_buckets, names = self._names.segments()
        guid_buckets, guids = self._identifiers.segments()
        segments = {  # by their place in the directory, in the file's order
            0: bytes(TYPE_SIZE * len(records)),
            4: guid_buckets,
            5: guids,
            3: self._implemented,
            1: self._imports.infos,
            2: self._imports.files,
            6: name_buckets,
            7: names,
            8: self._texts.bytes(),
            9: self._types.bytes(),
        }
        offset = HEADER_SIZE + 4 * len(records) + SEGMENTS * SEGMENT_ENTRY_SIZE
        directory = {}
        for place, data in segments.items():
            directory[place] = (offset, len(data), NOWHERE, 15)
            offset += len(data)
        for record, block in zip(records, blocks):
            record[1] = offset
            offset += len(block)
        segments[0] = b"".join(struct.pack("<25i", *record) for record in records)
        nothing = (NOWHERE, 0, NOWHERE, 15)
        return b"".join(
            [struct.pack("<i", each) for each in self._own.values()]
            + [struct.pack("<4i", *directory.get(place, nothing)) for place in range(SEGMENTS)]
            + list(segments.values())
            + blocks
        )

    def _type(self, index, described, guid):
        """The record of a type, as numbers, without where its members are; and its members."""
        members = []
        first = second = implemented = table_size = 0
        size = self._sizes.pointer
        if described.kind == "interface":
            members = self._functions(described, inherited=DUAL_INHERITS)
            first = self._dispatch
            second = DUAL_INHERITS << 16 | DUAL_DEPTH
            implemented = 1
            table_size = (DUAL_INHERITS + len(members)) * size
        elif described.kind == "events":
            # Late bound alone: its functions are the events, and it has a base without deriving from it.
            members = self._functions(described, inherited=0)
            first = NOWHERE
            implemented = 1
            table_size = len(members) * size
        elif described.kind == "class":
            first = self._implement(described)
            implemented = 2
        elif described.kind == "alias":
            first = self._types.described(described.interface)
        else:
            members = self._constants(described)
            first = NOWHERE
            size = 4
        functions, values = len(described.functions), len(described.values)
        help_text = self._texts.offset(text(described.help_text)) if described.help_text else NOWHERE
        name = self._names.offset(described.name)
        record = [self._kind(described) | index << 16, 0, 0, 0, 3, 0, functions | values << 16, 0, 0, 0, 0]
        record += [guid, TYPE_FLAGS[described.kind], name, VERSION, help_text, 0, described.topic, NOWHERE]
        record += [implemented | table_size << 16, size, first, second, 0, NOWHERE]
        return record, members

    def _kind(self, described):
        of_pointers = described.kind in ("interface", "events", "alias")
        alignment = self._sizes.pointer if of_pointers else 4
        dual = IS_DUAL if described.kind == "interface" else 0
        return TYPE_KINDS[described.kind] | dual | ON_EVERY_TYPE | alignment << 6 | alignment << 11

    def _implement(self, described):
        default, source = 1, 2
        first = len(self._implemented)
        self._implemented += struct.pack("<4i", self._own[described.interface], default, NOWHERE, first + 16)
        self._implemented += struct.pack("<4i", self._own[described.events], default | source, NOWHERE, NOWHERE)
        return first

    def _constants(self, described):
        members = []
        for index, (name, value) in enumerate(described.values):
            if not 0 <= value < 1 << 26:
                raise SystemExit(f"{name}: the value needs a record of its own")
            record = struct.pack("<HHIi", 20, index, simple(VT_INT, VT_I4), 0)
            # A constant; its value stands in the word that says so with its topmost bit.
            record += struct.pack("<HHI", 2, self._sizes.constant, 1 << 31 | VT_I4 << 26 | value)
            name = self._names.add_constant(name, self._own[described.name])
            members.append(Member(record, 0x40000000 + index, name))
        return members

    def _functions(self, described, inherited):
        links = rings(described.functions)
        members = []
        for index, function in enumerate(described.functions):
            name = self._names.add_member(function.name, self._own[described.name])
            slot = (inherited + index) * self._sizes.pointer
            record = self._function(function, described, index, slot, links[index])
            members.append(Member(record, function.identifier, name))
        return members

    def _function(self, function, described, index, slot, link):
        parameters = b""
        size_in_memory = self._sizes.function
        results = 0
        for each in function.parameters:
            word, pointers = self._types.of_parameter(each)
            name = self._names.offset(each.name) if each.name else NOWHERE
            parameters += struct.pack("<IiI", word, name, each.flags)
            size_in_memory += self._sizes.parameter + self._sizes.pointed_type * pointers
            results += each.is_result
        help_of = struct.pack("<i", described.topic)
        if function.help_text:
            help_of += struct.pack("<i", self._texts.offset(text(function.help_text)))

        pure_virtual, dispatch, standard_call = 1, 4, 4
        if described.kind == "events":
            kind, result = dispatch, simple(VT_VOID, 0)
        else:
            kind, result = pure_virtual, simple(VT_HRESULT, VT_HRESULT)
        kinds = kind | function.invoke << 3 | standard_call << 8 | results << 14 | link << 16
        size = 24 + len(help_of) + len(parameters)
        record = struct.pack("<HHII", size, index, result, function.flags)
        record += struct.pack("<HHIHH", slot, size_in_memory, kinds, len(function.parameters), 0)
        return record + help_of + parameters
