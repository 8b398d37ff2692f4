"""The tables of a type library file that others point into by offset: names, identifiers, texts."""
import struct

NOWHERE = -1


def padded(data, least=0):
    """Filled up to whole 32-bit words, with the letter that the format fills up with."""
    return data.ljust(max(least, -(-len(data) // 4) * 4), b"W")


class Buckets:
    """A hash table of chains; the newest entry of a chain is its first."""

    def __init__(self, count):
        self.heads = [NOWHERE] * count

    def insert(self, bucket, offset):
        """Answers which entry comes next in the chain."""
        following = self.heads[bucket]
        self.heads[bucket] = offset
        return following

    def bytes(self):
        return struct.pack(f"<{len(self.heads)}i", *self.heads)


def folded(character):
    """How a letter counts in a hash of the header's language: without its case, and some letters as their kin."""
    return ord({"W": "V", "Y": "U", "/": "\0"}.get(character.upper(), character.upper()))


def hash_of(name):
    """The system looks for a name by this number alone, and then compares: it must be exact."""
    value = 0x0DEADBEE
    for character in name:
        value = (value * 37 + folded(character)) & 0xFFFFFFFF
    return value % 65599 & 0xFFFF


class Names:
    """Every name of the file once, with the type that it belongs to."""

    OF_TYPE = 0x38
    OF_CONSTANT = 0x20
    OF_ONLY_CONSTANT = 0x10

    def __init__(self):
        self._offsets = {}  # by name, in the file's order
        self._owners = {}  # the offset of a type
        self._flags = {}
        self._size = 0

    def offset(self, name):
        """Where the name stands, added if it is new."""
        if name not in self._offsets:
            if name.lower() in (each.lower() for each in self._offsets):
                raise SystemExit(f"{name} is written in two cases, and the file has place for one")
            self._offsets[name] = self._size
            self._size += 12 + len(padded(name.encode("ascii")))
        return self._offsets[name]

    def add_type(self, name, owner):
        self._own(name, owner, self.OF_TYPE)
        return self.offset(name)

    def add_member(self, name, owner):
        self._own(name, owner, 0)
        return self.offset(name)

    def add_constant(self, name, owner):
        """Several enumerations may have a constant of one name."""
        self._own(name, owner, self.OF_CONSTANT | self.OF_ONLY_CONSTANT)
        if self._owners[name] != owner:
            self._flags[name] &= ~self.OF_ONLY_CONSTANT
        return self.offset(name)

    def _own(self, name, owner, flags):
        """The first one that a name is given by keeps it."""
        self._owners.setdefault(name, owner)
        self._flags.setdefault(name, flags)

    def segments(self):
        """The hash table, then the names themselves."""
        buckets = Buckets(128)
        entries = b""
        for name, offset in self._offsets.items():
            number = hash_of(name)
            following = buckets.insert(number & 0x7F, offset)
            flags = self._flags.get(name, 0)
            owner = self._owners.get(name, NOWHERE)
            entries += struct.pack("<iiBBH", owner, following, len(name), flags, number)
            entries += padded(name.encode("ascii"))
        return buckets.bytes(), entries

    def count(self):
        return len(self._offsets)

    def characters(self):
        return sum(map(len, self._offsets))


class Identifiers:
    """Every GUID of the file once, with what it is of: a type's offset, an import's reference, or a number."""

    SIZE = 24

    def __init__(self):
        self._buckets = Buckets(32)
        self._entries = b""

    def add(self, guid, reference):
        offset = len(self._entries)
        bucket = 0
        for word in struct.unpack("<8H", guid):
            bucket ^= word
        following = self._buckets.insert(bucket & 0x1F, offset)
        self._entries += guid + struct.pack("<ii", reference, following)
        return offset

    def segments(self):
        return self._buckets.bytes(), self._entries


class Rows:
    """Rows of bytes; equal ones stand once."""

    def __init__(self):
        self._offsets = {}
        self._bytes = b""

    def offset(self, row):
        if row not in self._offsets:
            self._offsets[row] = len(self._bytes)
            self._bytes += row
        return self._offsets[row]

    def bytes(self):
        return self._bytes


def text(value):
    """A row of the table of texts."""
    data = value.encode("ascii")
    return padded(struct.pack("<H", len(data)) + data, least=8)
