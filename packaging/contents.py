"""Packs what is shipped: contents.py FOLDER VERSION

FOLDER holds the built files in x86/ and x64/. Two archives come out in FOLDER/dist: what is shipped, and apart from
it the symbols that turn the address of a crash into a line."""
import hashlib
import pathlib
import re
import subprocess
import sys
import uuid

import archive
import spdx
import third_party

ROOT = pathlib.Path(__file__).resolve().parent.parent
ARCHITECTURES = ["x86", "x64"]

# What stands in the archive under which name. A pattern's files keep their names below the folder.
COMMON = [
    ("LICENSE.txt", "LICENSE"),
    ("CHANGES.txt", "CHANGELOG.md"),
    ("README.txt", "packaging/README.txt"),
    ("install.cmd", "packaging/install.cmd"),
    ("uninstall.cmd", "packaging/uninstall.cmd"),
    ("quillet.h", "build/quillet.h"),
    ("forms/", "gallery/forms/*.fr[mx]"),
]
PROGRAMS = ["quilbt.ocx", "gallery.exe"]
EACH = [*PROGRAMS, "quilbt.manifest"]


def tracked(folder):
    done = subprocess.run(["git", "ls-files", "-z", folder], cwd=ROOT, capture_output=True, text=True, check=True)
    return [name for name in done.stdout.split("\0") if name]


def windows_text(data):
    """Text with Windows' line ends; what holds a zero byte is no text, and stays as it is."""
    return data if b"\0" in data else re.sub(rb"\r?\n", b"\r\n", data)


def shipped(product, version, linked):
    sources = {}
    for name, pattern in COMMON:
        for path in sorted(ROOT.glob(pattern)):
            sources[name + path.name if name.endswith("/") else name] = path
    sources |= {name: ROOT / name for name in tracked("samples")}
    for arch in ARCHITECTURES:
        sources |= {f"{arch}/{name}": product / arch / name for name in EACH}
        sources[f"{arch}/quilbt.tlb"] = ROOT / f"build/{arch}-release/quilbt.tlb"
        # The registered type library looks for the manual beside the component.
        sources[f"{arch}/quillet.chm"] = ROOT / "build/help/quillet.chm"
    files = {name: windows_text(path.read_bytes()) for name, path in sources.items()}
    files["README.txt"] = files["README.txt"].replace(b"@VERSION@", version.encode())
    files["THIRD-PARTY.txt"] = windows_text(third_party.notices(linked).encode())
    files["quillet.spdx"] = windows_text(spdx.document(version, files, linked).encode())
    # Without Windows' line ends: the tools that read it take the end of the line for the file's name.
    sums = [f"{hashlib.sha256(data).hexdigest()}  {name}\n" for name, data in sorted(files.items())]
    return files | {"SHA256SUMS": "".join(sums).encode()}


def build_id(path):
    """The linker's build id, as debuggers name it in hexadecimal digits."""
    data = path.read_bytes()
    at = data.index(b"RSDS") + 4
    return uuid.UUID(bytes_le=data[at : at + 16]).hex


def symbols():
    """Each file's symbols, where debuggers look for them: below .build-id, by the file's build id."""
    files, index = {}, []
    for arch in ARCHITECTURES:
        for name in PROGRAMS:
            built = ROOT / f"build/{arch}-release/bin/{name}"
            identifier = build_id(built)
            target = f".build-id/{identifier[:2]}/{identifier[2:]}.debug"
            files[target] = built.with_name(name + ".debug").read_bytes()
            index.append(f"{arch}/{name}  {target}\r\n")
    return files | {"INDEX.txt": "".join(index).encode()}


def main(product, version):
    maps = [ROOT / f"build/{arch}-release/bin/{name}.map" for arch in ARCHITECTURES for name in PROGRAMS]
    linked = third_party.linked(maps)
    archive.write(product / f"dist/quillet-{version}.zip", shipped(product, version, linked))
    archive.write(product / f"dist/quillet-{version}-symbols.zip", symbols())


main(pathlib.Path(sys.argv[1]), sys.argv[2])
