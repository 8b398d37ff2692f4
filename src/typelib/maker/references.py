"""How functions name the types of their parameters: simple ones in a word, described ones by their place in a table."""
import struct
import uuid

from tables import Rows, padded

ENUMERATION, INTERFACE, DISPATCH, CLASS, ALIAS = 0, 3, 4, 5, 6  # kinds of descriptions

VT_I4, VT_INT, VT_VOID, VT_HRESULT, VT_PTR, VT_USERDEFINED = 3, 22, 24, 25, 26, 29
AUTOMATION = {"SHORT": 2, "LONG": VT_I4, "FLOAT": 4, "BSTR": 8, "VARIANT_BOOL": 11, "VARIANT": 12}
SIMPLE = 0x80000000
BY_REFERENCE = 0x4000
DESCRIBED = 0x7FFF

STANDARD_LIBRARY = "00020430-0000-0000-C000-000000000046"
DISPATCH_INTERFACE = "00020400-0000-0000-C000-000000000046"
# What the lists name of the standard OLE type library: its kind, its identifier, and whether it is an object, which
# is handled by pointer.
IMPORTED = {
    "OLE_COLOR": (ALIAS, "66504301-BE0F-101A-8BBB-00AA00300CAB", False),
    "OLE_TRISTATE": (ENUMERATION, "6650430A-BE0F-101A-8BBB-00AA00300CAB", False),
    "IFontDisp": (DISPATCH, "BEF6E003-A874-101A-8BBA-00AA00300CAB", True),
    "IPictureDisp": (DISPATCH, "7BF80981-BF32-101A-8BBB-00AA00300CAB", True),
}


def simple(vartype, stored_as):
    """The word of a type that needs no description."""
    return SIMPLE | stored_as << 16 | vartype


class Imports:
    """The standard OLE type library, and what of it is used."""

    def __init__(self, identifiers):
        self._identifiers = identifiers
        self._references = {}
        name = b"stdole2.tlb"
        library = identifiers.add(uuid.UUID(STANDARD_LIBRARY).bytes_le, 2)
        version = struct.pack("<hh", 2, 0)
        self.files = struct.pack("<ii", library, 0) + version + padded(struct.pack("<H", len(name) << 2 | 1) + name)
        self.infos = b""

    def reference(self, kind, guid):
        """How others refer to the imported type; the lowest bit tells it from a type of this file."""
        if guid not in self._references:
            offset = len(self.infos)
            self._references[guid] = offset | 1
            identifier = self._identifiers.add(uuid.UUID(guid).bytes_le, offset | 1)
            by_identifier = 1 << 16
            self.infos += struct.pack("<Iii", kind << 24 | by_identifier | offset // 12, 0, identifier)
        return self._references[guid]

    def count(self):
        return len(self._references)


class Types:
    def __init__(self, imports, own):
        self._imports = imports
        self._own = own  # where the file's own descriptions are, by name
        self._rows = Rows()

    def described(self, name):
        """The place of a type that is described, here or in the imported library."""
        if name in IMPORTED:
            kind, guid, _ = IMPORTED[name]
            reference = self._imports.reference(kind, guid)
        else:
            reference = self._own[name]
        return self._rows.offset(struct.pack("<Ii", DESCRIBED << 16 | VT_USERDEFINED, reference))

    def of_parameter(self, parameter):
        """The type's word, and how many pointers lead to it."""
        name = parameter.type
        word = simple(AUTOMATION[name], AUTOMATION[name]) if name in AUTOMATION else self.described(name)
        is_object = name in IMPORTED and IMPORTED[name][2]
        pointers = is_object + parameter.by_reference
        for _ in range(pointers):
            word = self._pointer_to(word)
        return word, pointers

    def _pointer_to(self, word):
        beside = BY_REFERENCE | word & 0xFFFF if word & SIMPLE else DESCRIBED
        return self._rows.offset(struct.pack("<II", beside << 16 | VT_PTR, word))

    def bytes(self):
        return self._rows.bytes()
