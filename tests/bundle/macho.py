"""Reads what a macOS program says of itself: the Mach-O format, as far as the tests ask."""

import hashlib
import struct

UNIVERSAL_MAGIC = 0xCAFEBABE
PROGRAM_MAGIC = 0xFEEDFACF  # 64 bits
ARCHITECTURES = {0x01000007: "x86_64", 0x0100000C: "arm64"}

LC_SYMTAB = 0x02
LC_LOAD_DYLIB = 0x0C
LC_SEGMENT_64 = 0x19
LC_LOAD_WEAK_DYLIB = 0x80000018
LC_REEXPORT_DYLIB = 0x8000001F
LC_CODE_SIGNATURE = 0x1D
LC_BUILD_VERSION = 0x32
LOADING_COMMANDS = (LC_LOAD_DYLIB, LC_LOAD_WEAK_DYLIB, LC_REEXPORT_DYLIB)

# A symbol's kind: any debugging bit, any bit of being defined here, known beyond this file.
DEBUGGING, DEFINED, EXTERNAL = 0xE0, 0x0E, 0x01

SIGNATURE_MAGIC = 0xFADE0CC0
CODE_DIRECTORY_SLOT = 0
SHA256 = 2


def programs(universal):
    """The programs, one for each architecture, that a universal file joins."""
    magic, count = struct.unpack_from(">2I", universal)
    if magic != UNIVERSAL_MAGIC:
        raise ValueError("not a universal file")
    for index in range(count):
        _, _, offset, size, _ = struct.unpack_from(">5I", universal, 8 + 20 * index)
        yield Program(universal[offset : offset + size])


class Program:
    """One Mach-O program. Offsets in it count from the first byte of `data`."""

    def __init__(self, data):
        self.data = data
        magic, cpu = struct.unpack_from("<2I", data)
        if magic != PROGRAM_MAGIC:
            raise ValueError("not a 64-bit program")
        self.architecture = ARCHITECTURES.get(cpu, hex(cpu))

    def minimum_system(self):
        """The platform (1 is macOS) and the version of the oldest system to start on."""
        (offset,) = self._commands(LC_BUILD_VERSION)
        platform, version = struct.unpack_from("<2I", self.data, offset + 8)
        return platform, f"{version >> 16}.{version >> 8 & 0xFF}"

    def libraries(self):
        """The install names of the libraries that are loaded with the program, in order."""
        return [self._library(offset) for offset in self._commands(*LOADING_COMMANDS)]

    def imports(self):
        """Every symbol from elsewhere, with the library that it is bound to; None if to none."""
        libraries = self.libraries()
        for name, kind, description in self._symbols():
            if kind & (DEBUGGING | DEFINED | EXTERNAL) == EXTERNAL:
                ordinal = description >> 8
                yield name, libraries[ordinal - 1] if 0 < ordinal <= len(libraries) else None

    def section(self, segment, name):
        """The bytes of a section; none if there is no such section."""
        for offset in self._commands(LC_SEGMENT_64):
            (count,) = struct.unpack_from("<I", self.data, offset + 64)
            for section in range(offset + 72, offset + 72 + 80 * count, 80):
                names = struct.unpack_from("<16s16s", self.data, section)
                if [text.rstrip(b"\0").decode() for text in names] == [name, segment]:
                    size, start = struct.unpack_from("<QI", self.data, section + 40)
                    return self.data[start : start + size]
        return b""

    def is_signed_as_it_stands(self):
        """Whether there is a signature, and every page still has the hash that it was given."""
        for offset in self._commands(LC_CODE_SIGNATURE):
            (start,) = struct.unpack_from("<I", self.data, offset + 8)
            directory = self._code_directory(start)
            return directory is not None and self._pages_match(directory)
        return False

    def _commands(self, *wanted):
        count, offset = *struct.unpack_from("<I", self.data, 16), 32
        for _ in range(count):
            command, size = struct.unpack_from("<2I", self.data, offset)
            if command in wanted:
                yield offset
            offset += size

    def _library(self, command):
        (name,) = struct.unpack_from("<I", self.data, command + 8)
        return self._text(command + name)

    def _symbols(self):
        for offset in self._commands(LC_SYMTAB):
            symbols, count, strings, _ = struct.unpack_from("<4I", self.data, offset + 8)
            for index in range(count):
                name, kind, _, description, _ = struct.unpack_from(
                    "<I2BHQ", self.data, symbols + 16 * index
                )
                yield self._text(strings + name), kind, description

    def _code_directory(self, signature):
        magic, _, count = struct.unpack_from(">3I", self.data, signature)
        if magic != SIGNATURE_MAGIC:
            return None
        for index in range(count):
            slot, offset = struct.unpack_from(">2I", self.data, signature + 12 + 8 * index)
            if slot == CODE_DIRECTORY_SLOT:
                return signature + offset
        return None

    def _pages_match(self, directory):
        hashes, _, _, count, limit = struct.unpack_from(">5I", self.data, directory + 16)
        size, kind, _, page_bits = struct.unpack_from(">4B", self.data, directory + 36)
        if kind != SHA256 or count != -(-limit >> page_bits):
            return False
        for index in range(count):
            page = self.data[index << page_bits : min(index + 1 << page_bits, limit)]
            start = directory + hashes + size * index
            if hashlib.sha256(page).digest() != self.data[start : start + size]:
                return False
        return True

    def _text(self, offset):
        return self.data[offset : self.data.index(0, offset)].decode()
