"""What others wrote of the component: the parts of the compiler's run time that its link took in."""
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent

# The libraries that a link may take parts from, by the names of their files. Import libraries of Windows' own
# files belong to the C run time, too: mingw-w64 writes them.
LIBRARIES = [
    # files, name and name in the SPDX list, licence
    (r"libstdc\+\+|libgcc(_eh)?|crt(begin|end)S?", "GCC run-time libraries", "gcc", "GPL-3.0-or-later WITH GCC-exception-3.1"),
    (r"lib(win)?pthread", "winpthreads", "winpthreads", "MIT AND BSD-3-Clause"),
    (r".*", "mingw-w64 run time", "mingw-w64", "ZPL-2.1 AND LicenseRef-mingw-w64"),
]

INTRODUCTION = """What is linked into quilbt.ocx and gallery.exe

Quillet itself is under the licence in LICENSE.txt. Its compiler adds parts of its run time to every program that it
makes. They are:

{table}

The GCC run-time libraries are under the GNU General Public License, version 3 or later, with the GCC Runtime Library
Exception 3.1 (its text is below), which permits to convey a program that they are linked into under terms of one's
choice. The others ask that their notices go with the program. These are the notices as Debian's packages carry them;
they speak of more than is linked here.
"""

RULE = "=" * 78


def linked_files(maps):
    """The archives and objects outside the project that the linker's maps say were taken in."""
    found = set()
    for path in maps:
        taken = path.read_text(encoding="utf-8", errors="replace").split("Memory Configuration")[0]
        found |= set(re.findall(r"^(/\S+?\.a)\(", taken, re.MULTILINE))
        loaded = path.read_text(encoding="utf-8", errors="replace")
        found |= set(re.findall(r"^LOAD (/\S+/\w+\.o)$", loaded, re.MULTILINE))
    return sorted(path for path in {pathlib.Path(name).resolve() for name in found} if not path.is_relative_to(ROOT))


def package_of(path):
    """The Debian package that a file is from."""
    done = subprocess.run(["dpkg-query", "-S", str(path)], capture_output=True, text=True, check=True)
    return done.stdout.split(":")[0]


def version_of(package):
    done = subprocess.run(
        ["dpkg-query", "-W", "-f", "${Version}", package], capture_output=True, text=True, check=True
    )
    return done.stdout


def linked(maps):
    """Rows of name, SPDX name, licence, version and packages: one for each library that was taken in."""
    rows = {}
    for path in linked_files(maps):
        library = next(row[1:] for row in LIBRARIES if re.fullmatch(row[0], path.stem))
        rows.setdefault(library, set()).add(package_of(path))
    libraries = [row[1:] for row in LIBRARIES if row[1:] in rows]
    return [(*each, version_of(min(rows[each])), sorted(rows[each])) for each in libraries]


def notices(rows):
    """The text of THIRD-PARTY.txt. Packages of both architectures carry the same notices, which stand once."""
    table = "\n".join(f"  {name}, {version}\n      {licence}" for name, _, licence, version, _ in rows)
    texts = {}
    for *_, packages in rows:
        for package in packages:
            text = pathlib.Path(f"/usr/share/doc/{package}/copyright").read_text(encoding="utf-8", errors="replace")
            texts.setdefault(text, set()).add(package)
    parts = [INTRODUCTION.format(table=table)]
    for text, packages in sorted(texts.items(), key=lambda each: min(each[1])):
        parts.append(f"{RULE}\n{', '.join(sorted(packages))}\n{RULE}\n\n{text}")
    return "\n".join(parts)
